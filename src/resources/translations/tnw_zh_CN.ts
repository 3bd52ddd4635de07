<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>Version %1
Built on %2</source>
        <translation>版本 %1
构建于 %2</translation>
    </message>
</context>
<context>
    <name>About2</name>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>This program uses Qt %1, which is licensed under the GNU Lesser General Public License, version 3, and is a library of its own: it may be replaced by another build of it.</source>
        <translation>本程序使用 Qt %1。Qt 依据 GNU 较宽松通用公共许可证第 3 版授权，是独立的库，可以替换为其他构建版本。</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>许可证</translation>
    </message>
</context>
<context>
    <name>DesktopInteraction</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>在“访达”中显示</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>在资源管理器中显示</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>在文件管理器中显示</translation>
    </message>
</context>
<context>
    <name>DirectoryScanner</name>
    <message>
        <source>Scanning directory &apos;%1&apos;</source>
        <translation>正在扫描文件夹“%1”</translation>
    </message>
</context>
<context>
    <name>FeedbackDialog</name>
    <message>
        <source>Send feedback</source>
        <translation>发送反馈</translation>
    </message>
    <message>
        <source>%1 crash reporter</source>
        <translation>%1 崩溃报告</translation>
    </message>
    <message>
        <source>&lt;b&gt;Sorry, %1 crashed!&lt;/b&gt;&lt;br&gt;&lt;br&gt;Please describe what you did just before the crash. (optional)</source>
        <translation>&lt;b&gt;抱歉，%1 崩溃了！&lt;/b&gt;&lt;br&gt;&lt;br&gt;请描述崩溃前您所做的操作。（可选）</translation>
    </message>
    <message>
        <source>You are sending the following information:</source>
        <translation>您将发送以下信息：</translation>
    </message>
    <message>
        <source>Quick Feedback</source>
        <translation>快速反馈</translation>
    </message>
    <message>
        <source>What do you like, what can we do better?</source>
        <translation>您喜欢什么？我们哪里可以做得更好？</translation>
    </message>
    <message>
        <source>Support Question</source>
        <translation>技术支持</translation>
    </message>
    <message>
        <source>Your question:</source>
        <translation>您的问题：</translation>
    </message>
    <message>
        <source>Feature Request</source>
        <translation>功能建议</translation>
    </message>
    <message>
        <source>What feature would you like to see added or improved?</source>
        <translation>您希望增加或改进什么功能？</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>错误报告</translation>
    </message>
    <message>
        <source>What did you expect to happen? What happened instead?</source>
        <translation>您期望发生什么？实际发生了什么？</translation>
    </message>
    <message>
        <source>What steps will reproduce this problem?</source>
        <translation>如何重现该问题？</translation>
    </message>
    <message>
        <source>This is a critical bug</source>
        <translation>这是严重错误</translation>
    </message>
    <message>
        <source>Topic:</source>
        <translation>主题：</translation>
    </message>
    <message>
        <source>How important is this to you?</source>
        <translation>这对您有多重要？</translation>
    </message>
    <message>
        <source>Nice to have</source>
        <translation>有则更好</translation>
    </message>
    <message>
        <source>Very important</source>
        <translation>非常重要</translation>
    </message>
    <message>
        <source>Deal breaker</source>
        <translation>不可或缺</translation>
    </message>
    <message>
        <source>Include email address:</source>
        <translation>附上邮箱地址：</translation>
    </message>
    <message>
        <source>Your message goes to %1, together with the name and version of %2 and of your operating system, and is stored there to answer you and to improve the program. &lt;a href=&quot;%3&quot;&gt;Privacy&lt;/a&gt;</source>
        <translation>您的留言将与 %2 及操作系统的名称和版本一起发送到 %1，并保存在那里，用于答复您和改进程序。&lt;a href=&quot;%3&quot;&gt;隐私&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Please add your mail address</source>
        <translation>请填写您的邮箱地址</translation>
    </message>
    <message>
        <source>Please consider adding your mail address so I can answer your request.</source>
        <translation>请考虑填写邮箱地址，以便我答复您的请求。</translation>
    </message>
    <message>
        <source>The server sends the message on to an address that cannot be used.</source>
        <translation>服务器将消息转到了无法使用的地址。</translation>
    </message>
    <message>
        <source>Sending feedback...</source>
        <translation>正在发送反馈…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Sending feedback</source>
        <translation>发送反馈</translation>
    </message>
    <message>
        <source>Sending message failed</source>
        <translation>发送失败</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>电子邮件地址</translation>
    </message>
