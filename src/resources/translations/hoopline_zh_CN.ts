<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AnnotationReader</name>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>文本不是 UTF-8 编码。</translation>
    </message>
    <message>
        <source>it is no JSON object</source>
        <translation>它不是 JSON 对象</translation>
    </message>
    <message>
        <source>its &apos;%1&apos; is none</source>
        <translation>其中的“%1”无效</translation>
    </message>
    <message>
        <source>The first line names neither a column &apos;md5&apos; nor a column &apos;file&apos;.</source>
        <translation>第一行既没有“md5”列，也没有“file”列。</translation>
    </message>
    <message>
        <source>it has another number of fields than the first line</source>
        <translation>它的字段数与第一行不同</translation>
    </message>
    <message>
        <source>it has neither md5 nor file</source>
        <translation>它既没有 md5 也没有 file</translation>
    </message>
    <message>
        <source>Entry %1 is wrong: %2.</source>
        <translation>第 %1 个条目有误：%2。</translation>
    </message>
</context>
<context>
    <name>BackgroundWork</name>
    <message>
        <source>The system has no thread left for this.</source>
        <translation>系统已没有可用的线程来执行此操作。</translation>
    </message>
</context>
<context>
    <name>BackupCommand</name>
    <message>
        <source>Keep a copy of the catalogue.</source>
        <translation>保留花样库的副本。</translation>
    </message>
    <message>
        <source>Replace a file that is there.</source>
        <translation>替换已有的文件。</translation>
    </message>
    <message>
        <source>Only one file can be given.</source>
        <translation>只能指定一个文件。</translation>
    </message>
    <message>
        <source>The catalogue is damaged; no backup was made.</source>
        <translation>花样库已损坏；未创建备份。</translation>
    </message>
    <message>
        <source>There is no catalogue yet; &apos;hoopline-cli scan FOLDER&apos; makes one.</source>
        <translation>还没有花样库；“hoopline-cli scan 文件夹”会创建一个。</translation>
    </message>
    <message>
        <source>Keeps a copy of the catalogue as it was saved last: in FILE, compressed if the name ends in .gz, or without one among the backups that the program makes by itself. Saved searches go to a file beside it that ends in .searches.json.</source>
        <translation>保留上次保存的花样库的副本：保存到 FILE（名称以 .gz 结尾时压缩）；未指定文件时，保存到程序自动创建的备份中。保存的搜索会写入其旁边以 .searches.json 结尾的文件。</translation>
    </message>
</context>
<context>
    <name>BackupFolder</name>
    <message>
        <source>Failed to read %1: %2</source>
        <translation>读取 %1 失败：%2</translation>
    </message>
</context>
<context>
    <name>BackupsDialog</name>
    <message>
        <source>Backups</source>
        <translation>备份</translation>
    </message>
    <message>
        <source>There are no backups yet. Before the first change of a day the catalogue is kept here as it was.</source>
        <translation>还没有备份。每天首次更改之前，花样库会按原样保留在此处。</translation>
    </message>
    <message>
        <source>The catalogue as it was before the first change of a day, or when something else took its place. What is there now is kept when you restore one.</source>
        <translation>每天首次更改之前的花样库，或被其他内容取代时的花样库。恢复备份时，当前内容会被保留。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date and time</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Designs</source>
        <translation>花样</translation>
    </message>
    <message>
        <source>Tagged</source>
        <translation>有标签</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Designs with at least one tag</source>
        <translation>至少有一个标签的花样</translation>
    </message>
    <message>
        <source>Designs with notes</source>
        <translation>有备注的花样</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>恢复…</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>Do you want to restore this backup?</source>
        <translation>要恢复此备份吗？</translation>
    </message>
    <message>
        <source>Tags, notes and stars will be as on %1. What is there now is kept as a backup.</source>
        <translation>标签、备注和收藏将恢复为 %1 的状态。当前内容会保留为备份。</translation>
    </message>
</context>
<context>
    <name>CardTexts</name>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 针</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 colors</source>
        <translation>
            <numerusform>%1 种颜色</numerusform>
        </translation>
    </message>
    <message>
        <source>tags: %1</source>
        <translation>标签：%1</translation>
    </message>
    <message>
        <source>favorite</source>
        <translation>已收藏</translation>
    </message>
</context>
<context>
    <name>CatalogueChoice</name>
    <message>
        <source>Work on this catalogue rather than the organizer&apos;s.</source>
        <translation>使用此花样库，而不是管理器的花样库。</translation>
    </message>
    <message>
        <source>The catalogue must be a file.</source>
        <translation>花样库必须是文件。</translation>
    </message>
    <message>
        <source>There is no catalogue &apos;%1&apos;.</source>
        <translation>花样库“%1”不存在。</translation>
    </message>
    <message>
        <source>There is no catalogue yet; &apos;hoopline-cli scan FOLDER&apos; makes one.</source>
        <translation>还没有花样库；“hoopline-cli scan 文件夹”会创建一个。</translation>
    </message>
    <message>
        <source>A catalogue that is scanned must be named &apos;%1&apos;: its pictures lie beside it.</source>
        <translation>要扫描的花样库必须命名为“%1”：其图片保存在旁边。</translation>
    </message>
    <message>
        <source>A new catalogue needs a new or empty folder: its pictures lie beside it.</source>
        <translation>新花样库需要新建的或空的文件夹：其图片保存在旁边。</translation>
    </message>
</context>
<context>
    <name>CatalogueFile</name>
    <message>
        <source>Failed to write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; is gone. Is its drive plugged in?</source>
        <translation>文件夹“%1”不见了。它所在的驱动器是否已连接？</translation>
    </message>
</context>
<context>
    <name>CatalogueKeeper</name>
    <message>
        <source>Your last changes could not be saved: %1</source>
        <translation>最近的更改无法保存：%1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Another program has changed the catalogue, and it cannot be read: %1</source>
        <translation>另一个程序更改了花样库，现在无法读取：%1</translation>
    </message>
    <message>
        <source>The catalogue was damaged by another program. It was replaced by what is shown here and kept as %1.</source>
        <translation>花样库被另一个程序损坏。它已由此处显示的内容替换，并保留为 %1。</translation>
    </message>
    <message numerus="yes">
        <source>The catalogue was damaged. %n design(s) could be taken over; the damaged file was kept as %1.</source>
        <translation>
            <numerusform>花样库已损坏。已恢复 %Ln 个花样；损坏的文件保留为 %1。</numerusform>
        </translation>
    </message>
    <message>
        <source>Another program had changed the catalogue. What it wrote was kept as %1.</source>
        <translation>另一个程序更改过花样库。它写入的内容保留为 %1。</translation>
    </message>
    <message>
        <source>Another program has changed the catalogue, which is shown now. Your changes that had not been saved were kept as %1.</source>
        <translation>另一个程序更改了花样库，现在显示的就是它。您尚未保存的更改保留为 %1。</translation>
    </message>
    <message>
        <source>The folder of the catalogue, %1, was not there, and an empty one was made. Is it on a drive that is not plugged in? Then quit, plug it in and start again.</source>
        <translation>花样库所在的文件夹 %1 不存在，已新建一个空文件夹。它是否位于未连接的驱动器上？如果是，请退出，连接驱动器后重新启动。</translation>
    </message>
    <message>
        <source>The copy could not be saved.</source>
        <translation>无法保存副本。</translation>
    </message>
    <message>
        <source>Save a copy...</source>
        <translation>保存副本…</translation>
    </message>
    <message>
        <source>Changes that had not been saved when the program ended are back.</source>
        <translation>程序结束时尚未保存的更改已恢复。</translation>
    </message>
    <message>
        <source>Backups...</source>
        <translation>备份…</translation>
    </message>
    <message>
        <source>No backup of the catalogue could be made: %1</source>
        <translation>无法备份花样库：%1</translation>
    </message>
    <message>
        <source>The backup of %1 was restored. What was there before is kept as a backup.</source>
        <translation>已恢复 %1 的备份。之前的内容已保留为备份。</translation>
    </message>
    <message>
        <source>Saved searches cannot be saved: %1</source>
        <translation>无法保存“保存的搜索”：%1</translation>
    </message>
</context>
<context>
    <name>CatalogueQuestions</name>
    <message>
        <source>The catalogue cannot be used.</source>
        <translation>花样库无法使用。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Your last changes could not be saved.</source>
        <translation>最近的更改无法保存。</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>不保存并退出</translation>
    </message>
    <message>
        <source>Save a copy of the catalogue</source>
        <translation>保存花样库副本</translation>
    </message>
    <message>
        <source>Catalogues (*.xml)</source>
        <translation>花样库 (*.xml)</translation>
    </message>
    <message>
        <source>Save a copy...</source>
        <translation>保存副本…</translation>
    </message>
</context>
<context>
    <name>CatalogueReport</name>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Stitches</source>
        <translation>针数</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>标签</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s)</source>
        <translation>
            <numerusform>%Ln 个花样</numerusform>
        </translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色数</translation>
    </message>
</context>
<context>
    <name>CatalogueWait</name>
    <message>
        <source>The window opens as soon as that is done.</source>
        <translation>完成后窗口将立即打开。</translation>
    </message>
    <message>
        <source>Your folders are being scanned.</source>
        <translation>正在扫描您的文件夹。</translation>
    </message>
    <message>
        <source>Another program is using your collection: %1, process %2.</source>
        <translation>另一个程序正在使用您的花样库：%1，进程 %2。</translation>
    </message>
    <message>
        <source>Another program is using your collection.</source>
        <translation>另一个程序正在使用您的花样库。</translation>
    </message>
</context>
<context>
    <name>ColorsBox</name>
    <message>
        <source>Colors</source>
        <translation>线色</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>颜色名称</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>色卡</translation>
    </message>
    <message>
        <source>undefined</source>
        <translation>未定义</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>What to do must be one of: %1.</source>
        <translation>要执行的操作必须是以下之一：%1。</translation>
    </message>
    <message>
        <source>Did you mean &apos;%1&apos;?</source>
        <translation>您是指“%1”吗？</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>显示版本。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>The option --%1 can be given only once.</source>
        <translation>选项 --%1 只能给出一次。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>意外的参数“%1”。</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>No command given.</source>
        <translation>未指定命令。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>意外的参数“%1”。</translation>
    </message>
    <message>
        <source>Unknown command &apos;%1&apos;.</source>
        <translation>未知命令“%1”。</translation>
    </message>
    <message>
        <source>The companion of Hoopline Organizer that needs no window.

Commands; each has a --help of its own:</source>
        <translation>Hoopline Organizer 的命令行工具，无需窗口。

命令（每个命令都有自己的 --help）：</translation>
    </message>
    <message>
        <source>Print the help of a command.</source>
        <translation>输出某个命令的帮助。</translation>
    </message>
</context>
<context>
    <name>CompletionsCommand</name>
    <message>
        <source>Print the completions of a shell.</source>
        <translation>输出 shell 的补全脚本。</translation>
    </message>
    <message>
        <source>Prints a script that lets the shell complete commands, options and files. The packages bring it along.</source>
        <translation>输出一个脚本，使 shell 能够补全命令、选项和文件。安装包中已包含。</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 针</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 colors</source>
        <translation>
            <numerusform>%1 种颜色</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>A quotation mark has no partner.</source>
        <translation>有一个引号没有配对。</translation>
    </message>
</context>
<context>
    <name>DataFolder</name>
    <message>
        <source>The folder of the catalogue, &apos;%1&apos;, is not there. Is its drive plugged in?</source>
        <translation>花样库所在的文件夹“%1”不存在。它所在的驱动器是否已连接？</translation>
    </message>
</context>
<context>
    <name>DesignBytes</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>文件已不存在。</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>这不是文件。</translation>
    </message>
    <message>
        <source>The file has changed since the last scan.</source>
        <translation>文件自上次扫描后已更改。</translation>
    </message>
</context>
<context>
    <name>DesignFactsPanel</name>
    <message>
        <source>Design size</source>
        <translation>花样尺寸</translation>
    </message>
    <message>
        <source>Hoop</source>
        <translation>绣框</translation>
    </message>
    <message>
        <source>Number of stitches</source>
        <translation>针数</translation>
    </message>
    <message>
        <source>Number of colors</source>
        <translation>颜色数</translation>
    </message>
    <message>
        <source>Thread</source>
        <translation>绣线</translation>
    </message>
    <message>
        <source>The screen does not tell how large it is: the true size is a guess.</source>
        <translation>显示器没有报告自己的尺寸：实际大小只是估计值。</translation>
    </message>
    <message>
        <source>no hoop fits</source>
        <translation>没有合适的绣框</translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>caption of a value</comment>
        <translation>%1：</translation>
    </message>
</context>
<context>
    <name>DesignFormat</name>
    <message>
        <source>Unknown field &apos;{%1}&apos;; there are %2.</source>
        <translation>未知字段“{%1}”；可用字段有 %2。</translation>
    </message>
</context>
<context>
    <name>DesignPicture</name>
    <message>
        <source>Longer side of the picture in pixels; 400 if not given.</source>
        <translation>图片较长边的像素数；未指定时为 400。</translation>
    </message>
    <message>
        <source>The size must be a number from 1 to %1.</source>
        <translation>尺寸必须是 1 到 %1 之间的数字。</translation>
    </message>
    <message>
        <source>%1: The design has no extent to show.</source>
        <translation>%1：该花样没有可显示的范围。</translation>
    </message>
    <message>
        <source>Paint a square card: on white, with a margin.</source>
        <translation>绘制方形卡片：白底、带边距。</translation>
    </message>
</context>
<context>
    <name>DesignPreparation</name>
    <message>
        <source>larger than %1 MB</source>
        <translation>大于 %1 MB</translation>
    </message>
</context>
<context>
    <name>DesignReport</name>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Stitches</source>
        <translation>针数</translation>
    </message>
    <message>
        <source>MD5</source>
        <translation>MD5</translation>
    </message>
    <message>
        <source>Thread %1</source>
        <translation>绣线 %1</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色数</translation>
    </message>
</context>
<context>
    <name>DesignSelection</name>
    <message>
        <source>The designs that match, as with list --search.</source>
        <translation>匹配的花样，与 list --search 相同。</translation>
    </message>
    <message>
        <source>Names on standard input end with a NUL rather than a line.</source>
        <translation>标准输入中的名称以 NUL 而不是换行结尾。</translation>
    </message>
    <message>
        <source>Choose designs by their names or by --search.</source>
        <translation>请按名称或用 --search 选择花样，二者选一。</translation>
    </message>
    <message>
        <source>No design given.</source>
        <translation>未指定花样。</translation>
    </message>
    <message>
        <source>A dash must be the only name of a design.</source>
        <translation>使用短横线时不能再给出其他花样名称。</translation>
    </message>
    <message>
        <source>--null is for names on standard input.</source>
        <translation>--null 用于标准输入中的名称。</translation>
    </message>
    <message>
        <source>%1 is not in the catalogue</source>
        <translation>%1 不在花样库中</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>未更改任何内容。</translation>
    </message>
    <message>
        <source>The search is wrong at character %1, &apos;%2&apos;: %3</source>
        <translation>搜索在第 %1 个字符处有误，“%2”：%3</translation>
    </message>
</context>
<context>
    <name>DesignTexts</name>
    <message>
        <source>%1 yd</source>
        <translation>%1 码</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 米</translation>
    </message>
</context>
<context>
    <name>DesignToolBar</name>
    <message>
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Previous design</source>
        <translation>上一个花样</translation>
    </message>
    <message>
        <source>Previous design (Left)</source>
        <translation>上一个花样（左箭头）</translation>
    </message>
    <message>
        <source>Next design</source>
        <translation>下一个花样</translation>
    </message>
    <message>
        <source>Next design (Right)</source>
        <translation>下一个花样（右箭头）</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Zoom out (-)</source>
        <translation>缩小（-）</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom in (+)</source>
        <translation>放大（+）</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>100% is the true size.</source>
        <translation>100% 为实际大小。</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合窗口</translation>
    </message>
    <message>
        <source>Show all of the design (0)</source>
        <translation>显示整个花样（0）</translation>
    </message>
    <message>
        <source>True size</source>
        <translation>实际大小</translation>
    </message>
    <message>
        <source>As large as it is sewn (1)</source>
        <translation>与绣出的大小相同（1）</translation>
    </message>
    <message>
        <source>Hoop</source>
        <translation>绣框</translation>
    </message>
    <message>
        <source>Show the smallest hoop around the design (H)</source>
        <translation>在花样周围显示最小的绣框（H）</translation>
    </message>
    <message>
        <source>Jumps</source>
        <translation>跳针</translation>
    </message>
    <message>
        <source>Show where the needle jumps without sewing (J)</source>
        <translation>显示跳针之处（J）</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>DesignView</name>
    <message>
        <source>Design</source>
        <translation>花样</translation>
    </message>
</context>
<context>
    <name>DesignWindow</name>
    <message>
        <source>Reading %1...</source>
        <translation>正在读取 %1…</translation>
    </message>
</context>
<context>
    <name>DirectoriesBox</name>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>&lt;center&gt;Drag &amp; drop&lt;br/&gt;the folder&lt;br/&gt;containing your&lt;br/&gt;embroidery files&lt;br/&gt;here.&lt;/center&gt;</source>
        <translation>&lt;center&gt;将存放&lt;br/&gt;绣花文件的&lt;br/&gt;文件夹&lt;br/&gt;拖放到此处。&lt;/center&gt;</translation>
    </message>
</context>
<context>
    <name>DirectoryModel</name>
    <message>
        <source>Directories</source>
        <translation>文件夹</translation>
    </message>
</context>
<context>
    <name>DuplicateCardDelegate</name>
    <message>
        <source>no tags</source>
        <translation>无标签</translation>
    </message>
    <message>
        <source>is kept</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>to the trash</source>
        <translation>移到回收站</translation>
    </message>
</context>
<context>
    <name>DuplicateCleaner</name>
    <message>
        <source>The design to keep is not as it should be. %1</source>
        <translation>要保留的花样有问题。%1</translation>
    </message>
    <message>
        <source>This is the design to keep itself, by way of a link.</source>
        <translation>这是通过链接指向的、要保留的花样本身。</translation>
    </message>
    <message>
        <source>It cannot be moved to the trash: %1</source>
        <translation>无法移到回收站：%1</translation>
    </message>
</context>
<context>
    <name>DuplicateGroupsModel</name>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%Ln 个文件，%1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DuplicateTexts</name>
    <message>
        <source>same content</source>
        <translation>内容相同</translation>
    </message>
    <message>
        <source>same stitches</source>
        <translation>针迹相同</translation>
    </message>
    <message>
        <source>nearly the same stitches</source>
        <translation>针迹几乎相同</translation>
    </message>
    <message>
        <source>Certain: these files are the same, byte by byte.</source>
        <translation>确定：这些文件逐字节相同。</translation>
    </message>
    <message>
        <source>Sure: other files, but every stitch is the same, as when a design was saved in another format. The colors may differ.</source>
        <translation>肯定：文件不同，但每一针都相同，例如同一花样另存为其他格式。颜色可能不同。</translation>
    </message>
    <message>
        <source>Very likely: no stitch differs by more than 0.2 mm, as when formats round differently. The colors and their changes may differ.</source>
        <translation>很可能：每一针相差不超过 0.2 毫米，例如各格式取整方式不同。颜色和换色可能不同。</translation>
    </message>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 针</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n color(s)</source>
        <translation>
            <numerusform>%Ln 种颜色</numerusform>
        </translation>
    </message>
    <message>
        <source>favorite</source>
        <translation>已收藏</translation>
    </message>
    <message>
        <source>Tags: %1</source>
        <translation>标签：%1</translation>
    </message>
    <message>
        <source>Notes: %1</source>
        <translation>备注：%1</translation>
    </message>
</context>
<context>
    <name>DuplicateWords</name>
    <message>
        <source>join duplicates</source>
        <translation>合并重复花样</translation>
    </message>