</context>
<context>
    <name>FileTools</name>
    <message>
        <source>Failed to load %1: %2</source>
        <translation>无法加载 %1：%2</translation>
    </message>
    <message>
        <source>Failed to read %1: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>Failed to write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>GApplication</name>
    <message>
        <source>&amp;Window</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>Caught unhandled error:&lt;br/&gt;%1&lt;br/&gt;</source>
        <translation>捕获到未处理的错误：&lt;br/&gt;%1&lt;br/&gt;</translation>
    </message>
    <message>
        <source>Caught unhandled exception:&lt;br/&gt;%1&lt;br/&gt;</source>
        <translation>捕获到未处理的异常：&lt;br/&gt;%1&lt;br/&gt;</translation>
    </message>
    <message>
        <source>Please report to </source>
        <translation>请报告至 </translation>
    </message>
    <message>
        <source>Critical Exception</source>
        <translation>严重异常</translation>
    </message>
    <message>
        <source>&amp;New project</source>
        <translation>新建项目(&amp;N)</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>创建新项目</translation>
    </message>
    <message>
        <source>&amp;Open project...</source>
        <translation>打开项目(&amp;O)…</translation>
    </message>
    <message>
        <source>Open an existing project</source>
        <translation>打开已有项目</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>首选项…</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>关于 %1(&amp;A)</translation>
    </message>
    <message>
        <source>Show the application&apos;s About box</source>
        <translation>显示程序信息</translation>
    </message>
    <message>
        <source>Documentation...</source>
        <translation>文档…</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Tutorials...</source>
        <translation>教程…</translation>
    </message>
    <message>
        <source>Tutorials</source>
        <translation>教程</translation>
    </message>
    <message>
        <source>Acknowledgements...</source>
        <translation>致谢…</translation>
    </message>
    <message>
        <source>Acknowledgements</source>
        <translation>致谢</translation>
    </message>
    <message>
        <source>Send feedback ...</source>
        <translation>发送反馈…</translation>
    </message>
    <message>
        <source>Send feedback, feature requests, bug reports</source>
        <translation>发送反馈、功能建议和错误报告</translation>
    </message>
    <message>
        <source>Check for updates ...</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>最近打开</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>untitled document</source>
        <translation>未命名文档</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>The manual is not installed.</source>
        <translation>没有安装手册。</translation>
    </message>
    <message>
        <source>It should be here: %1
The packages of the program bring it along. Whoever builds the program needs the tool &apos;lowdown&apos; for it.</source>
        <translation>它应在此处：%1
程序的安装包中带有手册。自行构建程序时，需要工具“lowdown”来生成它。</translation>
    </message>
</context>
<context>
    <name>GFileDialog</name>
    <message>
        <source>All known types (%1)</source>
        <translation>所有已知类型 (%1)</translation>
    </message>
    <message>
        <source>All files (*.*)</source>
        <translation>所有文件 (*.*)</translation>
    </message>
</context>
<context>
    <name>GMainWindow</name>
    <message>
        <source>&amp;Save project</source>
        <translation>保存项目(&amp;S)</translation>
    </message>
    <message>
        <source>Save the project to disk</source>
        <translation>将项目保存到磁盘</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>Save the project under a new name</source>
        <translation>以新名称保存项目</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close project</source>
        <translation>关闭项目</translation>
    </message>
    <message>
        <source>Save document</source>
        <translation>保存文档</translation>
    </message>
    <message>
        <source>The document has been modified.</source>
        <translation>文档已修改。</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>是否保存更改？</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>最近打开</translation>
    </message>
</context>
<context>
    <name>GProject</name>
    <message>
        <source>preset collection of type &apos;%1&apos; does not exist</source>
        <translation>类型为“%1”的预设集合不存在</translation>
    </message>
</context>
<context>
    <name>GSideBarBoxAdvanced</name>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
</context>
<context>
    <name>HooplineApplication</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
</context>
<context>
    <name>MessageText</name>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>NetworkTrouble</name>
    <message>
        <source>The answer cannot be used. In some networks a page to sign in on answers in the place of the server.</source>
        <translation>无法使用该应答。在某些网络中，应答的不是服务器，而是登录页面。</translation>
    </message>
    <message>
        <source>The server was not found. Please check that the computer is connected to the internet.</source>
        <translation>找不到服务器。请检查计算机是否已连接到互联网。</translation>
    </message>
    <message>
        <source>The server does not answer. Please try again later.</source>
        <translation>服务器没有应答。请稍后再试。</translation>
    </message>
    <message>
        <source>The connection to the server is not secure. Please check the date of the computer.</source>
        <translation>与服务器的连接不安全。请检查计算机的日期。</translation>
    </message>
    <message>
        <source>The server reports an error. Please try again later.</source>
        <translation>服务器报告了错误。请稍后再试。</translation>
    </message>
    <message>
        <source>The address has moved:</source>
        <translation>地址已更改：</translation>
    </message>
</context>
<context>
    <name>PropertyDescription</name>
    <message>
        <source>property &apos;%1&apos; already exists in preset &apos;%2&apos;</source>
        <translation>预设“%2”中已存在属性“%1”</translation>
    </message>
    <message>
        <source>property &apos;%1&apos; does not exist in preset &apos;%2&apos;</source>
        <translation>预设“%2”中不存在属性“%1”</translation>
    </message>