</context>
<context>
    <name>DuplicatesCommand</name>
    <message>
        <source>The same content:</source>
        <translation>内容相同：</translation>
    </message>
    <message>
        <source>The same stitches in other files:</source>
        <translation>不同文件中针迹相同：</translation>
    </message>
    <message>
        <source>Very likely the same design, stitches within 0.2 mm:</source>
        <translation>很可能是同一花样，针迹相差不超过 0.2 毫米：</translation>
    </message>
    <message>
        <source>Print the designs that are there more than once.</source>
        <translation>输出重复的花样。</translation>
    </message>
    <message>
        <source>Prints the designs of the catalogue that are there more than once: files of the same content, and files with the same stitches, such as a design in two formats. Changes nothing.</source>
        <translation>输出花样库中重复的花样：内容相同的文件，以及针迹相同的文件（例如同一花样的两种格式）。不作任何更改。</translation>
    </message>
    <message>
        <source>Print one JSON object per group, a line each.</source>
        <translation>每组输出一个 JSON 对象，各占一行。</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) could not be compared; they are missing, damaged, empty or have changed since the last scan.</source>
        <translation>
            <numerusform>%Ln 个花样无法比较：文件缺失、损坏、为空或自上次扫描后已更改。</numerusform>
        </translation>
    </message>
    <message>
        <source>Comparing designs</source>
        <translation>正在比较花样</translation>
    </message>
    <message numerus="yes">
        <source>%n group(s)</source>
        <translation>
            <numerusform>%Ln 组</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DuplicatesDialog</name>
    <message>
        <source>Duplicates</source>
        <translation>重复花样</translation>
    </message>
    <message>
        <source>The designs could not be compared.</source>
        <translation>无法比较花样。</translation>
    </message>
    <message>
        <source>The catalogue has changed in the meantime.</source>
        <translation>花样库在此期间已更改。</translation>
    </message>
    <message>
        <source>Close this window and find the duplicates again.</source>
        <translation>请关闭此窗口，然后重新查找重复花样。</translation>
    </message>
    <message>
        <source>No file was moved.</source>
        <translation>未移动任何文件。</translation>
    </message>
    <message>
        <source>The catalogue could not be saved, and with it what was said about these designs.</source>
        <translation>无法保存花样库，因此这些花样的标签和备注也无法保存。</translation>
    </message>
    <message numerus="yes">
        <source>Move %n file(s) to the trash?</source>
        <translation>
            <numerusform>将 %Ln 个文件移到回收站？</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept, with the tags, the notes and the star of all:
%1</source>
        <translation>保留以下文件，并合并全部的标签、备注和星标：
%1</translation>
    </message>
    <message>
        <source>Files can be taken back out of the trash; the catalogue then finds them with the next rescan.</source>
        <translation>文件可以从回收站还原；下次重新扫描时花样库会再次找到它们。</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) stayed where they were.</source>
        <translation>
            <numerusform>%Ln 个文件仍留在原处。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>…以及另外 %Ln 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Comparing designs...</source>
        <translation>正在比较花样…</translation>
    </message>
    <message>
        <source>Moving files to the trash...</source>
        <translation>正在将文件移到回收站…</translation>
    </message>
</context>
<context>
    <name>DuplicatesPage</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Groups of duplicates</source>
        <translation>重复花样分组</translation>
    </message>
    <message>
        <source>Designs of the group; the chosen one is kept</source>
        <translation>组内花样；所选的将保留</translation>
    </message>
    <message>
        <source>There are no duplicates.</source>
        <translation>没有重复的花样。</translation>
    </message>
    <message numerus="yes">
        <source>%n group(s)</source>
        <translation>
            <numerusform>%Ln 组</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) could not be compared.</source>
        <translation>
            <numerusform>%Ln 个花样无法比较。</numerusform>
        </translation>
    </message>
    <message>
        <source>They are missing, damaged, empty or have changed since the last scan.</source>
        <translation>文件缺失、损坏、为空或自上次扫描后已更改。</translation>
    </message>
    <message>
        <source>&amp;Keep the chosen one, the others to the trash...</source>
        <translation>保留所选，其余移到回收站(&amp;K)…</translation>
    </message>
    <message>
        <source>Moving to the trash...</source>
        <translation>正在移到回收站…</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message numerus="yes">
        <source>%n design(s)</source>
        <translation>
            <numerusform>%Ln 个花样</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EmptyHint</name>
    <message>
        <source>Add a folder with embroidery designs to begin.</source>
        <translation>请先添加一个包含绣花花样的文件夹。</translation>
    </message>
    <message>
        <source>No embroidery designs were found in your folders. Add another folder, or put designs there and rescan.</source>
        <translation>您的文件夹中没有找到绣花花样。请添加其他文件夹，或将花样放入其中后重新扫描。</translation>
    </message>
    <message>
        <source>No embroidery designs were found in this folder.</source>
        <translation>此文件夹中没有找到绣花花样。</translation>
    </message>
    <message>
        <source>No design matches the filter.</source>
        <translation>没有符合筛选条件的花样。</translation>
    </message>
    <message>
        <source>Add folder...</source>
        <translation>添加文件夹…</translation>
    </message>
    <message>
        <source>Show all designs</source>
        <translation>显示全部花样</translation>
    </message>
</context>
<context>
    <name>ExclusiveController</name>
    <message>
        <source>Another hoopline-cli is working on the catalogue.</source>
        <translation>另一个 hoopline-cli 正在使用花样库。</translation>
    </message>
    <message>
        <source>The catalogue was changed meanwhile. Nothing was saved.</source>
        <translation>花样库在此期间被更改。未保存任何内容。</translation>
    </message>
    <message>
        <source>Hoopline Organizer was started meanwhile. Nothing was saved.</source>
        <translation>在此期间启动了 Hoopline Organizer。未保存任何内容。</translation>
    </message>
    <message>
        <source>No backup of the catalogue could be made: %1</source>
        <translation>无法备份花样库：%1</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>Write tags, notes and stars, to take them along.</source>
        <translation>导出标签、备注和收藏，以便带走。</translation>
    </message>
    <message>
        <source>Writes the tags, notes and stars of the catalogue to a file, or to standard output: a line for each design that has any, known by its content, its path and its name. &apos;hoopline-cli import&apos; reads it.</source>
        <translation>将花样库的标签、备注和收藏写入文件或标准输出：每个带有这些内容的花样占一行，以内容、路径和名称标识。可用“hoopline-cli import”读取。</translation>
    </message>
    <message>
        <source>Write JSON, as without it for a FILE that ends in .json.</source>
        <translation>写成 JSON；文件名以 .json 结尾时即使不加此选项也是如此。</translation>
    </message>
    <message>
        <source>Write comma-separated values, as for all others.</source>
        <translation>写成逗号分隔值，其他文件默认如此。</translation>
    </message>
    <message>
        <source>Replace a file that is there.</source>
        <translation>替换已有的文件。</translation>
    </message>
    <message>
        <source>Choose one of --json and --csv.</source>
        <translation>请在 --json 和 --csv 中选择一个。</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s)</source>
        <translation>
            <numerusform>%Ln 个花样</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message numerus="yes">
        <source>%n file(s) will be copied.</source>
        <translation>
            <numerusform>将复制 %Ln 个文件。</numerusform>
        </translation>
    </message>
    <message>
        <source>No removable USB drive found</source>
        <translation>未找到可移动 USB 驱动器</translation>
    </message>
    <message>
        <source>Failed to copy file %1</source>
        <translation>无法复制文件 %1</translation>
    </message>
    <message>
        <source>Cannot copy file to %1</source>
        <translation>无法将文件复制到 %1</translation>
    </message>
    <message>
        <source>Copying file %1...</source>
        <translation>正在复制 %1…</translation>
    </message>
    <message>
        <source>File %1 of %2, %3 of %4 MB</source>
        <translation>第 %1 个文件，共 %2 个；%3 / %4 MB</translation>
    </message>
    <message>
        <source>File %1 of %2, %3 of %4 KB</source>
        <translation>第 %1 个文件，共 %2 个；%3 / %4 KB</translation>
    </message>
    <message>
        <source>Looking for drives...</source>
        <translation>正在查找驱动器…</translation>
    </message>
    <message>
        <source>Copying to the drive...</source>
        <translation>正在复制到驱动器…</translation>
    </message>
</context>
<context>
    <name>ExportDialogUI</name>
    <message>
        <source>Transfer embroidery files to machine</source>
        <translation>将绣花文件传输到绣花机</translation>
    </message>
    <message>
        <source>Select target:</source>
        <translation>选择目标：</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>FabricButton</name>
    <message>
        <source>Fabric</source>
        <translation>面料</translation>
    </message>
    <message>
        <source>The color of the fabric</source>
        <translation>面料的颜色</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>亚麻色</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>沙色</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>玫瑰色</translation>
    </message>
    <message>
        <source>Sage</source>
        <translation>鼠尾草绿</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>天蓝色</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>Denim</source>
        <translation>牛仔蓝</translation>
    </message>
    <message>
        <source>Burgundy</source>
        <translation>酒红色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Other color...</source>
        <translation>其他颜色…</translation>
    </message>
</context>
<context>
    <name>FavoriteCommand</name>
    <message>
        <source>Make designs favorites, or no longer.</source>
        <translation>将花样设为收藏，或取消收藏。</translation>
    </message>
    <message>
        <source>Makes the designs favorites. A dash reads their names from standard input.</source>
        <translation>将花样设为收藏。短横线表示从标准输入读取花样名称。</translation>
    </message>
    <message>
        <source>They are no longer favorites.</source>
        <translation>取消收藏。</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>any</source>
        <translation>不限</translation>
    </message>
    <message>
        <source>Max. size (%1):</source>
        <translation>最大尺寸（%1）：</translation>
    </message>
    <message>
        <source>in</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>毫米</translation>
    </message>
</context>
<context>
    <name>FilterBarUI</name>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>File type:</source>
        <translation>文件类型：</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Max. size (%1):</source>
        <translation>最大尺寸（%1）：</translation>
    </message>
    <message>
        <source>Maximum width</source>
        <translation>最大宽度</translation>
    </message>
    <message>
        <source>x</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Maximum height</source>
        <translation>最大高度</translation>
    </message>
    <message>
        <source>Search text:</source>
        <translation>搜索文字：</translation>
    </message>
    <message>
        <source>Search text</source>
        <translation>搜索文字</translation>
    </message>
    <message>
        <source>Clear the search text</source>
        <translation>清除搜索文字</translation>
    </message>
    <message>
        <source>Show favorites only</source>
        <translation>仅显示收藏</translation>
    </message>
    <message>
        <source>Apply the filter again</source>
        <translation>重新应用筛选</translation>
    </message>
    <message>
        <source>What can be searched for</source>
        <translation>可以搜索的内容</translation>
    </message>
</context>
<context>
    <name>FolderChangeNotice</name>
    <message>
        <source>Rescan</source>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>The folder %1 has changed.</source>
        <translation>文件夹 %1 已更改。</translation>
    </message>
    <message numerus="yes">
        <source>%n folders have changed.</source>
        <translation>
            <numerusform>%Ln 个文件夹已更改。</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the names of folders</comment>
        <translation>、</translation>
    </message>
    <message>
        <source>The folders %1 and %2 have changed.</source>
        <translation>文件夹 %1 和 %2 已更改。</translation>
    </message>
    <message>
        <source>Looking through the folders...</source>
        <translation>正在查看文件夹…</translation>
    </message>
</context>
<context>
    <name>FoldersCommand</name>
    <message>
        <source>&apos;%1&apos; is none of the catalogue&apos;s folders</source>
        <translation>“%1”不是花样库的文件夹</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) in there have tags, notes or a star, which &apos;hoopline-cli export&apos; keeps. --force removes the folders all the same. Nothing was changed.</source>
        <translation>
            <numerusform>其中 %Ln 个花样带有标签、备注或收藏，可用“hoopline-cli export”保存。--force 仍会移除这些文件夹。未更改任何内容。</numerusform>
        </translation>
    </message>
    <message>
        <source>List the folders of the catalogue, or take some out.</source>
        <translation>列出花样库的文件夹，或移除其中一些。</translation>
    </message>
    <message>
        <source>Lists the folders of the catalogue, or takes some and their designs out of it. On the disk nothing is changed.</source>
        <translation>列出花样库的文件夹，或将其中一些连同其花样从花样库移除。磁盘上的内容不变。</translation>
    </message>
    <message>
        <source>End each folder with a NUL rather than a line.</source>
        <translation>每个文件夹以 NUL 而不是换行结尾。</translation>
    </message>
    <message>
        <source>Remove folders though tags, notes or stars go with them.</source>
        <translation>即使会一并失去标签、备注或收藏，也移除文件夹。</translation>
    </message>
    <message>
        <source>No folder given.</source>
        <translation>未指定文件夹。</translation>
    </message>
    <message>
        <source>remove directory</source>
        <translation>移除文件夹</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) left the catalogue</source>
        <translation>
            <numerusform>%Ln 个花样已从花样库移除</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GridEmbroideryItem</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
</context>
<context>
    <name>GridGraphicsView</name>
    <message>
        <source>Designs</source>
        <translation>花样</translation>
    </message>
    <message>
        <source>The arrow keys choose a design, Return opens it, Space enlarges it, F marks it as a favorite.</source>
        <translation>方向键选择花样，回车键打开，空格键放大，F 键标记为收藏。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Selects this design alone</source>
        <translation>只选择此花样</translation>
    </message>
    <message>
        <source>Selects this design beside others, or no longer does</source>
        <translation>将此花样加入选择，或取消选择</translation>
    </message>
    <message>
        <source>Opens the design in its window</source>
        <translation>在单独的窗口中打开花样</translation>
    </message>
    <message>
        <source>Marks the design as a favorite, or no longer does</source>
        <translation>收藏此花样，或取消收藏</translation>
    </message>
</context>
<context>
    <name>GzipFormat</name>
    <message>
        <source>The compressed file is damaged.</source>
        <translation>压缩文件已损坏。</translation>
    </message>
</context>
<context>
    <name>ImportCommand</name>
    <message>
        <source>%1 is not in the catalogue</source>
        <translation>%1 不在花样库中</translation>
    </message>
    <message>
        <source>Bring exported tags, notes and stars into the catalogue.</source>
        <translation>将导出的标签、备注和收藏导入花样库。</translation>
    </message>
    <message>
        <source>Brings the tags, notes and stars of a file that &apos;hoopline-cli export&apos; has written, or of standard input, to the designs of the same content, or else of the same path. What is there stays: notes are written below those that differ.</source>
        <translation>将“hoopline-cli export”所写文件或标准输入中的标签、备注和收藏带给内容相同的花样，否则带给路径相同的花样。已有内容保持不变：不同的备注会写在原有备注下方。</translation>
    </message>
    <message>
        <source>Only tell what would happen.</source>
        <translation>仅说明将会发生什么。</translation>
    </message>
    <message>
        <source>No file given.</source>
        <translation>未指定文件。</translation>
    </message>
</context>
<context>
    <name>InspectCommand</name>
    <message>
        <source>Reads designs and tells about them.</source>
        <translation>读取花样并显示其信息。</translation>
    </message>
    <message>
        <source>Print one JSON object per file, a line each.</source>
        <translation>每个文件输出一个 JSON 对象，每个占一行。</translation>
    </message>
    <message>
        <source>With --json, list every point.</source>
        <translation>与 --json 一起使用，列出每个点。</translation>
    </message>
    <message>
        <source>No file given.</source>
        <translation>未指定文件。</translation>
    </message>
    <message>
        <source>Only one file can be rendered at a time.</source>
        <translation>一次只能渲染一个文件。</translation>
    </message>
    <message>
        <source>Read designs and tell about them.</source>
        <translation>读取花样并显示其信息。</translation>
    </message>
    <message>
        <source>With --render, replace a file that is there.</source>
        <translation>与 --render 一起使用时，替换已有的文件。</translation>
    </message>
    <message>
        <source>Write the preview of the one file as PNG; a dash is standard output.</source>
        <translation>将该文件的预览写为 PNG；短横线表示标准输出。</translation>
    </message>
    <message>
        <source>Choose one of --json and a picture on standard output.</source>
        <translation>请在 --json 和输出到标准输出的图片中选择一个。</translation>
    </message>
</context>
<context>
    <name>ListCommand</name>
    <message>
        <source>The folder must not be empty.</source>
        <translation>文件夹不能为空。</translation>
    </message>
    <message>
        <source>The size must look like 100x130.</source>
        <translation>尺寸的格式应为 100x130。</translation>
    </message>
    <message>
        <source>Only designs below this folder.</source>
        <translation>仅此文件夹下的花样。</translation>
    </message>
    <message>
        <source>Only designs with this tag.</source>
        <translation>仅带此标签的花样。</translation>
    </message>
    <message>
        <source>Only designs of this format, for instance dst.</source>
        <translation>仅此格式的花样，例如 dst。</translation>
    </message>
    <message>
        <source>Print one JSON object per design, a line each.</source>
        <translation>每个花样输出一个 JSON 对象，每个占一行。</translation>
    </message>
    <message>
        <source>Print comma-separated values.</source>
        <translation>输出逗号分隔的值。</translation>
    </message>
    <message>
        <source>Unknown type &apos;%1&apos;; there are %2.</source>
        <translation>未知格式“%1”；可用的格式有 %2。</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; is not in the catalogue.</source>
        <translation>文件夹“%1”不在花样库中。</translation>
    </message>
    <message>
        <source>Print the designs of the catalogue.</source>
        <translation>输出花样库中的花样。</translation>
    </message>
    <message>
        <source>Prints the designs of the catalogue, narrowed as in the organizer.</source>
        <translation>输出花样库中的花样，筛选方式与程序相同。</translation>
    </message>
    <message>
        <source>Only designs that fit into this many millimeters.</source>
        <translation>仅尺寸不超过该毫米数的花样。</translation>
    </message>
    <message>
        <source>Only favorites.</source>
        <translation>仅收藏的花样。</translation>
    </message>
    <message>
        <source>The order must be one of %1, perhaps with :desc behind it.</source>
        <translation>排序必须是 %1 之一，后面可以加 :desc。</translation>
    </message>
    <message>
        <source>Only designs that match, as in the search field: text in the file name or the notes, and fields such as %1. The manual tells them all.</source>
        <translation>仅显示匹配的花样，与搜索框相同：文件名或备注中的文字，以及 %1 之类的字段。手册列出了全部字段。</translation>
    </message>
    <message>
        <source>Order by %1; with :desc behind it downwards.</source>
        <translation>按 %1 排序；后面加 :desc 为降序。</translation>
    </message>
    <message>
        <source>Choose one of %1.</source>
        <translation>请在 %1 中选择一个。</translation>
    </message>
    <message>
        <source>Print a line of this form per design, for instance %1.</source>
        <translation>每个花样输出一行此格式的文本，例如 %1。</translation>
    </message>
    <message>
        <source>Print only how many designs there are.</source>
        <translation>仅输出花样的数量。</translation>
    </message>
    <message>
        <source>Print the files, or lines of --format, each with a NUL behind it.</source>
        <translation>输出文件或 --format 的行，每项以 NUL 结尾。</translation>
    </message>