</context>
<context>
    <name>PropertyPresetCollection</name>
    <message>
        <source>cannot add unnamed property preset to collection &apos;%1&apos;</source>
        <translation>无法将未命名的预设添加到集合“%1”</translation>
    </message>
    <message>
        <source>property preset &apos;%1&apos; already exists in &apos;%2&apos;</source>
        <translation>“%2”中已存在预设“%1”</translation>
    </message>
    <message>
        <source>property preset &apos;%1&apos; not found in &apos;%2&apos;</source>
        <translation>在“%2”中未找到预设“%1”</translation>
    </message>
</context>
<context>
    <name>PropertyReference</name>
    <message>
        <source>reference property may not be set to NULL</source>
        <translation>引用属性不能设为空</translation>
    </message>
    <message>
        <source>cannot assign type &apos;%1&apos; to reference property of type &apos;%2&apos;</source>
        <translation>无法将类型“%1”赋给类型为“%2”的引用属性</translation>
    </message>
</context>
<context>
    <name>PropertyStruct</name>
    <message>
        <source>requested undefined property &apos;%1&apos;</source>
        <translation>请求了未定义的属性“%1”</translation>
    </message>
</context>
<context>
    <name>PropertyXMLReader</name>
    <message>
        <source>Failed to read &apos;%1&apos; from XML!
(%2)</source>
        <translation>无法从 XML 读取“%1”！
（%2）</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>cannot add &apos;%1&apos; to list &apos;%2&apos;, wrong type</source>
        <translation>无法将“%1”添加到列表“%2”，类型错误</translation>
    </message>
    <message>
        <source>property &apos;%1&apos; in list &apos;%2&apos; has wrong type&apos;</source>
        <translation>列表“%2”中的属性“%1”类型错误</translation>
    </message>
    <message>
        <source>preset collection of type &apos;%1&apos; already exists</source>
        <translation>类型为“%1”的预设集合已存在</translation>
    </message>
    <message>
        <source>property &apos;%1&apos; already exists in struct &apos;%2&apos;</source>
        <translation>“%2”中已存在属性“%1”</translation>
    </message>
    <message>
        <source>requested property &apos;%1&apos; has wrong type</source>
        <translation>请求的属性“%1”类型错误</translation>
    </message>
</context>
<context>
    <name>SingleApplication</name>
    <message>
        <source>%1 is already running, but does not answer.</source>
        <translation>%1 已在运行，但没有响应。</translation>
    </message>
    <message>
        <source>It may be busy: wait a little and start again. If that does not help, end the process %1 first.</source>
        <translation>它可能正忙：请稍等片刻再启动。如果没有帮助，请先结束进程 %1。</translation>
    </message>
    <message>
        <source>It may be busy: wait a little and start again.</source>
        <translation>它可能正忙：请稍等片刻再启动。</translation>
    </message>
    <message>
        <source>%1 cannot start.</source>
        <translation>%1 无法启动。</translation>
    </message>
    <message>
        <source>It can write neither to the folder for temporary files nor to that of its own data: %1</source>
        <translation>既无法写入临时文件夹，也无法写入自己的数据文件夹：%1</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Software update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>%1 有新版本！</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3.</source>
        <translation>%1 %2 现已发布；您的版本是 %3。</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>发行说明</translation>
    </message>
    <message>
        <source>The address of the download is not secure, so it cannot be opened from here.</source>
        <translation>下载地址不安全，因此无法从此处打开。</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>安装更新</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>稍后提醒</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>跳过此版本</translation>
    </message>
</context>
<context>
    <name>UrlOpener</name>
    <message>
        <source>There is no program that opens this file or folder.</source>
        <translation>没有可以打开此文件或文件夹的程序。</translation>
    </message>
    <message>
        <source>There is no program for mail.</source>
        <translation>没有电子邮件程序。</translation>
    </message>
    <message>
        <source>There is no web browser that opens this address.</source>
        <translation>没有可以打开此地址的浏览器。</translation>
    </message>
</context>
<context>
    <name>WindowsUpdater</name>
    <message>
        <source>Update check failed</source>
        <translation>检查更新失败</translation>
    </message>
    <message>
        <source>Can&apos;t read app cast feed. (No XML)</source>
        <translation>无法读取更新源。（不是 XML）</translation>
    </message>
    <message>
        <source>Can&apos;t read app cast feed. (Not RSS)</source>
        <translation>无法读取更新源。（不是 RSS）</translation>
    </message>
    <message>
        <source>Can&apos;t read app cast feed. (No channel found)</source>
        <translation>无法读取更新源。（未找到频道）</translation>
    </message>
    <message>
        <source>No new updates available</source>
        <translation>没有可用更新</translation>
    </message>
    <message>
        <source>There are no new updates available for %1</source>
        <translation>%1 没有可用的新更新</translation>
    </message>
    <message>
        <source>Staging server</source>
        <translation>测试服务器</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>This copy cannot look for updates</source>
        <translation>此版本无法检查更新</translation>
    </message>
    <message>
        <source>It was made without an address to ask. New versions come from where you got this one.</source>
        <translation>它在构建时没有设置更新地址。请从获取此版本的地方获取新版本。</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>正在检查更新…</translation>
    </message>
</context>
</TS>