</context>
<context>
    <name>LocaleAwareFunctions</name>
    <message>
        <source>%1&quot; × %2&quot;</source>
        <translation>%1 × %2 英寸</translation>
    </message>
    <message>
        <source>%1 mm × %2 mm</source>
        <translation>%1 × %2 毫米</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Loading ...</source>
        <translation>正在加载…</translation>
    </message>
    <message>
        <source>Number of stitches: 99 mm x 99 mm</source>
        <translation>绣花花样的总针数：99 毫米 × 99 毫米</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>选择要添加的文件夹</translation>
    </message>
    <message>
        <source>Remove selected folder from list?</source>
        <translation>从列表中移除所选文件夹？</translation>
    </message>
    <message>
        <source>No embroidery files selected!</source>
        <translation>未选择绣花文件！</translation>
    </message>
    <message>
        <source>Please select the files you want to transfer to your embroidery machine.</source>
        <translation>请选择要传输到绣花机的文件。</translation>
    </message>
    <message>
        <source>&amp;Add folder...</source>
        <translation>添加文件夹(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Remove folder</source>
        <translation>移除文件夹(&amp;R)</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>&amp;Zoom in</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Zoom out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Transfer to machine</source>
        <translation>传输到绣花机</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>重新扫描(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>正在扫描…</translation>
    </message>
    <message>
        <source>&amp;Open design</source>
        <translation>打开花样(&amp;O)</translation>
    </message>
    <message>
        <source>Removing the folder...</source>
        <translation>正在移除文件夹…</translation>
    </message>
    <message>
        <source>Find &amp;duplicates...</source>
        <translation>查找重复花样(&amp;D)…</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>tool tip and key</comment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Add a folder with embroidery designs</source>
        <translation>添加存放绣花花样的文件夹</translation>
    </message>
    <message>
        <source>Remove folder</source>
        <translation>移除文件夹</translation>
    </message>
    <message>
        <source>Take the selected folder off the list; its files stay</source>
        <translation>从列表中移除所选文件夹；其中的文件保留</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>Look for new, changed and missing designs</source>
        <translation>查找新增、更改和缺失的花样</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Make the cards smaller</source>
        <translation>缩小卡片</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Make the cards larger</source>
        <translation>放大卡片</translation>
    </message>
    <message>
        <source>Copy the selected designs to the drive of your machine</source>
        <translation>将所选花样复制到绣花机的驱动器</translation>
    </message>
    <message>
        <source>Tutorials</source>
        <translation>教程</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>打开手册</translation>
    </message>
    <message>
        <source>Re&amp;scan</source>
        <translation>重新扫描(&amp;S)</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Select &amp;nothing</source>
        <translation>取消选择(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Favorite</source>
        <translation>收藏(&amp;F)</translation>
    </message>
    <message>
        <source>Edit &amp;tags</source>
        <translation>编辑标签(&amp;T)</translation>
    </message>
    <message>
        <source>Sea&amp;rch</source>
        <translation>搜索(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Normal size</source>
        <translation>正常大小(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Enlarged preview</source>
        <translation>放大预览(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Folders and tags</source>
        <translation>文件夹和标签(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>属性(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Backups...</source>
        <translation>备份(&amp;B)…</translation>
    </message>
    <message>
        <source>The backup could not be restored.</source>
        <translation>无法恢复备份。</translation>
    </message>
</context>
<context>
    <name>NoteCommand</name>
    <message>
        <source>Write notes on designs.</source>
        <translation>为花样写备注。</translation>
    </message>
    <message>
        <source>Writes notes on the designs. A dash reads the text, or the names of the designs, from standard input. Where there are other notes nothing is changed until you say what is to become of them.</source>
        <translation>为花样写备注。短横线表示从标准输入读取文本或花样名称。如果已有其他备注，在您说明如何处理之前不会更改任何内容。</translation>
    </message>
    <message>
        <source>Write below the notes that are there.</source>
        <translation>写在已有备注的下方。</translation>
    </message>
    <message>
        <source>Replace the notes that are there.</source>
        <translation>替换已有的备注。</translation>
    </message>
    <message>
        <source>No text given.</source>
        <translation>未指定文本。</translation>
    </message>
    <message>
        <source>Choose one of --append and --replace.</source>
        <translation>请在 --append 和 --replace 中选择一个。</translation>
    </message>
    <message>
        <source>Only one thing can come from standard input.</source>
        <translation>标准输入只能提供一项内容。</translation>
    </message>
    <message>
        <source>%1 has other notes; --append or --replace says what becomes of them. Nothing was changed.</source>
        <translation>%1 已有其他备注；请用 --append 或 --replace 说明如何处理。未更改任何内容。</translation>
    </message>
</context>
<context>
    <name>NoticeRow</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>关闭此消息</translation>
    </message>
</context>
<context>
    <name>OrganiserGuard</name>
    <message>
        <source>Hoopline Organizer is running. Close it first, or do it in its window.</source>
        <translation>Hoopline Organizer 正在运行。请先关闭它，或在其窗口中操作。</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>The output must not bear the name of a design: %1</source>
        <translation>输出不能使用花样文件的名称：%1</translation>
    </message>
    <message>
        <source>The output must not replace what is read: %1</source>
        <translation>输出不能替换正在读取的文件：%1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder</source>
        <translation>“%1”是一个文件夹</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists; --force replaces it</source>
        <translation>“%1”已存在；--force 将替换它</translation>
    </message>
    <message>
        <source>Failed to write %1: the folder &apos;%2&apos; is not there</source>
        <translation>无法写入 %1：文件夹“%2”不存在</translation>
    </message>
</context>
<context>
    <name>PathOpener</name>
    <message>
        <source>Not a design that can be shown: %1</source>
        <translation>无法显示，不是可识别的花样：%1</translation>
    </message>
    <message numerus="yes">
        <source>Add %n folder(s) to your collection?</source>
        <translation>
            <numerusform>将这 %Ln 个文件夹加入您的花样库？</numerusform>
        </translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) were not read yet. Rescan the folders?</source>
        <translation>
            <numerusform>有 %Ln 个花样尚未读取。要重新扫描文件夹吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>Add the folder of &apos;%1&apos; to your collection?</source>
        <translation>将“%1”所在的文件夹加入您的花样库？</translation>
    </message>
</context>
<context>
    <name>PdfFile</name>
    <message>
        <source>Failed to write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>PlaybackBar</name>
    <message>
        <source>One stitch back</source>
        <translation>后退一针</translation>
    </message>
    <message>
        <source>One stitch back (comma)</source>
        <translation>后退一针（逗号）</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>One stitch forward</source>
        <translation>前进一针</translation>
    </message>
    <message>
        <source>One stitch forward (period)</source>
        <translation>前进一针（句点）</translation>
    </message>
    <message>
        <source>%1 stitches/s</source>
        <translation>%1 针/秒</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>%1 (Space)</source>
        <translation>%1（空格键）</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>use imperial units (inch)</source>
        <translation>使用英制单位（英寸）</translation>
    </message>
    <message>
        <source>Tags, notes and design previews are stored in this directory:</source>
        <translation>标签、备注和花样预览保存在此文件夹中：</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Updates &amp;&amp; Privacy</source>
        <translation>更新与隐私</translation>
    </message>
    <message>
        <source>&lt;b&gt;Hoopline Organizer updates&lt;/b&gt;</source>
        <translation>&lt;b&gt;Hoopline Organizer 更新&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <source>Include beta updates (always enabled for beta versions)</source>
        <translation>包括测试版更新（测试版始终启用）</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Please help us to improve Hoopline Organizer!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;We&apos;d like to improve Hoopline Organizer - making it a better tool for you. To do this we need some more information about how people are using our tools.&lt;/p&gt;&lt;p&gt;By enabling this option you agree to transmit the following data. As you see no private or personal data is transferred:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Number of CPU cores, memory, display size&lt;/li&gt;&lt;li&gt;Operating system (type, version)&lt;/li&gt;&lt;li&gt;Application: Version, timings&lt;/li&gt;&lt;li&gt;Random user indentifier (%1)&lt;/li&gt;&lt;li&gt;Days since application was installed&lt;/li&gt;&lt;li&gt;File information (format, num. stitches)&lt;/li&gt;&lt;li&gt;Do not track status&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Please check our &lt;a href=&quot;%2&quot;&gt;privacy policy&lt;/a&gt; for details.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;请帮助我们改进 Hoopline Organizer！&lt;/b&gt;&lt;/p&gt;&lt;p&gt;我们希望改进 Hoopline Organizer，让它更适合您使用。为此，我们需要更多地了解用户如何使用我们的工具。&lt;/p&gt;&lt;p&gt;启用此选项即表示您同意传输以下数据。如您所见，不会传输任何隐私或个人数据：&lt;/p&gt;&lt;ul&gt;&lt;li&gt;处理器核心数、内存、显示器尺寸&lt;/li&gt;&lt;li&gt;操作系统（类型、版本）&lt;/li&gt;&lt;li&gt;应用程序：版本、耗时&lt;/li&gt;&lt;li&gt;随机用户标识（%1）&lt;/li&gt;&lt;li&gt;安装后的天数&lt;/li&gt;&lt;li&gt;文件信息（格式、针数）&lt;/li&gt;&lt;li&gt;“请勿跟踪”状态&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;详情请参阅我们的&lt;a href=&quot;%2&quot;&gt;隐私政策&lt;/a&gt;。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Enable data collection</source>
        <translation>启用数据收集</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Forget...</source>
        <translation>忘记…</translation>
    </message>
    <message numerus="yes">
        <source>The tags, notes and stars of %n design(s) that left the catalogue are remembered. Designs that come back get them back.</source>
        <translation>
            <numerusform>已记住 %n 个离开花样库的花样的标签、备注和收藏。花样回到花样库时会恢复这些内容。</numerusform>
        </translation>
    </message>
    <message>
        <source>The tags, notes and stars of designs that leave the catalogue are remembered. For now there are none.</source>
        <translation>离开花样库的花样的标签、备注和收藏会被记住。目前没有。</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to forget the tags, notes and stars of %n design(s)?</source>
        <translation>
            <numerusform>要忘记 %n 个花样的标签、备注和收藏吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>This cannot be undone. Designs in the catalogue keep theirs.</source>
        <translation>此操作无法撤销。花样库中的花样不受影响。</translation>
    </message>
</context>
<context>
    <name>PreviewSheet</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>ProgramArguments</name>
    <message>
        <source>Usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>未知选项“%1”。</translation>
    </message>
    <message>
        <source>Browse, tag and transfer machine-embroidery designs.
A design is shown in the window; a folder that is new is offered for adding.
A second start passes them on to the window that is open.

Options:
  -h, --help        Print this help.
  -V, --version     Print the version.
  --language=CODE   Use this language: en, de or zh-CN.
  --do-not-track    Turn the collection of usage data off.
  --flushsettings   Forget all settings and exit.
  --report-crash    Only offer to send the report of a crash.
</source>
        <translation>浏览、标记机绣花样并传输到绣花机。
指定花样时在窗口中显示；指定新文件夹时询问是否添加。
再次启动时会转交给已打开的窗口。

选项：
  -h, --help        输出此帮助。
  -V, --version     输出版本。
  --language=CODE   使用此语言：en、de 或 zh-CN。
  --do-not-track    关闭使用数据的收集。
  --flushsettings   清除所有设置并退出。
  --report-crash    仅询问是否发送崩溃报告。
</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
</context>
<context>
    <name>ProjectController</name>
    <message>
        <source>add directory</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>remove directory</source>
        <translation>移除文件夹</translation>
    </message>
</context>
<context>
    <name>PropertiesBox</name>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Design size</source>
        <translation>花样尺寸</translation>
    </message>
    <message>
        <source>Number of stitches</source>
        <translation>针数</translation>
    </message>
    <message>
        <source>Number of colors</source>
        <translation>颜色数</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>标签</translation>
    </message>
    <message numerus="yes">
        <source>%n files selected</source>
        <translation>
            <numerusform>已选择 %Ln 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>no file selected</source>
        <translation>未选择文件</translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>caption of a value</comment>
        <translation>%1：</translation>
    </message>
</context>
<context>
    <name>PropertyEdit</name>
    <message>
        <source>multiple values</source>
        <translation>多个值</translation>
    </message>
    <message>
        <source>property editor: type conflict in multi-selection&apos;</source>
        <translation>属性编辑器：多选中的类型冲突</translation>
    </message>
    <message>
        <source>&apos;%1&apos; change</source>
        <translation>更改“%1”</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>XML parser error: %1 (line %2)</source>
        <translation>XML 解析错误：%1（第 %2 行）</translation>
    </message>
    <message>
        <source>Unknown list element &apos;%1&apos;</source>
        <translation>未知的列表元素“%1”</translation>
    </message>
    <message>
        <source>Failed to open file &apos;%1&apos;</source>
        <translation>无法打开文件“%1”</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a Hoopline Organizer project file</source>
        <translation>“%1”不是 Hoopline Organizer 项目文件</translation>
    </message>
    <message>
        <source>Failed to read file &apos;%1&apos;: %2</source>
        <translation>无法读取文件“%1”：%2</translation>
    </message>
</context>
<context>
    <name>Query</name>
    <message>
        <source>a range needs at least one end, as in 50..80</source>
        <translation>范围至少需要一端，例如 50..80</translation>
    </message>
    <message>
        <source>there is nothing behind &apos;%1&apos;</source>
        <translation>“%1”后面没有内容</translation>
    </message>
    <message>
        <source>the range begins behind its end</source>
        <translation>范围的起点大于终点</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no whole number</source>
        <translation>“%1”不是整数</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no length such as 100, 12.5cm or 4in</source>
        <translation>“%1”不是长度，例如 100、12.5cm 或 4in</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no size such as 130x180 or 5x7in</source>
        <translation>“%1”不是尺寸，例如 130x180 或 5x7in</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no date such as 2024, 2024-05 or 2024-05-31</source>
        <translation>“%1”不是日期，例如 2024、2024-05 或 2024-05-31</translation>
    </message>
    <message>
        <source>%1: what is it to be? For instance %2</source>
        <translation>%1：请输入内容，例如 %2</translation>
    </message>
    <message>
        <source>&apos;%1:&apos; is searched as text. Is &apos;%2:&apos; meant?</source>
        <translation>“%1:”按文字搜索。是否应为“%2:”？</translation>
    </message>
    <message>
        <source>bear this tag</source>
        <translation>带有此标签</translation>
    </message>
    <message>
        <source>have this in their name</source>
        <translation>名称中包含此文字</translation>
    </message>
    <message>
        <source>lie in a folder with this in its path</source>
        <translation>所在文件夹的路径包含此文字</translation>
    </message>
    <message>
        <source>are of this format</source>
        <translation>为此格式</translation>
    </message>
    <message>
        <source>have so many stitches</source>
        <translation>针数如此</translation>
    </message>
    <message>
        <source>have so many thread colors</source>
        <translation>线色数如此</translation>
    </message>
    <message>
        <source>are so wide, in millimeters or with &apos;in&apos; in inches</source>
        <translation>宽度如此，单位毫米，加 in 为英寸</translation>
    </message>
    <message>
        <source>are so high</source>
        <translation>高度如此</translation>
    </message>
    <message>
        <source>fit into this hoop, also turned</source>
        <translation>可放入此绣框，也可旋转</translation>
    </message>
    <message>
        <source>have a thread near this color, also as #c03020</source>
        <translation>含有接近此颜色的线，也可写作 #c03020</translation>
    </message>
    <message>
        <source>have a thread with this in its name or chart</source>
        <translation>线的名称或色卡包含此文字</translation>
    </message>
    <message>
        <source>have a file changed within a week, also as 2024-05</source>
        <translation>文件在一周内修改过，也可写作 2024-05</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of %2</source>
        <translation>“%1”不是以下之一：%2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no color such as red or #c03020</source>
        <translation>“%1”不是颜色，例如：红 或 #c03020</translation>
    </message>
    <message>
        <source>are favorites; also untagged, duplicate, unreadable</source>
        <translation>是收藏；也可用 untagged、duplicate、unreadable</translation>
    </message>
</context>
<context>
    <name>ReadDesign</name>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>There are no stitches in this design.</source>
        <translation>此花样中没有针迹。</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>文件已不存在。</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>这不是文件。</translation>
    </message>
    <message>
        <source>The file is damaged or not what its name says.</source>
        <translation>文件已损坏，或与其名称所示的类型不符。</translation>
    </message>
    <message>
        <source>There is not enough memory for this design.</source>
        <translation>内存不足，无法打开此花样。</translation>
    </message>
</context>
<context>
    <name>Reconnection</name>
    <message>
        <source>Looking for moved designs</source>
        <translation>正在查找已移动的花样</translation>
    </message>
</context>
<context>
    <name>RestoreCommand</name>
    <message>
        <source>Put a backup into the place of the catalogue.</source>
        <translation>用备份替换花样库。</translation>
    </message>
    <message>
        <source>Puts a backup, or another copy of a catalogue, into the place of the catalogue. The catalogue that was there is kept among the backups, and its path printed.</source>
        <translation>用备份或花样库的其他副本替换花样库。原有花样库会保留在备份中，并输出其路径。</translation>
    </message>
    <message>
        <source>No file given.</source>
        <translation>未指定文件。</translation>
    </message>
    <message>
        <source>Only one file can be given.</source>
        <translation>只能指定一个文件。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no whole catalogue.</source>
        <translation>“%1”不是完整的花样库。</translation>
    </message>
    <message>
        <source>The saved searches of the backup could not be kept: %1</source>
        <translation>无法保留备份中保存的搜索：%1</translation>
    </message>
</context>
<context>
    <name>SavedSearches</name>
    <message>
        <source>A saved search needs a name.</source>
        <translation>保存的搜索需要名称。</translation>
    </message>
    <message>
        <source>There is a saved search named &apos;%1&apos; already.</source>
        <translation>已有名为“%1”的保存的搜索。</translation>
    </message>
</context>
<context>
    <name>SavedSearchesBox</name>
    <message>
        <source>Saved searches</source>
        <translation>保存的搜索</translation>
    </message>
    <message>
        <source>Save search</source>
        <translation>保存搜索</translation>
    </message>
    <message>
        <source>Rename saved search</source>
        <translation>重命名保存的搜索</translation>
    </message>
    <message>
        <source>Remove saved search</source>
        <translation>移除保存的搜索</translation>
    </message>
    <message>
        <source>Type a search above the designs and save it to find it here.</source>
        <translation>在花样上方输入并保存的搜索会显示在这里。</translation>
    </message>
    <message>
        <source>Remove the saved search &apos;%1&apos;?</source>
        <translation>移除保存的搜索“%1”？</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
</context>
<context>
    <name>ScanCommand</name>
    <message>
        <source>Adds the folders to the catalogue and brings it into line with the disk. Without a folder it rescans the folders that are there.</source>
        <translation>将文件夹加入花样库，并使花样库与磁盘保持一致。不指定文件夹时，重新扫描已有的文件夹。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>“%1”不是文件夹</translation>
    </message>
    <message>
        <source>Add folders to the catalogue, bring it into line with the disk.</source>
        <translation>将文件夹加入花样库，并使其与磁盘保持一致。</translation>
    </message>
    <message>
        <source>Go on while a folder is missing or suddenly empty; its designs leave the catalogue.</source>
        <translation>即使文件夹缺失或突然变空也继续；其中的花样将从花样库中移除。</translation>
    </message>
    <message>
        <source>Only tell what would happen.</source>
        <translation>仅说明将会发生什么。</translation>
    </message>
    <message>
        <source>Tell it as JSON objects, a line each.</source>
        <translation>以 JSON 对象输出，每个占一行。</translation>
    </message>
</context>
<context>
    <name>ScanNotice</name>
    <message>
        <source>Nothing has changed.</source>
        <translation>没有变化。</translation>
    </message>
    <message>
        <source>The scan was stopped.</source>
        <translation>扫描已停止。</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>已停止：%1</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file and reason</comment>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>新增 %Ln 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>更改 %Ln 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n moved</source>
        <translation>
            <numerusform>移动 %Ln 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gone</source>
        <translation>
            <numerusform>消失 %Ln 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not readable</source>
        <translation>
            <numerusform>无法读取 %Ln 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>跳过 %Ln 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not read yet</source>
        <translation>
            <numerusform>尚未读取 %Ln 个</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the counts of a scan</comment>
        <translation>，</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>以及另外 %Ln 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>%Ln 个文件无法读取。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanOutput</name>
    <message numerus="yes">
        <source>Stopped; %n new design(s) are still to be read.</source>
        <translation>
            <numerusform>已停止；还有 %Ln 个新花样待读取。</numerusform>
        </translation>
    </message>
    <message>
        <source>left out, the name is no valid text</source>
        <translation>已跳过，名称不是有效的文本</translation>
    </message>
</context>
<context>
    <name>ScanReportDialog</name>
    <message>
        <source>Result of the scan</source>
        <translation>扫描结果</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>复制列表</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>已跳过</translation>
    </message>
    <message>
        <source>The name is not valid text.</source>
        <translation>名称不是有效的文本。</translation>
    </message>
    <message>
        <source>Not read yet</source>
        <translation>尚未读取</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>已移动</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>原为 %1</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>已消失</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>section and number of files</comment>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>SearchCompleter</name>
    <message>
        <source>Completions</source>
        <translation>补全</translation>
    </message>
</context>
<context>
    <name>SearchHelpMenu</name>
    <message>
        <source>Designs that ...</source>
        <translation>花样：</translation>
    </message>
    <message>
        <source>don&apos;t, by a minus before any field</source>
        <translation>在任何字段前加减号表示相反</translation>
    </message>
    <message>
        <source>fulfill all that is asked for</source>
        <translation>同时满足所有条件</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>completes fields and tags while you type</source>
        <translation>输入时补全字段和标签</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Comparing the designs: %1 of %2</source>
        <translation>正在比较花样：%1 / %2</translation>
    </message>
    <message>
        <source>Comparing the designs...</source>
        <translation>正在比较花样…</translation>
    </message>
</context>
<context>
    <name>SewingSlider</name>
    <message>
        <source>Sewing progress</source>
        <translation>刺绣进度</translation>
    </message>
</context>
<context>
    <name>SheetCommand</name>
    <message>
        <source>Put pictures of designs onto pages of a PDF.</source>
        <translation>把花样的图片排到 PDF 的页面上。</translation>
    </message>
    <message>
        <source>Makes a PDF with a contact sheet of all designs of the catalogue, or of those that are chosen, or with a work sheet for each. Designs that are named need not be in the catalogue and come in the order of their names; a dash reads the names from standard input.</source>
        <translation>生成 PDF：花样库中全部花样或所选花样的缩略图总览，或每个花样一份工作单。按名称给出的花样不必在花样库中，并按给出的顺序排列；短横线表示从标准输入读取名称。</translation>
    </message>
    <message>
        <source>Where the PDF goes to.</source>
        <translation>PDF 的写入位置。</translation>
    </message>
    <message>
        <source>Replace a file that is there.</source>
        <translation>替换已有的文件。</translation>
    </message>
    <message>
        <source>A work sheet for each design rather than a contact sheet of all.</source>
        <translation>为每个花样生成工作单，而不是全部花样的缩略图总览。</translation>
    </message>
    <message>
        <source>One of %1; A4 if not given.</source>
        <translation>可选 %1；未指定时为 A4。</translation>
    </message>
    <message>
        <source>The paper lies on its longer side.</source>
        <translation>纸张横向放置。</translation>
    </message>
    <message>
        <source>Title of a contact sheet.</source>
        <translation>缩略图总览的标题。</translation>
    </message>
    <message>
        <source>Columns of a contact sheet; 4 if not given.</source>
        <translation>缩略图总览的列数；未指定时为 4。</translation>
    </message>
    <message>
        <source>What stands under each picture of a contact sheet: some of %1, with commas between them, or nothing.</source>
        <translation>缩略图总览中每张图片下方的内容：从 %1 中选择若干项，以逗号分隔，或留空。</translation>
    </message>
    <message>
        <source>A contact sheet with a heading for each folder.</source>
        <translation>缩略图总览中为每个文件夹加标题。</translation>
    </message>
    <message>
        <source>Work sheets without a page in true size.</source>
        <translation>工作单不含实际大小的页面。</translation>
    </message>
    <message>
        <source>Pages without numbers.</source>
        <translation>页面不带页码。</translation>
    </message>
    <message>
        <source>Unknown fact &apos;%1&apos;; there are %2.</source>
        <translation>未知内容“%1”；可用的有 %2。</translation>
    </message>
    <message>
        <source>Unknown paper &apos;%1&apos;; there are %2.</source>
        <translation>未知纸张“%1”；可用的有 %2。</translation>
    </message>
    <message>
        <source>The columns must be a number from 1 to %1.</source>
        <translation>列数必须是 1 到 %1 之间的数字。</translation>
    </message>
    <message>
        <source>No PDF given; --pdf OUT.pdf tells where it goes to.</source>
        <translation>未指定 PDF；请用 --pdf OUT.pdf 指明写入位置。</translation>
    </message>
    <message>
        <source>There are no designs to show.</source>
        <translation>没有可显示的花样。</translation>
    </message>
</context>
<context>
    <name>SheetCommands</name>
    <message>
        <source>Designs</source>
        <translation>花样</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>打印(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Export as PDF...</source>
        <translation>导出为 PDF(&amp;E)…</translation>
    </message>
    <message>
        <source>There are no designs to print.</source>
        <translation>没有可打印的花样。</translation>
    </message>
    <message>
        <source>A sheet shows the selected designs, or all that the grid shows.</source>
        <translation>页面显示所选的花样，或当前显示的全部花样。</translation>
    </message>
    <message>
        <source>Printing was canceled. Pages that are on their way may still be printed.</source>
        <translation>打印已取消。已发送的页面可能仍会打印。</translation>
    </message>
    <message>
        <source>The designs could not be printed.</source>
        <translation>无法打印花样。</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>导出为 PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF 文档 (*.pdf)</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>要替换该文件吗？</translation>
    </message>
    <message numerus="yes">
        <source>%1 was written: %n page(s).</source>
        <translation>
            <numerusform>已写入 %1：%n 页。</numerusform>
        </translation>
    </message>
    <message>
        <source>The PDF could not be written.</source>
        <translation>无法写入 PDF。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>正在打印…</translation>
    </message>
    <message>
        <source>Writing the PDF...</source>
        <translation>正在写入 PDF…</translation>
    </message>
</context>
<context>
    <name>SheetDialog</name>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>导出为 PDF</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>打印…</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
</context>
<context>
    <name>SheetForm</name>
    <message>
        <source>Sheet</source>
        <translation>页面类型</translation>
    </message>
    <message>
        <source>&amp;Contact sheet: pictures in rows</source>
        <translation>缩略图总览：成行的图片(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Work sheet for each design</source>
        <translation>每个花样一份工作单(&amp;W)</translation>
    </message>
    <message>
        <source>Designs</source>
        <translation>花样</translation>
    </message>
    <message>
        <source>&amp;Selected (%1)</source>
        <translation>所选 (%1)(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;All shown (%1)</source>
        <translation>显示的全部 (%1)(&amp;A)</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>S&amp;ize:</source>
        <translation>大小(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>方向(&amp;O)：</translation>
    </message>
    <message>
        <source>Page &amp;numbers</source>
        <translation>页码(&amp;N)</translation>
    </message>
    <message>
        <source>Contact sheet</source>
        <translation>缩略图总览</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>标题(&amp;T)：</translation>
    </message>
    <message>
        <source>Col&amp;umns:</source>
        <translation>列数(&amp;U)：</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>名称(&amp;M)</translation>
    </message>
    <message>
        <source>Design si&amp;ze</source>
        <translation>花样尺寸(&amp;Z)</translation>
    </message>
    <message>
        <source>Stitc&amp;hes</source>
        <translation>针数(&amp;H)</translation>
    </message>
    <message>
        <source>Co&amp;lors</source>
        <translation>颜色数(&amp;L)</translation>
    </message>
    <message>
        <source>Ta&amp;gs</source>
        <translation>标签(&amp;G)</translation>
    </message>
    <message>
        <source>Not&amp;es</source>
        <translation>备注(&amp;E)</translation>
    </message>
    <message>
        <source>By &amp;folder, each with a heading</source>
        <translation>按文件夹分组并加标题(&amp;F)</translation>
    </message>
    <message>
        <source>Work sheet</source>
        <translation>工作单</translation>
    </message>
    <message>
        <source>A page in t&amp;rue size, with the hoop</source>
        <translation>含绣框的实际大小页面(&amp;R)</translation>
    </message>
</context>
<context>
    <name>SheetPages</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>Design %1 of %2, page %3 of %4</source>
        <translation>花样 %1/%2，第 %3 页，共 %4 页</translation>
    </message>
</context>
<context>
    <name>SheetPreview</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
</context>
<context>
    <name>SheetPrinter</name>
    <message>
        <source>The printer has failed.</source>
        <translation>打印机出现故障。</translation>
    </message>
</context>
<context>
    <name>SheetWriter</name>
    <message>
        <source>The pages cannot be written.</source>
        <translation>无法写入页面。</translation>
    </message>
</context>
<context>
    <name>SmartFolderCheck</name>
    <message>
        <source>Nothing was changed. With --prune the designs of such folders leave the catalogue.</source>
        <translation>未作任何更改。使用 --prune 会将此类文件夹中的花样从花样库中移除。</translation>
    </message>
    <message numerus="yes">
        <source>holds none of its %n design(s) any more</source>
        <translation>
            <numerusform>已不再包含其 %Ln 个花样</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>&amp;Sort by</source>
        <translation>排序方式(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>名称(&amp;N)</translation>
    </message>
    <message>
        <source>Design &amp;size</source>
        <translation>花样尺寸(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;titches</source>
        <translation>针数(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>颜色数(&amp;C)</translation>
    </message>
    <message>
        <source>File &amp;date</source>
        <translation>文件日期(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>升序(&amp;A)</translation>
    </message>
    <message>
        <source>D&amp;escending</source>
        <translation>降序(&amp;E)</translation>
    </message>
</context>
<context>
    <name>StandardInput</name>
    <message>
        <source>Failed to read %1: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 太大。</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>The names on standard input end with a NUL; -0 reads such names.</source>
        <translation>标准输入中的名称以 NUL 结尾；使用 -0 读取这样的名称。</translation>
    </message>
</context>
<context>
    <name>StandardOutput</name>
    <message>
        <source>The output could not be written: %1</source>
        <translation>无法写入输出：%1</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Stitches and colors are those of the selected designs or, when none is selected, of all that are shown.</source>
        <translation>针数和颜色数为所选花样的合计；没有选择时，为所有显示的花样的合计。</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message numerus="yes">
        <source>%1 designs</source>
        <translation>
            <numerusform>%1 个花样</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 selected</source>
        <translation>
            <numerusform>已选择 %1 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 针</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 colors</source>
        <translation>
            <numerusform>%1 种颜色</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagCommand</name>
    <message>
        <source>Give designs a tag, or take it from them.</source>
        <translation>为花样添加或移除标签。</translation>
    </message>
    <message>
        <source>Gives the designs a tag, or takes it from them. A dash reads their names from standard input.</source>
        <translation>为花样添加或移除标签。短横线表示从标准输入读取花样名称。</translation>
    </message>
    <message>
        <source>No tag given.</source>
        <translation>未指定标签。</translation>
    </message>
</context>
<context>
    <name>TagController</name>
    <message>
        <source>rename tag</source>
        <translation>重命名标签</translation>
    </message>
    <message>
        <source>remove tag</source>
        <translation>移除标签</translation>
    </message>
    <message>
        <source>auto-create tags</source>
        <translation>自动创建标签</translation>
    </message>
    <message>
        <source>remove unused tags</source>
        <translation>移除未使用的标签</translation>
    </message>
</context>
<context>
    <name>TagLabel</name>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>The tag &lt;b&gt;%1&lt;/b&gt; is set on all selected files.</source>
        <translation>所有选中的文件都带有标签 &lt;b&gt;%1&lt;/b&gt;。</translation>
    </message>
    <message>
        <source>The tag &lt;b&gt;%1&lt;/b&gt; is set on some of the selected files.</source>
        <translation>部分选中的文件带有标签 &lt;b&gt;%1&lt;/b&gt;。</translation>
    </message>
    <message>
        <source>Remove tag &lt;b&gt;%1&lt;/b&gt; from all selected files</source>
        <translation>从所有选中的文件移除标签 &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Remove tag %1</source>
        <translation>移除标签 %1</translation>
    </message>
</context>
<context>
    <name>TagListWidget</name>
    <message>
        <source>Tags</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>- show all files -</source>
        <translation>- 显示所有文件 -</translation>
    </message>
    <message>
        <source>&lt;enter tag name&gt;</source>
        <translation>&lt;输入标签名&gt;</translation>
    </message>
    <message>
        <source>Remove &apos;%1&apos;</source>
        <translation>移除“%1”</translation>
    </message>
    <message>
        <source>Rename &apos;%1&apos;</source>
        <translation>重命名“%1”</translation>
    </message>
</context>
<context>
    <name>TagWidget</name>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>New tag</source>
        <translation>新标签</translation>
    </message>
    <message>
        <source>&lt;p&gt;Select an existing tag from the drop down list or enter a new tag. The tag is added to all selected files.&lt;/p&gt;</source>
        <translation>&lt;p&gt;从下拉列表中选择已有标签，或输入新标签。该标签将添加到所有选中的文件。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Add tag to all selected files.&lt;/p&gt;</source>
        <translation>&lt;p&gt;为所有选中的文件添加标签。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>add tag &apos;%1&apos;</source>
        <translation>添加标签“%1”</translation>
    </message>
    <message>
        <source>remove tag &apos;%1&apos;</source>
        <translation>移除标签“%1”</translation>
    </message>
    <message>
        <source>Show more tags</source>
        <translation>显示更多标签</translation>
    </message>
    <message>
        <source>+ %1 more</source>
        <translation>另有 %1 个</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>标签</translation>
    </message>
</context>
<context>
    <name>TagsBox</name>
    <message>
        <source>Tags</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Add tag</source>
        <translation>添加标签</translation>
    </message>
    <message>
        <source>Remove tag</source>
        <translation>移除标签</translation>
    </message>
    <message>
        <source>Rename tag</source>
        <translation>重命名标签</translation>
    </message>
    <message>
        <source>Remove all unused tags</source>
        <translation>移除所有未使用的标签</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>显示全部</translation>
    </message>
    <message>
        <source>rename tag</source>
        <translation>重命名标签</translation>
    </message>
    <message numerus="yes">
        <source>This tag is attached to %n files</source>
        <translation>
            <numerusform>此标签已用于 %Ln 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the tag will also remove it from these files. Continue?</source>
        <translation>删除该标签会同时将其从这些文件中移除。是否继续？</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n unused tags?</source>
        <translation>
            <numerusform>移除 %Ln 个未使用的标签？</numerusform>
        </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Empty tag name not allowed!</source>
        <translation>标签名不能为空！</translation>
    </message>
    <message>
        <source>Tag with this name already exists!</source>
        <translation>已存在同名标签！</translation>
    </message>
    <message>
        <source>remove tag</source>
        <translation>移除标签</translation>
    </message>
</context>
<context>
    <name>ThreadList</name>
    <message>
        <source>Color name</source>
        <translation>颜色名称</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>色卡</translation>
    </message>
    <message>
        <source>Stitches</source>
        <translation>针数</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
</context>
<context>
    <name>ThreadTable</name>
    <message>
        <source>Threads</source>
        <translation>绣线</translation>
    </message>
    <message>
        <source>In the order of sewing. The arrow keys show where each comes.</source>
        <translation>按刺绣顺序排列。方向键显示每种绣线的位置。</translation>
    </message>
</context>
<context>
    <name>ThreadTableModel</name>
    <message>
        <source>undefined</source>
        <translation>未定义</translation>
    </message>
    <message>
        <source>How often the needle goes down; jumps and trims do not count.</source>
        <translation>落针次数；不计跳针和剪线。</translation>
    </message>
    <message>
        <source>The thread on the fabric, from one needle point to the next.</source>
        <translation>面料上的线长，从一个针点到下一个针点。</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>颜色名称</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>色卡</translation>
    </message>
    <message>
        <source>Stitches</source>
        <translation>针数</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
</context>
<context>
    <name>ThumbnailsCommand</name>
    <message>
        <source>Paint pictures of many designs into a folder.</source>
        <translation>将许多花样的图片绘制到一个文件夹。</translation>
    </message>
    <message>
        <source>Paints a picture of each design of the catalogue, or of those that are chosen, into a folder, which is made if it is missing. A dash reads the names of the designs from standard input. Pictures that are there already are kept, so that the command may be stopped and started again.</source>
        <translation>将花样库中每个花样（或所选花样）的图片绘制到一个文件夹，文件夹不存在时会新建。短横线表示从标准输入读取花样名称。已有的图片会保留，因此可以中途停止后再次运行此命令。</translation>
    </message>
    <message>
        <source>Paint pictures anew that are there already.</source>
        <translation>重新绘制已有的图片。</translation>
    </message>
    <message>
        <source>No folder given.</source>
        <translation>未指定文件夹。</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; cannot be made</source>
        <translation>无法创建文件夹“%1”</translation>
    </message>
</context>
<context>
    <name>TransferNotice</name>
    <message>
        <source>%1 of %2 files were copied to %3.</source>
        <translation>已将 %2 个文件中的 %1 个复制到 %3。</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) copied to %1.</source>
        <translation>
            <numerusform>已将 %Ln 个文件复制到 %1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them gave way to a later one of the same name.</source>
        <translation>
            <numerusform>其中 %Ln 个被后面的同名文件替换。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 can be taken out now.</source>
        <translation>现在可以取出 %1。</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>弹出</translation>
    </message>
    <message>
        <source>another program still uses it.</source>
        <translation>另一个程序仍在使用它。</translation>
    </message>
    <message>
        <source>this needs more rights than you have.</source>
        <translation>您没有所需的权限。</translation>
    </message>
    <message>
        <source>%1 cannot be ejected: %2</source>
        <translation>无法弹出 %1：%2</translation>
    </message>
    <message>
        <source>Ejecting %1...</source>
        <translation>正在弹出 %1…</translation>
    </message>
</context>
<context>
    <name>TransferResult</name>
    <message>
        <source>There is no space left on the drive.</source>
        <translation>驱动器空间不足。</translation>
    </message>
    <message>
        <source>The drive has space left, but its top folder cannot hold more files.</source>
        <translation>驱动器还有空间，但其顶层文件夹无法再容纳更多文件。</translation>
    </message>
    <message>
        <source>The drive, or the file on it, is write-protected.</source>
        <translation>驱动器或其中的文件处于写保护状态。</translation>
    </message>
    <message>
        <source>The drive&apos;s file system does not allow a file of this name.</source>
        <translation>驱动器的文件系统不允许此文件名。</translation>
    </message>
    <message>
        <source>The file is no longer in its folder.</source>
        <translation>该文件已不在其文件夹中。</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>无法读取该文件。</translation>
    </message>
    <message>
        <source>The drive is no longer there.</source>
        <translation>驱动器已不存在。</translation>
    </message>
</context>
<context>
    <name>TrueSizePicture</name>
    <message>
        <source>Reduced to %1%: the design is larger than the paper</source>
        <translation>缩小到 %1%：花样大于纸张</translation>
    </message>
    <message>
        <source>True size; the design is larger than any hoop</source>
        <translation>实际大小；花样大于任何绣框</translation>
    </message>
    <message>
        <source>True size, without its hoop of %1, which is larger than the paper</source>
        <translation>实际大小，不含大于纸张的 %1 绣框</translation>
    </message>
    <message>
        <source>True size in a hoop of %1</source>
        <translation>%1 绣框中的实际大小</translation>
    </message>
</context>
<context>
    <name>UnreadDesign</name>
    <message>
        <source>Not read yet</source>
        <translation>尚未读取</translation>
    </message>
    <message>
        <source>&quot;Rescan&quot; reads it.</source>
        <translation>“重新扫描”即可读取。</translation>
    </message>
</context>
<context>
    <name>WorkSheet</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>Design size</source>
        <translation>花样尺寸</translation>
    </message>
    <message>
        <source>Hoop</source>
        <translation>绣框</translation>
    </message>
    <message>
        <source>no hoop fits</source>
        <translation>没有合适的绣框</translation>
    </message>
    <message>
        <source>Number of stitches</source>
        <translation>针数</translation>
    </message>
    <message>
        <source>Number of colors</source>
        <translation>颜色数</translation>
    </message>
    <message>
        <source>Thread</source>
        <translation>绣线</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Room to write</source>
        <translation>书写区</translation>
    </message>
    <message>
        <source>2 inches, if the printer keeps the size</source>
        <translation>2 英寸（若打印机保持原尺寸）</translation>
    </message>
    <message>
        <source>50 mm, if the printer keeps the size</source>
        <translation>50 毫米（若打印机保持原尺寸）</translation>
    </message>
</context>
</TS>
