<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AnnotationReader</name>
    <message>
        <source>The text is not UTF-8.</source>
        <translation>Der Text ist nicht in UTF-8.</translation>
    </message>
    <message>
        <source>it is no JSON object</source>
        <translation>er ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>its &apos;%1&apos; is none</source>
        <translation>sein „%1“ ist keines</translation>
    </message>
    <message>
        <source>The first line names neither a column &apos;md5&apos; nor a column &apos;file&apos;.</source>
        <translation>Die erste Zeile nennt weder eine Spalte „md5“ noch eine Spalte „file“.</translation>
    </message>
    <message>
        <source>it has another number of fields than the first line</source>
        <translation>er hat eine andere Zahl von Feldern als die erste Zeile</translation>
    </message>
    <message>
        <source>it has neither md5 nor file</source>
        <translation>er hat weder „md5“ noch „file“</translation>
    </message>
    <message>
        <source>Entry %1 is wrong: %2.</source>
        <translation>Eintrag %1 ist falsch: %2.</translation>
    </message>
</context>
<context>
    <name>BackgroundWork</name>
    <message>
        <source>The system has no thread left for this.</source>
        <translation>Das System hat dafür keinen Thread mehr frei.</translation>
    </message>
</context>
<context>
    <name>BackupCommand</name>
    <message>
        <source>Keep a copy of the catalogue.</source>
        <translation>Eine Kopie des Katalogs aufheben.</translation>
    </message>
    <message>
        <source>Replace a file that is there.</source>
        <translation>Eine vorhandene Datei ersetzen.</translation>
    </message>
    <message>
        <source>Only one file can be given.</source>
        <translation>Es kann nur eine Datei angegeben werden.</translation>
    </message>
    <message>
        <source>The catalogue is damaged; no backup was made.</source>
        <translation>Der Katalog ist beschädigt; es wurde keine Sicherung angelegt.</translation>
    </message>
    <message>
        <source>There is no catalogue yet; &apos;hoopline-cli scan FOLDER&apos; makes one.</source>
        <translation>Es gibt noch keinen Katalog; „hoopline-cli scan ORDNER“ legt einen an.</translation>
    </message>
    <message>
        <source>Keeps a copy of the catalogue as it was saved last: in FILE, compressed if the name ends in .gz, or without one among the backups that the program makes by itself. Saved searches go to a file beside it that ends in .searches.json.</source>
        <translation>Hebt eine Kopie des zuletzt gespeicherten Katalogs auf: in DATEI, komprimiert, wenn der Name auf .gz endet, oder ohne Angabe einer Datei bei den Sicherungen, die das Programm selbst anlegt. Gespeicherte Suchen kommen in eine Datei daneben, die auf .searches.json endet.</translation>
    </message>
</context>
<context>
    <name>BackupFolder</name>
    <message>
        <source>Failed to read %1: %2</source>
        <translation>Lesen von %1 fehlgeschlagen: %2</translation>
    </message>
</context>
<context>
    <name>BackupsDialog</name>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>There are no backups yet. Before the first change of a day the catalogue is kept here as it was.</source>
        <translation>Es gibt noch keine Sicherungen. Vor der ersten Änderung eines Tages wird der Katalog hier so aufgehoben, wie er war.</translation>
    </message>
    <message>
        <source>The catalogue as it was before the first change of a day, or when something else took its place. What is there now is kept when you restore one.</source>
        <translation>Der Katalog, wie er vor der ersten Änderung eines Tages war oder als etwas anderes an seine Stelle trat. Was jetzt da ist, wird beim Zurückholen aufgehoben.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>date and time</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Designs</source>
        <translation>Stickmuster</translation>
    </message>
    <message>
        <source>Tagged</source>
        <translation>Mit Schlagwort</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Designs with at least one tag</source>
        <translation>Stickmuster mit mindestens einem Schlagwort</translation>
    </message>
    <message>
        <source>Designs with notes</source>
        <translation>Stickmuster mit Notizen</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Zurückholen …</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>Do you want to restore this backup?</source>
        <translation>Soll diese Sicherung zurückgeholt werden?</translation>
    </message>
    <message>
        <source>Tags, notes and stars will be as on %1. What is there now is kept as a backup.</source>
        <translation>Schlagwörter, Notizen und Sterne werden so wie am %1. Was jetzt da ist, wird als Sicherung aufgehoben.</translation>
    </message>
</context>
<context>
    <name>CardTexts</name>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 Stich</numerusform>
            <numerusform>%1 Stiche</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 colors</source>
        <translation>
            <numerusform>%1 Farbe</numerusform>
            <numerusform>%1 Farben</numerusform>
        </translation>
    </message>
    <message>
        <source>tags: %1</source>
        <translation>Schlagwörter: %1</translation>
    </message>
    <message>
        <source>favorite</source>
        <translation>Favorit</translation>
    </message>
</context>
<context>
    <name>CatalogueChoice</name>
    <message>
        <source>Work on this catalogue rather than the organizer&apos;s.</source>
        <translation>Mit diesem Katalog arbeiten statt mit dem des Organizers.</translation>
    </message>
    <message>
        <source>The catalogue must be a file.</source>
        <translation>Der Katalog muss eine Datei sein.</translation>
    </message>
    <message>
        <source>There is no catalogue &apos;%1&apos;.</source>
        <translation>Es gibt keinen Katalog „%1“.</translation>
    </message>
    <message>
        <source>There is no catalogue yet; &apos;hoopline-cli scan FOLDER&apos; makes one.</source>
        <translation>Es gibt noch keinen Katalog; „hoopline-cli scan ORDNER“ legt einen an.</translation>
    </message>
    <message>
        <source>A catalogue that is scanned must be named &apos;%1&apos;: its pictures lie beside it.</source>
        <translation>Ein Katalog, in den eingelesen wird, muss „%1“ heißen: Seine Bilder liegen daneben.</translation>
    </message>
    <message>
        <source>A new catalogue needs a new or empty folder: its pictures lie beside it.</source>
        <translation>Ein neuer Katalog braucht einen neuen oder leeren Ordner: Seine Bilder liegen daneben.</translation>
    </message>
</context>
<context>
    <name>CatalogueFile</name>
    <message>
        <source>Failed to write %1: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; is gone. Is its drive plugged in?</source>
        <translation>Der Ordner „%1“ ist nicht mehr da. Ist sein Laufwerk angeschlossen?</translation>
    </message>
</context>
<context>
    <name>CatalogueKeeper</name>
    <message>
        <source>Your last changes could not be saved: %1</source>
        <translation>Die letzten Änderungen konnten nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Another program has changed the catalogue, and it cannot be read: %1</source>
        <translation>Ein anderes Programm hat den Katalog geändert, und er lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>The catalogue was damaged by another program. It was replaced by what is shown here and kept as %1.</source>
        <translation>Der Katalog wurde von einem anderen Programm beschädigt. Er wurde durch das ersetzt, was hier gezeigt wird, und als %1 aufgehoben.</translation>
    </message>
    <message numerus="yes">
        <source>The catalogue was damaged. %n design(s) could be taken over; the damaged file was kept as %1.</source>
        <translation>
            <numerusform>Der Katalog war beschädigt. %Ln Stickmuster konnte übernommen werden; die beschädigte Datei wurde als %1 aufgehoben.</numerusform>
            <numerusform>Der Katalog war beschädigt. %Ln Stickmuster konnten übernommen werden; die beschädigte Datei wurde als %1 aufgehoben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Another program had changed the catalogue. What it wrote was kept as %1.</source>
        <translation>Ein anderes Programm hatte den Katalog geändert. Was es schrieb, wurde als %1 aufgehoben.</translation>
    </message>
    <message>
        <source>Another program has changed the catalogue, which is shown now. Your changes that had not been saved were kept as %1.</source>
        <translation>Ein anderes Programm hat den Katalog geändert, der jetzt gezeigt wird. Die noch nicht gesicherten Änderungen wurden als %1 aufgehoben.</translation>
    </message>
    <message>
        <source>The folder of the catalogue, %1, was not there, and an empty one was made. Is it on a drive that is not plugged in? Then quit, plug it in and start again.</source>
        <translation>Der Ordner des Katalogs, %1, war nicht da, und ein leerer wurde angelegt. Liegt er auf einem Laufwerk, das nicht angeschlossen ist? Dann bitte beenden, anschließen und neu starten.</translation>
    </message>
    <message>
        <source>The copy could not be saved.</source>
        <translation>Die Kopie konnte nicht gesichert werden.</translation>
    </message>
    <message>
        <source>Save a copy...</source>
        <translation>Kopie sichern …</translation>
    </message>
    <message>
        <source>Changes that had not been saved when the program ended are back.</source>
        <translation>Änderungen, die beim Ende des Programms noch nicht gesichert waren, sind wieder da.</translation>
    </message>
    <message>
        <source>Backups...</source>
        <translation>Sicherungen …</translation>
    </message>
    <message>
        <source>No backup of the catalogue could be made: %1</source>
        <translation>Der Katalog konnte nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>The backup of %1 was restored. What was there before is kept as a backup.</source>
        <translation>Die Sicherung vom %1 wurde zurückgeholt. Was vorher da war, ist als Sicherung aufgehoben.</translation>
    </message>
    <message>
        <source>Saved searches cannot be saved: %1</source>
        <translation>Gespeicherte Suchen können nicht gespeichert werden: %1</translation>
    </message>
</context>
<context>
    <name>CatalogueQuestions</name>
    <message>
        <source>The catalogue cannot be used.</source>
        <translation>Der Katalog kann nicht benutzt werden.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Your last changes could not be saved.</source>
        <translation>Die letzten Änderungen konnten nicht gesichert werden.</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>Beenden, ohne zu sichern</translation>
    </message>
    <message>
        <source>Save a copy of the catalogue</source>
        <translation>Kopie des Katalogs sichern</translation>
    </message>
    <message>
        <source>Catalogues (*.xml)</source>
        <translation>Kataloge (*.xml)</translation>
    </message>
    <message>
        <source>Save a copy...</source>
        <translation>Kopie sichern …</translation>
    </message>
</context>
<context>
    <name>CatalogueReport</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Stitches</source>
        <translation>Stiche</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s)</source>
        <translation>
            <numerusform>%Ln Stickmuster</numerusform>
            <numerusform>%Ln Stickmuster</numerusform>
        </translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
</context>
<context>
    <name>CatalogueWait</name>
    <message>
        <source>The window opens as soon as that is done.</source>
        <translation>Das Fenster öffnet sich, sobald das fertig ist.</translation>
    </message>
    <message>
        <source>Your folders are being scanned.</source>
        <translation>Ihre Ordner werden gerade eingelesen.</translation>
    </message>
    <message>
        <source>Another program is using your collection: %1, process %2.</source>
        <translation>Ein anderes Programm benutzt Ihre Sammlung: %1, Prozess %2.</translation>
    </message>
    <message>
        <source>Another program is using your collection.</source>
        <translation>Ein anderes Programm benutzt Ihre Sammlung.</translation>
    </message>
</context>
<context>
    <name>ColorsBox</name>
    <message>
        <source>Colors</source>
        <translation>Garnfarben</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>Farbname</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Farbkarte</translation>
    </message>
    <message>
        <source>undefined</source>
        <translation>unbestimmt</translation>
    </message>
</context>
<context>
    <name>Command</name>
    <message>
        <source>What to do must be one of: %1.</source>
        <translation>Was zu tun ist, muss eines hiervon sein: %1.</translation>
    </message>
    <message>
        <source>Did you mean &apos;%1&apos;?</source>
        <translation>War „%1“ gemeint?</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
    <message>
        <source>The option --%1 can be given only once.</source>
        <translation>Die Option --%1 kann nur einmal angegeben werden.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>No command given.</source>
        <translation>Kein Befehl angegeben.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>Unknown command &apos;%1&apos;.</source>
        <translation>Unbekannter Befehl „%1“.</translation>
    </message>
    <message>
        <source>The companion of Hoopline Organizer that needs no window.

Commands; each has a --help of its own:</source>
        <translation>Der Begleiter von Hoopline Organizer, der kein Fenster braucht.

Befehle; jeder hat eine eigene --help:</translation>
    </message>
    <message>
        <source>Print the help of a command.</source>
        <translation>Die Hilfe eines Befehls ausgeben.</translation>
    </message>
</context>
<context>
    <name>CompletionsCommand</name>
    <message>
        <source>Print the completions of a shell.</source>
        <translation>Die Vervollständigungen einer Shell ausgeben.</translation>
    </message>
    <message>
        <source>Prints a script that lets the shell complete commands, options and files. The packages bring it along.</source>
        <translation>Gibt ein Skript aus, mit dem die Shell Befehle, Optionen und Dateien vervollständigt. Die Pakete bringen es mit.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 Stich</numerusform>
            <numerusform>%1 Stiche</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 colors</source>
        <translation>
            <numerusform>%1 Farbe</numerusform>
            <numerusform>%1 Farben</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Csv</name>
    <message>
        <source>A quotation mark has no partner.</source>
        <translation>Ein Anführungszeichen hat kein Gegenstück.</translation>
    </message>
</context>
<context>
    <name>DataFolder</name>
    <message>
        <source>The folder of the catalogue, &apos;%1&apos;, is not there. Is its drive plugged in?</source>
        <translation>Der Ordner des Katalogs, „%1“, ist nicht da. Ist sein Laufwerk angeschlossen?</translation>
    </message>
</context>
<context>
    <name>DesignBytes</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>Die Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>The file has changed since the last scan.</source>
        <translation>Die Datei hat sich seit dem letzten Einlesen geändert.</translation>
    </message>
</context>
<context>
    <name>DesignFactsPanel</name>
    <message>
        <source>Design size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Hoop</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Number of stitches</source>
        <translation>Stichzahl</translation>
    </message>
    <message>
        <source>Number of colors</source>
        <translation>Anzahl Farben</translation>
    </message>
    <message>
        <source>Thread</source>
        <translation>Garn</translation>
    </message>
    <message>
        <source>The screen does not tell how large it is: the true size is a guess.</source>
        <translation>Der Bildschirm nennt seine Größe nicht: Die wahre Größe ist geschätzt.</translation>
    </message>
    <message>
        <source>no hoop fits</source>
        <translation>kein Rahmen passt</translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>caption of a value</comment>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>DesignFormat</name>
    <message>
        <source>Unknown field &apos;{%1}&apos;; there are %2.</source>
        <translation>Unbekanntes Feld „{%1}“; es gibt %2.</translation>
    </message>
</context>
<context>
    <name>DesignPicture</name>
    <message>
        <source>Longer side of the picture in pixels; 400 if not given.</source>
        <translation>Längere Seite des Bildes in Pixeln; ohne Angabe 400.</translation>
    </message>
    <message>
        <source>The size must be a number from 1 to %1.</source>
        <translation>Die Größe muss eine Zahl von 1 bis %1 sein.</translation>
    </message>
    <message>
        <source>%1: The design has no extent to show.</source>
        <translation>%1: Das Stickmuster hat keine darstellbare Ausdehnung.</translation>
    </message>
    <message>
        <source>Paint a square card: on white, with a margin.</source>
        <translation>Als quadratische Karte malen: auf Weiß und mit Rand.</translation>
    </message>
</context>
<context>
    <name>DesignPreparation</name>
    <message>
        <source>larger than %1 MB</source>
        <translation>größer als %1 MB</translation>
    </message>
</context>
<context>
    <name>DesignReport</name>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Stitches</source>
        <translation>Stiche</translation>
    </message>
    <message>
        <source>MD5</source>
        <translation>MD5</translation>
    </message>
    <message>
        <source>Thread %1</source>
        <translation>Garn %1</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
</context>
<context>
    <name>DesignSelection</name>
    <message>
        <source>The designs that match, as with list --search.</source>
        <translation>Die Stickmuster, auf die das zutrifft, wie bei list --search.</translation>
    </message>
    <message>
        <source>Names on standard input end with a NUL rather than a line.</source>
        <translation>Namen von der Standardeingabe enden mit NUL statt mit der Zeile.</translation>
    </message>
    <message>
        <source>Choose designs by their names or by --search.</source>
        <translation>Wählen Sie Stickmuster entweder nach Namen oder mit --search.</translation>
    </message>
    <message>
        <source>No design given.</source>
        <translation>Kein Stickmuster angegeben.</translation>
    </message>
    <message>
        <source>A dash must be the only name of a design.</source>
        <translation>Ein Strich muss der einzige Name eines Stickmusters sein.</translation>
    </message>
    <message>
        <source>--null is for names on standard input.</source>
        <translation>--null gilt für Namen von der Standardeingabe.</translation>
    </message>
    <message>
        <source>%1 is not in the catalogue</source>
        <translation>%1 ist nicht im Katalog</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The search is wrong at character %1, &apos;%2&apos;: %3</source>
        <translation>Die Suche ist falsch bei Zeichen %1, „%2“: %3</translation>
    </message>
</context>
<context>
    <name>DesignTexts</name>
    <message>
        <source>%1 yd</source>
        <translation>%1 yd</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
</context>
<context>
    <name>DesignToolBar</name>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Previous design</source>
        <translation>Voriges Stickmuster</translation>
    </message>
    <message>
        <source>Previous design (Left)</source>
        <translation>Voriges Stickmuster (Pfeil links)</translation>
    </message>
    <message>
        <source>Next design</source>
        <translation>Nächstes Stickmuster</translation>
    </message>
    <message>
        <source>Next design (Right)</source>
        <translation>Nächstes Stickmuster (Pfeil rechts)</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom out (-)</source>
        <translation>Verkleinern (-)</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom in (+)</source>
        <translation>Vergrößern (+)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>100% is the true size.</source>
        <translation>100 % ist die wahre Größe.</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Show all of the design (0)</source>
        <translation>Das ganze Stickmuster zeigen (0)</translation>
    </message>
    <message>
        <source>True size</source>
        <translation>Wahre Größe</translation>
    </message>
    <message>
        <source>As large as it is sewn (1)</source>
        <translation>So groß, wie es gestickt wird (1)</translation>
    </message>
    <message>
        <source>Hoop</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Show the smallest hoop around the design (H)</source>
        <translation>Den kleinsten Rahmen um das Stickmuster zeigen (H)</translation>
    </message>
    <message>
        <source>Jumps</source>
        <translation>Sprünge</translation>
    </message>
    <message>
        <source>Show where the needle jumps without sewing (J)</source>
        <translation>Zeigen, wo die Nadel springt, ohne zu sticken (J)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>DesignView</name>
    <message>
        <source>Design</source>
        <translation>Stickmuster</translation>
    </message>
</context>
<context>
    <name>DesignWindow</name>
    <message>
        <source>Reading %1...</source>
        <translation>%1 wird gelesen …</translation>
    </message>
</context>
<context>
    <name>DirectoriesBox</name>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>&lt;center&gt;Drag &amp; drop&lt;br/&gt;the folder&lt;br/&gt;containing your&lt;br/&gt;embroidery files&lt;br/&gt;here.&lt;/center&gt;</source>
        <translation>&lt;center&gt;Ziehen Sie&lt;br/&gt;den Ordner&lt;br/&gt;mit Ihren&lt;br/&gt;Stickdateien&lt;br/&gt;hierher.&lt;/center&gt;</translation>
    </message>
</context>
<context>
    <name>DirectoryModel</name>
    <message>
        <source>Directories</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>DuplicateCardDelegate</name>
    <message>
        <source>no tags</source>
        <translation>keine Schlagwörter</translation>
    </message>
    <message>
        <source>is kept</source>
        <translation>wird behalten</translation>
    </message>
    <message>
        <source>to the trash</source>
        <translation>in den Papierkorb</translation>
    </message>
</context>
<context>
    <name>DuplicateCleaner</name>
    <message>
        <source>The design to keep is not as it should be. %1</source>
        <translation>Mit dem Stickmuster, das bleiben soll, stimmt etwas nicht. %1</translation>
    </message>
    <message>
        <source>This is the design to keep itself, by way of a link.</source>
        <translation>Das ist das zu behaltende Stickmuster selbst, über eine Verknüpfung.</translation>
    </message>
    <message>
        <source>It cannot be moved to the trash: %1</source>
        <translation>Sie kann nicht in den Papierkorb gelegt werden: %1</translation>
    </message>
</context>
<context>
    <name>DuplicateGroupsModel</name>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%Ln Datei, %1</numerusform>
            <numerusform>%Ln Dateien, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DuplicateTexts</name>
    <message>
        <source>same content</source>
        <translation>gleicher Inhalt</translation>
    </message>
    <message>
        <source>same stitches</source>
        <translation>gleiche Stiche</translation>
    </message>
    <message>
        <source>nearly the same stitches</source>
        <translation>fast gleiche Stiche</translation>
    </message>
    <message>
        <source>Certain: these files are the same, byte by byte.</source>
        <translation>Gewiss: Diese Dateien sind Byte für Byte gleich.</translation>
    </message>
    <message>
        <source>Sure: other files, but every stitch is the same, as when a design was saved in another format. The colors may differ.</source>
        <translation>Sicher: andere Dateien, aber jeder Stich ist gleich, wie wenn ein Stickmuster in einem anderen Format gespeichert wurde. Die Farben können sich unterscheiden.</translation>
    </message>
    <message>
        <source>Very likely: no stitch differs by more than 0.2 mm, as when formats round differently. The colors and their changes may differ.</source>
        <translation>Sehr wahrscheinlich: Kein Stich weicht um mehr als 0,2 mm ab, wie wenn Formate verschieden runden. Die Farben und ihre Wechsel können sich unterscheiden.</translation>
    </message>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 Stich</numerusform>
            <numerusform>%1 Stiche</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n color(s)</source>
        <translation>
            <numerusform>%Ln Farbe</numerusform>
            <numerusform>%Ln Farben</numerusform>
        </translation>
    </message>
    <message>
        <source>favorite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Tags: %1</source>
        <translation>Schlagwörter: %1</translation>
    </message>
    <message>
        <source>Notes: %1</source>
        <translation>Notizen: %1</translation>
    </message>
</context>
<context>
    <name>DuplicateWords</name>
    <message>
        <source>join duplicates</source>
        <translation>Duplikate zusammenführen</translation>
    </message>
</context>
<context>
    <name>DuplicatesCommand</name>
    <message>
        <source>The same content:</source>
        <translation>Gleicher Inhalt:</translation>
    </message>
    <message>
        <source>The same stitches in other files:</source>
        <translation>Gleiche Stiche in anderen Dateien:</translation>
    </message>
    <message>
        <source>Very likely the same design, stitches within 0.2 mm:</source>
        <translation>Sehr wahrscheinlich dasselbe Stickmuster, Stiche auf 0,2 mm gleich:</translation>
    </message>
    <message>
        <source>Print the designs that are there more than once.</source>
        <translation>Mehrfach vorhandene Stickmuster ausgeben.</translation>
    </message>
    <message>
        <source>Prints the designs of the catalogue that are there more than once: files of the same content, and files with the same stitches, such as a design in two formats. Changes nothing.</source>
        <translation>Gibt die Stickmuster des Katalogs aus, die mehrfach vorhanden sind: Dateien gleichen Inhalts und Dateien mit gleichen Stichen, etwa ein Stickmuster in zwei Formaten. Ändert nichts.</translation>
    </message>
    <message>
        <source>Print one JSON object per group, a line each.</source>
        <translation>Je Gruppe ein JSON-Objekt ausgeben, jedes in einer Zeile.</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) could not be compared; they are missing, damaged, empty or have changed since the last scan.</source>
        <translation>
            <numerusform>%Ln Stickmuster konnte nicht verglichen werden; es fehlt, ist beschädigt, leer oder hat sich seit dem letzten Einlesen geändert.</numerusform>
            <numerusform>%Ln Stickmuster konnten nicht verglichen werden; sie fehlen, sind beschädigt, leer oder haben sich seit dem letzten Einlesen geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Comparing designs</source>
        <translation>Stickmuster werden verglichen</translation>
    </message>
    <message numerus="yes">
        <source>%n group(s)</source>
        <translation>
            <numerusform>%Ln Gruppe</numerusform>
            <numerusform>%Ln Gruppen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DuplicatesDialog</name>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>The designs could not be compared.</source>
        <translation>Die Stickmuster konnten nicht verglichen werden.</translation>
    </message>
    <message>
        <source>The catalogue has changed in the meantime.</source>
        <translation>Der Katalog hat sich inzwischen geändert.</translation>
    </message>
    <message>
        <source>Close this window and find the duplicates again.</source>
        <translation>Bitte dieses Fenster schließen und die Duplikate erneut suchen.</translation>
    </message>
    <message>
        <source>No file was moved.</source>
        <translation>Es wurde keine Datei verschoben.</translation>
    </message>
    <message>
        <source>The catalogue could not be saved, and with it what was said about these designs.</source>
        <translation>Der Katalog konnte nicht gespeichert werden und mit ihm, was zu diesen Stickmustern vermerkt ist.</translation>
    </message>
    <message numerus="yes">
        <source>Move %n file(s) to the trash?</source>
        <translation>
            <numerusform>%Ln Datei in den Papierkorb legen?</numerusform>
            <numerusform>%Ln Dateien in den Papierkorb legen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Kept, with the tags, the notes and the star of all:
%1</source>
        <translation>Behalten, mit den Schlagwörtern, den Notizen und dem Stern von allen:
%1</translation>
    </message>
    <message>
        <source>Files can be taken back out of the trash; the catalogue then finds them with the next rescan.</source>
        <translation>Dateien lassen sich aus dem Papierkorb zurückholen; der Katalog findet sie dann beim nächsten Einlesen.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) stayed where they were.</source>
        <translation>
            <numerusform>%Ln Datei blieb, wo sie war.</numerusform>
            <numerusform>%Ln Dateien blieben, wo sie waren.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>… und %Ln weitere</numerusform>
            <numerusform>… und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Comparing designs...</source>
        <translation>Stickmuster werden verglichen …</translation>
    </message>
    <message>
        <source>Moving files to the trash...</source>
        <translation>Dateien werden in den Papierkorb gelegt …</translation>
    </message>
</context>
<context>
    <name>DuplicatesPage</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Groups of duplicates</source>
        <translation>Gruppen von Duplikaten</translation>
    </message>
    <message>
        <source>Designs of the group; the chosen one is kept</source>
        <translation>Stickmuster der Gruppe; das gewählte wird behalten</translation>
    </message>
    <message>
        <source>There are no duplicates.</source>
        <translation>Es gibt keine Duplikate.</translation>
    </message>
    <message numerus="yes">
        <source>%n group(s)</source>
        <translation>
            <numerusform>%Ln Gruppe</numerusform>
            <numerusform>%Ln Gruppen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) could not be compared.</source>
        <translation>
            <numerusform>%Ln Stickmuster konnte nicht verglichen werden.</numerusform>
            <numerusform>%Ln Stickmuster konnten nicht verglichen werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are missing, damaged, empty or have changed since the last scan.</source>
        <translation>Sie fehlen, sind beschädigt, leer oder haben sich seit dem letzten Einlesen geändert.</translation>
    </message>
    <message>
        <source>&amp;Keep the chosen one, the others to the trash...</source>
        <translation>Gewähltes &amp;behalten, die anderen in den Papierkorb …</translation>
    </message>
    <message>
        <source>Moving to the trash...</source>
        <translation>Wird in den Papierkorb gelegt …</translation>
    </message>
</context>
<context>
    <name>EditCommand</name>
    <message numerus="yes">
        <source>%n design(s)</source>
        <translation>
            <numerusform>%Ln Stickmuster</numerusform>
            <numerusform>%Ln Stickmuster</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EmptyHint</name>
    <message>
        <source>Add a folder with embroidery designs to begin.</source>
        <translation>Fügen Sie zum Anfangen einen Ordner mit Stickmustern hinzu.</translation>
    </message>
    <message>
        <source>No embroidery designs were found in your folders. Add another folder, or put designs there and rescan.</source>
        <translation>In Ihren Ordnern wurden keine Stickmuster gefunden. Fügen Sie einen weiteren Ordner hinzu, oder legen Sie dort Stickmuster ab und lesen Sie neu ein.</translation>
    </message>
    <message>
        <source>No embroidery designs were found in this folder.</source>
        <translation>In diesem Ordner wurden keine Stickmuster gefunden.</translation>
    </message>
    <message>
        <source>No design matches the filter.</source>
        <translation>Kein Stickmuster passt zum Filter.</translation>
    </message>
    <message>
        <source>Add folder...</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Show all designs</source>
        <translation>Alle Stickmuster zeigen</translation>
    </message>
</context>
<context>
    <name>ExclusiveController</name>
    <message>
        <source>Another hoopline-cli is working on the catalogue.</source>
        <translation>Ein anderes hoopline-cli arbeitet am Katalog.</translation>
    </message>
    <message>
        <source>The catalogue was changed meanwhile. Nothing was saved.</source>
        <translation>Der Katalog wurde inzwischen geändert. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>Hoopline Organizer was started meanwhile. Nothing was saved.</source>
        <translation>Hoopline Organizer wurde inzwischen gestartet. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>No backup of the catalogue could be made: %1</source>
        <translation>Der Katalog konnte nicht gesichert werden: %1</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>Write tags, notes and stars, to take them along.</source>
        <translation>Schlagwörter, Notizen und Sterne ausgeben, um sie mitzunehmen.</translation>
    </message>
    <message>
        <source>Writes the tags, notes and stars of the catalogue to a file, or to standard output: a line for each design that has any, known by its content, its path and its name. &apos;hoopline-cli import&apos; reads it.</source>
        <translation>Schreibt die Schlagwörter, Notizen und Sterne des Katalogs in eine Datei oder auf die Standardausgabe: eine Zeile für jedes Stickmuster, das welche hat, mit Inhalt, Pfad und Namen als Kennzeichen. „hoopline-cli import“ liest das.</translation>
    </message>
    <message>
        <source>Write JSON, as without it for a FILE that ends in .json.</source>
        <translation>JSON schreiben, wie ohne die Option bei einer Datei auf .json.</translation>
    </message>
    <message>
        <source>Write comma-separated values, as for all others.</source>
        <translation>Kommagetrennte Werte schreiben, wie bei allen anderen.</translation>
    </message>
    <message>
        <source>Replace a file that is there.</source>
        <translation>Eine vorhandene Datei ersetzen.</translation>
    </message>
    <message>
        <source>Choose one of --json and --csv.</source>
        <translation>Wählen Sie entweder --json oder --csv.</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s)</source>
        <translation>
            <numerusform>%Ln Stickmuster</numerusform>
            <numerusform>%Ln Stickmuster</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message numerus="yes">
        <source>%n file(s) will be copied.</source>
        <translation>
            <numerusform>%Ln Datei wird kopiert.</numerusform>
            <numerusform>%Ln Dateien werden kopiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>No removable USB drive found</source>
        <translation>Kein USB-Wechseldatenträger gefunden</translation>
    </message>
    <message>
        <source>Failed to copy file %1</source>
        <translation>Datei %1 konnte nicht kopiert werden</translation>
    </message>
    <message>
        <source>Cannot copy file to %1</source>
        <translation>Die Datei kann nicht nach %1 kopiert werden</translation>
    </message>
    <message>
        <source>Copying file %1...</source>
        <translation>%1 wird kopiert …</translation>
    </message>
    <message>
        <source>File %1 of %2, %3 of %4 MB</source>
        <translation>Datei %1 von %2, %3 von %4 MB</translation>
    </message>
    <message>
        <source>File %1 of %2, %3 of %4 KB</source>
        <translation>Datei %1 von %2, %3 von %4 KB</translation>
    </message>
    <message>
        <source>Looking for drives...</source>
        <translation>Datenträger werden gesucht …</translation>
    </message>
    <message>
        <source>Copying to the drive...</source>
        <translation>Auf das Laufwerk wird kopiert …</translation>
    </message>
</context>
<context>
    <name>ExportDialogUI</name>
    <message>
        <source>Transfer embroidery files to machine</source>
        <translation>Stickdateien auf die Maschine übertragen</translation>
    </message>
    <message>
        <source>Select target:</source>
        <translation>Ziel auswählen:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>FabricButton</name>
    <message>
        <source>Fabric</source>
        <translation>Stoff</translation>
    </message>
    <message>
        <source>The color of the fabric</source>
        <translation>Die Farbe des Stoffs</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Leinen</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sand</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rosé</translation>
    </message>
    <message>
        <source>Sage</source>
        <translation>Salbei</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Denim</source>
        <translation>Jeansblau</translation>
    </message>
    <message>
        <source>Burgundy</source>
        <translation>Burgunderrot</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Other color...</source>
        <translation>Andere Farbe …</translation>
    </message>
</context>
<context>
    <name>FavoriteCommand</name>
    <message>
        <source>Make designs favorites, or no longer.</source>
        <translation>Stickmuster zu Favoriten machen, oder nicht länger.</translation>
    </message>
    <message>
        <source>Makes the designs favorites. A dash reads their names from standard input.</source>
        <translation>Macht die Stickmuster zu Favoriten. Ein Strich liest ihre Namen von der Standardeingabe.</translation>
    </message>
    <message>
        <source>They are no longer favorites.</source>
        <translation>Sie sind keine Favoriten mehr.</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>Max. size (%1):</source>
        <translation>Max. Größe (%1):</translation>
    </message>
    <message>
        <source>in</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
</context>
<context>
    <name>FilterBarUI</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>File type:</source>
        <translation>Dateityp:</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Max. size (%1):</source>
        <translation>Max. Größe (%1):</translation>
    </message>
    <message>
        <source>Maximum width</source>
        <translation>Größte Breite</translation>
    </message>
    <message>
        <source>x</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Maximum height</source>
        <translation>Größte Höhe</translation>
    </message>
    <message>
        <source>Search text:</source>
        <translation>Suchtext:</translation>
    </message>
    <message>
        <source>Search text</source>
        <translation>Suchtext</translation>
    </message>
    <message>
        <source>Clear the search text</source>
        <translation>Suchtext löschen</translation>
    </message>
    <message>
        <source>Show favorites only</source>
        <translation>Nur Favoriten zeigen</translation>
    </message>
    <message>
        <source>Apply the filter again</source>
        <translation>Filter erneut anwenden</translation>
    </message>
    <message>
        <source>What can be searched for</source>
        <translation>Wonach gesucht werden kann</translation>
    </message>
</context>
<context>
    <name>FolderChangeNotice</name>
    <message>
        <source>Rescan</source>
        <translation>Neu einlesen</translation>
    </message>
    <message>
        <source>The folder %1 has changed.</source>
        <translation>Der Ordner %1 hat sich geändert.</translation>
    </message>
    <message numerus="yes">
        <source>%n folders have changed.</source>
        <translation>
            <numerusform>%Ln Ordner hat sich geändert.</numerusform>
            <numerusform>%Ln Ordner haben sich geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the names of folders</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>The folders %1 and %2 have changed.</source>
        <translation>Die Ordner %1 und %2 haben sich geändert.</translation>
    </message>
    <message>
        <source>Looking through the folders...</source>
        <translation>Ordner werden durchgesehen …</translation>
    </message>
</context>
<context>
    <name>FoldersCommand</name>
    <message>
        <source>&apos;%1&apos; is none of the catalogue&apos;s folders</source>
        <translation>„%1“ ist keiner der Ordner des Katalogs</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) in there have tags, notes or a star, which &apos;hoopline-cli export&apos; keeps. --force removes the folders all the same. Nothing was changed.</source>
        <translation>
            <numerusform>%Ln Stickmuster darin hat Schlagwörter, Notizen oder einen Stern; „hoopline-cli export“ bewahrt sie. --force entfernt die Ordner trotzdem. Es wurde nichts geändert.</numerusform>
            <numerusform>%Ln Stickmuster darin haben Schlagwörter, Notizen oder einen Stern; „hoopline-cli export“ bewahrt sie. --force entfernt die Ordner trotzdem. Es wurde nichts geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>List the folders of the catalogue, or take some out.</source>
        <translation>Die Ordner des Katalogs auflisten oder einige herausnehmen.</translation>
    </message>
    <message>
        <source>Lists the folders of the catalogue, or takes some and their designs out of it. On the disk nothing is changed.</source>
        <translation>Listet die Ordner des Katalogs auf oder nimmt einige und ihre Stickmuster heraus. Auf der Festplatte ändert sich nichts.</translation>
    </message>
    <message>
        <source>End each folder with a NUL rather than a line.</source>
        <translation>Jeden Ordner mit NUL statt mit der Zeile beenden.</translation>
    </message>
    <message>
        <source>Remove folders though tags, notes or stars go with them.</source>
        <translation>Ordner entfernen, auch wenn Schlagwörter, Notizen oder Sterne mitgehen.</translation>
    </message>
    <message>
        <source>No folder given.</source>
        <translation>Kein Ordner angegeben.</translation>
    </message>
    <message>
        <source>remove directory</source>
        <translation>Ordner entfernen</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) left the catalogue</source>
        <translation>
            <numerusform>%Ln Stickmuster hat den Katalog verlassen</numerusform>
            <numerusform>%Ln Stickmuster haben den Katalog verlassen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GridEmbroideryItem</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>GridGraphicsView</name>
    <message>
        <source>Designs</source>
        <translation>Stickmuster</translation>
    </message>
    <message>
        <source>The arrow keys choose a design, Return opens it, Space enlarges it, F marks it as a favorite.</source>
        <translation>Die Pfeiltasten wählen ein Stickmuster aus, die Eingabetaste öffnet es, die Leertaste vergrößert es, F macht es zum Favoriten.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Selects this design alone</source>
        <translation>Wählt nur dieses Stickmuster aus</translation>
    </message>
    <message>
        <source>Selects this design beside others, or no longer does</source>
        <translation>Nimmt dieses Stickmuster in die Auswahl oder heraus</translation>
    </message>
    <message>
        <source>Opens the design in its window</source>
        <translation>Öffnet das Stickmuster in seinem Fenster</translation>
    </message>
    <message>
        <source>Marks the design as a favorite, or no longer does</source>
        <translation>Macht das Stickmuster zum Favoriten oder nimmt ihm den Stern</translation>
    </message>
</context>
<context>
    <name>GzipFormat</name>
    <message>
        <source>The compressed file is damaged.</source>
        <translation>Die komprimierte Datei ist beschädigt.</translation>
    </message>
</context>
<context>
    <name>ImportCommand</name>
    <message>
        <source>%1 is not in the catalogue</source>
        <translation>%1 ist nicht im Katalog</translation>
    </message>
    <message>
        <source>Bring exported tags, notes and stars into the catalogue.</source>
        <translation>Ausgegebene Schlagwörter, Notizen und Sterne in den Katalog bringen.</translation>
    </message>
    <message>
        <source>Brings the tags, notes and stars of a file that &apos;hoopline-cli export&apos; has written, or of standard input, to the designs of the same content, or else of the same path. What is there stays: notes are written below those that differ.</source>
        <translation>Bringt die Schlagwörter, Notizen und Sterne einer Datei, die „hoopline-cli export“ geschrieben hat, oder der Standardeingabe zu den Stickmustern mit gleichem Inhalt, sonst mit gleichem Pfad. Was da ist, bleibt: Notizen werden unter abweichende geschrieben.</translation>
    </message>
    <message>
        <source>Only tell what would happen.</source>
        <translation>Nur sagen, was geschehen würde.</translation>
    </message>
    <message>
        <source>No file given.</source>
        <translation>Keine Datei angegeben.</translation>
    </message>
</context>
<context>
    <name>InspectCommand</name>
    <message>
        <source>Reads designs and tells about them.</source>
        <translation>Liest Stickmuster und gibt Auskunft über sie.</translation>
    </message>
    <message>
        <source>Print one JSON object per file, a line each.</source>
        <translation>Ein JSON-Objekt je Datei ausgeben, jedes in einer Zeile.</translation>
    </message>
    <message>
        <source>With --json, list every point.</source>
        <translation>Mit --json jeden Punkt aufführen.</translation>
    </message>
    <message>
        <source>No file given.</source>
        <translation>Keine Datei angegeben.</translation>
    </message>
    <message>
        <source>Only one file can be rendered at a time.</source>
        <translation>Es kann nur eine Datei auf einmal gezeichnet werden.</translation>
    </message>
    <message>
        <source>Read designs and tell about them.</source>
        <translation>Stickmuster lesen und Auskunft geben.</translation>
    </message>
    <message>
        <source>With --render, replace a file that is there.</source>
        <translation>Mit --render eine vorhandene Datei ersetzen.</translation>
    </message>
    <message>
        <source>Write the preview of the one file as PNG; a dash is standard output.</source>
        <translation>Die Vorschau der einen Datei als PNG schreiben; ein Strich ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Choose one of --json and a picture on standard output.</source>
        <translation>Wählen Sie entweder --json oder ein Bild auf der Standardausgabe.</translation>
    </message>
</context>
<context>
    <name>ListCommand</name>
    <message>
        <source>The folder must not be empty.</source>
        <translation>Der Ordner darf nicht leer sein.</translation>
    </message>
    <message>
        <source>The size must look like 100x130.</source>
        <translation>Die Größe muss die Form 100x130 haben.</translation>
    </message>
    <message>
        <source>Only designs below this folder.</source>
        <translation>Nur Stickmuster unterhalb dieses Ordners.</translation>
    </message>
    <message>
        <source>Only designs with this tag.</source>
        <translation>Nur Stickmuster mit diesem Schlagwort.</translation>
    </message>
    <message>
        <source>Only designs of this format, for instance dst.</source>
        <translation>Nur Stickmuster dieses Formats, zum Beispiel dst.</translation>
    </message>
    <message>
        <source>Print one JSON object per design, a line each.</source>
        <translation>Ein JSON-Objekt je Stickmuster ausgeben, jedes in einer Zeile.</translation>
    </message>
    <message>
        <source>Print comma-separated values.</source>
        <translation>Kommagetrennte Werte ausgeben.</translation>
    </message>
    <message>
        <source>Unknown type &apos;%1&apos;; there are %2.</source>
        <translation>Unbekanntes Format „%1“; es gibt %2.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; is not in the catalogue.</source>
        <translation>Der Ordner „%1“ ist nicht im Katalog.</translation>
    </message>
    <message>
        <source>Print the designs of the catalogue.</source>
        <translation>Die Stickmuster des Katalogs ausgeben.</translation>
    </message>
    <message>
        <source>Prints the designs of the catalogue, narrowed as in the organizer.</source>
        <translation>Gibt die Stickmuster des Katalogs aus, gefiltert wie im Programm.</translation>
    </message>
    <message>
        <source>Only designs that fit into this many millimeters.</source>
        <translation>Nur Stickmuster, die in so viele Millimeter passen.</translation>
    </message>
    <message>
        <source>Only favorites.</source>
        <translation>Nur Favoriten.</translation>
    </message>
    <message>
        <source>The order must be one of %1, perhaps with :desc behind it.</source>
        <translation>Die Reihenfolge muss %1 sein, vielleicht mit :desc dahinter.</translation>
    </message>
    <message>
        <source>Only designs that match, as in the search field: text in the file name or the notes, and fields such as %1. The manual tells them all.</source>
        <translation>Nur Stickmuster, auf die das zutrifft, wie im Suchfeld: Text im Dateinamen oder in den Notizen und Felder wie %1. Das Handbuch nennt alle.</translation>
    </message>
    <message>
        <source>Order by %1; with :desc behind it downwards.</source>
        <translation>Nach %1 ordnen; mit :desc dahinter absteigend.</translation>
    </message>
    <message>
        <source>Choose one of %1.</source>
        <translation>Wählen Sie eines von %1.</translation>
    </message>
    <message>
        <source>Print a line of this form per design, for instance %1.</source>
        <translation>Je Stickmuster eine Zeile dieser Form ausgeben, zum Beispiel %1.</translation>
    </message>
    <message>
        <source>Print only how many designs there are.</source>
        <translation>Nur ausgeben, wie viele Stickmuster es sind.</translation>
    </message>
    <message>
        <source>Print the files, or lines of --format, each with a NUL behind it.</source>
        <translation>Die Dateien, oder Zeilen von --format, mit je einem NUL dahinter ausgeben.</translation>
    </message>
</context>
<context>
    <name>LocaleAwareFunctions</name>
    <message>
        <source>%1&quot; × %2&quot;</source>
        <translation>%1&quot; × %2&quot;</translation>
    </message>
    <message>
        <source>%1 mm × %2 mm</source>
        <translation>%1 mm × %2 mm</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Loading ...</source>
        <translation>Wird geladen …</translation>
    </message>
    <message>
        <source>Number of stitches: 99 mm x 99 mm</source>
        <translation>Anzahl der Stiche: 999 mm × 999 mm</translation>
    </message>
    <message>
        <source>Select folder to add</source>
        <translation>Ordner zum Hinzufügen auswählen</translation>
    </message>
    <message>
        <source>Remove selected folder from list?</source>
        <translation>Ausgewählten Ordner aus der Liste entfernen?</translation>
    </message>
    <message>
        <source>No embroidery files selected!</source>
        <translation>Keine Stickdateien ausgewählt!</translation>
    </message>
    <message>
        <source>Please select the files you want to transfer to your embroidery machine.</source>
        <translation>Bitte wählen Sie die Dateien aus, die auf Ihre Stickmaschine übertragen werden sollen.</translation>
    </message>
    <message>
        <source>&amp;Add folder...</source>
        <translation>Ordner hin&amp;zufügen …</translation>
    </message>
    <message>
        <source>&amp;Remove folder</source>
        <translation>Ordner &amp;entfernen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Zoom in</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>&amp;Zoom out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Transfer to machine</source>
        <translation>Auf die Maschine übertragen</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>&amp;Neu einlesen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Ordner werden durchsucht …</translation>
    </message>
    <message>
        <source>&amp;Open design</source>
        <translation>Stickmuster ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Removing the folder...</source>
        <translation>Der Ordner wird entfernt …</translation>
    </message>
    <message>
        <source>Find &amp;duplicates...</source>
        <translation>&amp;Duplikate suchen …</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>tool tip and key</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Add a folder with embroidery designs</source>
        <translation>Einen Ordner mit Stickmustern hinzufügen</translation>
    </message>
    <message>
        <source>Remove folder</source>
        <translation>Ordner entfernen</translation>
    </message>
    <message>
        <source>Take the selected folder off the list; its files stay</source>
        <translation>Den ausgewählten Ordner von der Liste nehmen; seine Dateien bleiben</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Neu einlesen</translation>
    </message>
    <message>
        <source>Look for new, changed and missing designs</source>
        <translation>Nach neuen, geänderten und fehlenden Stickmustern sehen</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Make the cards smaller</source>
        <translation>Die Karten verkleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Make the cards larger</source>
        <translation>Die Karten vergrößern</translation>
    </message>
    <message>
        <source>Copy the selected designs to the drive of your machine</source>
        <translation>Die ausgewählten Stickmuster auf den Datenträger Ihrer Maschine kopieren</translation>
    </message>
    <message>
        <source>Tutorials</source>
        <translation>Anleitungen</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>Das Handbuch öffnen</translation>
    </message>
    <message>
        <source>Re&amp;scan</source>
        <translation>&amp;Neu einlesen</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Select &amp;nothing</source>
        <translation>&amp;Nichts auswählen</translation>
    </message>
    <message>
        <source>&amp;Favorite</source>
        <translation>&amp;Favorit</translation>
    </message>
    <message>
        <source>Edit &amp;tags</source>
        <translation>S&amp;chlagwörter bearbeiten</translation>
    </message>
    <message>
        <source>Sea&amp;rch</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Normal size</source>
        <translation>&amp;Normale Größe</translation>
    </message>
    <message>
        <source>&amp;Enlarged preview</source>
        <translation>Vergrößerte &amp;Vorschau</translation>
    </message>
    <message>
        <source>&amp;Folders and tags</source>
        <translation>&amp;Ordner und Schlagwörter</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Eigenschaften</translation>
    </message>
    <message>
        <source>&amp;Backups...</source>
        <translation>&amp;Sicherungen …</translation>
    </message>
    <message>
        <source>The backup could not be restored.</source>
        <translation>Die Sicherung konnte nicht zurückgeholt werden.</translation>
    </message>
</context>
<context>
    <name>NoteCommand</name>
    <message>
        <source>Write notes on designs.</source>
        <translation>Notizen zu Stickmustern schreiben.</translation>
    </message>
    <message>
        <source>Writes notes on the designs. A dash reads the text, or the names of the designs, from standard input. Where there are other notes nothing is changed until you say what is to become of them.</source>
        <translation>Schreibt Notizen zu den Stickmustern. Ein Strich liest den Text oder die Namen der Stickmuster von der Standardeingabe. Wo andere Notizen sind, wird nichts geändert, bis Sie sagen, was aus ihnen werden soll.</translation>
    </message>
    <message>
        <source>Write below the notes that are there.</source>
        <translation>Unter die vorhandenen Notizen schreiben.</translation>
    </message>
    <message>
        <source>Replace the notes that are there.</source>
        <translation>Die vorhandenen Notizen ersetzen.</translation>
    </message>
    <message>
        <source>No text given.</source>
        <translation>Kein Text angegeben.</translation>
    </message>
    <message>
        <source>Choose one of --append and --replace.</source>
        <translation>Wählen Sie entweder --append oder --replace.</translation>
    </message>
    <message>
        <source>Only one thing can come from standard input.</source>
        <translation>Von der Standardeingabe kann nur eines kommen.</translation>
    </message>
    <message>
        <source>%1 has other notes; --append or --replace says what becomes of them. Nothing was changed.</source>
        <translation>%1 hat andere Notizen; --append oder --replace sagt, was aus ihnen wird. Es wurde nichts geändert.</translation>
    </message>
</context>
<context>
    <name>NoticeRow</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
</context>
<context>
    <name>OrganiserGuard</name>
    <message>
        <source>Hoopline Organizer is running. Close it first, or do it in its window.</source>
        <translation>Hoopline Organizer läuft. Schließen Sie es zuerst oder erledigen Sie es in seinem Fenster.</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>The output must not bear the name of a design: %1</source>
        <translation>Die Ausgabe darf nicht wie ein Stickmuster heißen: %1</translation>
    </message>
    <message>
        <source>The output must not replace what is read: %1</source>
        <translation>Die Ausgabe darf nicht ersetzen, was gelesen wird: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder</source>
        <translation>„%1“ ist ein Ordner</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists; --force replaces it</source>
        <translation>„%1“ gibt es schon; --force ersetzt die Datei</translation>
    </message>
    <message>
        <source>Failed to write %1: the folder &apos;%2&apos; is not there</source>
        <translation>%1 konnte nicht geschrieben werden: Den Ordner „%2“ gibt es nicht</translation>
    </message>
</context>
<context>
    <name>PathOpener</name>
    <message>
        <source>Not a design that can be shown: %1</source>
        <translation>Kein Stickmuster, das sich anzeigen lässt: %1</translation>
    </message>
    <message numerus="yes">
        <source>Add %n folder(s) to your collection?</source>
        <translation>
            <numerusform>Diesen Ordner in Ihre Sammlung aufnehmen?</numerusform>
            <numerusform>Diese %Ln Ordner in Ihre Sammlung aufnehmen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message numerus="yes">
        <source>%n design(s) were not read yet. Rescan the folders?</source>
        <translation>
            <numerusform>Dieses Stickmuster wurde noch nicht eingelesen. Ordner neu einlesen?</numerusform>
            <numerusform>Diese %Ln Stickmuster wurden noch nicht eingelesen. Ordner neu einlesen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Neu einlesen</translation>
    </message>
    <message>
        <source>Add the folder of &apos;%1&apos; to your collection?</source>
        <translation>Den Ordner von „%1“ in Ihre Sammlung aufnehmen?</translation>
    </message>
</context>
<context>
    <name>PdfFile</name>
    <message>
        <source>Failed to write %1: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>PlaybackBar</name>
    <message>
        <source>One stitch back</source>
        <translation>Einen Stich zurück</translation>
    </message>
    <message>
        <source>One stitch back (comma)</source>
        <translation>Einen Stich zurück (Komma)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>One stitch forward</source>
        <translation>Einen Stich vor</translation>
    </message>
    <message>
        <source>One stitch forward (period)</source>
        <translation>Einen Stich vor (Punkt)</translation>
    </message>
    <message>
        <source>%1 stitches/s</source>
        <translation>%1 Stiche/s</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>%1 (Space)</source>
        <translation>%1 (Leertaste)</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>use imperial units (inch)</source>
        <translation>Maße in Zoll</translation>
    </message>
    <message>
        <source>Tags, notes and design previews are stored in this directory:</source>
        <translation>Schlagwörter, Notizen und Vorschaubilder liegen in diesem Ordner:</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>Updates &amp;&amp; Privacy</source>
        <translation>Aktualisierungen &amp;&amp; Datenschutz</translation>
    </message>
    <message>
        <source>&lt;b&gt;Hoopline Organizer updates&lt;/b&gt;</source>
        <translation>&lt;b&gt;Aktualisierungen von Hoopline Organizer&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Automatically check for updates</source>
        <translation>Automatisch nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>Include beta updates (always enabled for beta versions)</source>
        <translation>Betaversionen einschließen (bei Betaversionen immer eingeschaltet)</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Please help us to improve Hoopline Organizer!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;We&apos;d like to improve Hoopline Organizer - making it a better tool for you. To do this we need some more information about how people are using our tools.&lt;/p&gt;&lt;p&gt;By enabling this option you agree to transmit the following data. As you see no private or personal data is transferred:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Number of CPU cores, memory, display size&lt;/li&gt;&lt;li&gt;Operating system (type, version)&lt;/li&gt;&lt;li&gt;Application: Version, timings&lt;/li&gt;&lt;li&gt;Random user indentifier (%1)&lt;/li&gt;&lt;li&gt;Days since application was installed&lt;/li&gt;&lt;li&gt;File information (format, num. stitches)&lt;/li&gt;&lt;li&gt;Do not track status&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Please check our &lt;a href=&quot;%2&quot;&gt;privacy policy&lt;/a&gt; for details.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Bitte helfen Sie uns, Hoopline Organizer zu verbessern!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Wir möchten Hoopline Organizer verbessern und für Sie nützlicher machen. Dazu müssen wir mehr darüber wissen, wie unsere Programme verwendet werden.&lt;/p&gt;&lt;p&gt;Wenn Sie diese Option einschalten, stimmen Sie der Übertragung der folgenden Daten zu. Wie Sie sehen, werden keine privaten oder persönlichen Daten übertragen:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Anzahl der Prozessorkerne, Arbeitsspeicher, Bildschirmgröße&lt;/li&gt;&lt;li&gt;Betriebssystem (Art, Version)&lt;/li&gt;&lt;li&gt;Anwendung: Version, Laufzeiten&lt;/li&gt;&lt;li&gt;Zufällige Benutzerkennung (%1)&lt;/li&gt;&lt;li&gt;Tage seit der Installation&lt;/li&gt;&lt;li&gt;Dateiangaben (Format, Stichzahl)&lt;/li&gt;&lt;li&gt;Einstellung zur Nachverfolgung&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Näheres finden Sie in unserer &lt;a href=&quot;%2&quot;&gt;Datenschutzerklärung&lt;/a&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Enable data collection</source>
        <translation>Datenerfassung einschalten</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Forget...</source>
        <translation>Vergessen …</translation>
    </message>
    <message numerus="yes">
        <source>The tags, notes and stars of %n design(s) that left the catalogue are remembered. Designs that come back get them back.</source>
        <translation>
            <numerusform>Die Schlagwörter, Notizen und Sterne von %n Stickmuster, das den Katalog verlassen hat, sind aufgehoben. Wenn es wiederkommt, bekommt es sie zurück.</numerusform>
            <numerusform>Die Schlagwörter, Notizen und Sterne von %n Stickmustern, die den Katalog verlassen haben, sind aufgehoben. Wenn sie wiederkommen, bekommen sie sie zurück.</numerusform>
        </translation>
    </message>
    <message>
        <source>The tags, notes and stars of designs that leave the catalogue are remembered. For now there are none.</source>
        <translation>Die Schlagwörter, Notizen und Sterne von Stickmustern, die den Katalog verlassen, werden aufgehoben. Zurzeit gibt es keine.</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to forget the tags, notes and stars of %n design(s)?</source>
        <translation>
            <numerusform>Sollen die Schlagwörter, Notizen und Sterne von %n Stickmuster vergessen werden?</numerusform>
            <numerusform>Sollen die Schlagwörter, Notizen und Sterne von %n Stickmustern vergessen werden?</numerusform>
        </translation>
    </message>
    <message>
        <source>This cannot be undone. Designs in the catalogue keep theirs.</source>
        <translation>Das lässt sich nicht rückgängig machen. Stickmuster im Katalog behalten ihre.</translation>
    </message>
</context>
<context>
    <name>PreviewSheet</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ProgramArguments</name>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option „%1“.</translation>
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
        <translation>Stickmuster durchsehen, verschlagworten und an die Stickmaschine übertragen.
Ein Stickmuster wird im Fenster gezeigt; ein neuer Ordner wird zum Hinzufügen angeboten.
Ein zweiter Start reicht sie an das offene Fenster weiter.

Optionen:
  -h, --help        Diese Hilfe ausgeben.
  -V, --version     Die Version ausgeben.
  --language=CODE   Diese Sprache benutzen: en, de oder zh-CN.
  --do-not-track    Die Erfassung von Nutzungsdaten abschalten.
  --flushsettings   Alle Einstellungen vergessen und beenden.
  --report-crash    Nur anbieten, den Bericht eines Absturzes zu senden.
</translation>
    </message>
</context>
<context>
    <name>ProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>ProjectController</name>
    <message>
        <source>add directory</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>remove directory</source>
        <translation>Ordner entfernen</translation>
    </message>
</context>
<context>
    <name>PropertiesBox</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Design size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Number of stitches</source>
        <translation>Stichzahl</translation>
    </message>
    <message>
        <source>Number of colors</source>
        <translation>Anzahl Farben</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message numerus="yes">
        <source>%n files selected</source>
        <translation>
            <numerusform>%Ln Datei ausgewählt</numerusform>
            <numerusform>%Ln Dateien ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>no file selected</source>
        <translation>keine Datei ausgewählt</translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>caption of a value</comment>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>PropertyEdit</name>
    <message>
        <source>multiple values</source>
        <translation>mehrere Werte</translation>
    </message>
    <message>
        <source>property editor: type conflict in multi-selection&apos;</source>
        <translation>Eigenschaften: Typkonflikt in der Mehrfachauswahl</translation>
    </message>
    <message>
        <source>&apos;%1&apos; change</source>
        <translation>„%1“ ändern</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>XML parser error: %1 (line %2)</source>
        <translation>XML-Fehler: %1 (Zeile %2)</translation>
    </message>
    <message>
        <source>Unknown list element &apos;%1&apos;</source>
        <translation>Unbekanntes Listenelement „%1“</translation>
    </message>
    <message>
        <source>Failed to open file &apos;%1&apos;</source>
        <translation>Datei „%1“ konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a Hoopline Organizer project file</source>
        <translation>„%1“ ist keine Projektdatei von Hoopline Organizer</translation>
    </message>
    <message>
        <source>Failed to read file &apos;%1&apos;: %2</source>
        <translation>Die Datei „%1“ konnte nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>Query</name>
    <message>
        <source>a range needs at least one end, as in 50..80</source>
        <translation>ein Bereich braucht mindestens ein Ende, wie in 50..80</translation>
    </message>
    <message>
        <source>there is nothing behind &apos;%1&apos;</source>
        <translation>hinter „%1“ fehlt etwas</translation>
    </message>
    <message>
        <source>the range begins behind its end</source>
        <translation>der Bereich beginnt hinter seinem Ende</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no length such as 100, 12.5cm or 4in</source>
        <translation>„%1“ ist keine Länge wie 100, 12,5cm oder 4in</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no size such as 130x180 or 5x7in</source>
        <translation>„%1“ ist keine Größe wie 130x180 oder 5x7in</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no date such as 2024, 2024-05 or 2024-05-31</source>
        <translation>„%1“ ist kein Datum wie 2024, 2024-05 oder 2024-05-31</translation>
    </message>
    <message>
        <source>%1: what is it to be? For instance %2</source>
        <translation>%1: Was soll es sein? Zum Beispiel %2</translation>
    </message>
    <message>
        <source>&apos;%1:&apos; is searched as text. Is &apos;%2:&apos; meant?</source>
        <translation>„%1:“ wird als Text gesucht. Ist „%2:“ gemeint?</translation>
    </message>
    <message>
        <source>bear this tag</source>
        <translation>dieses Schlagwort haben</translation>
    </message>
    <message>
        <source>have this in their name</source>
        <translation>dies im Namen haben</translation>
    </message>
    <message>
        <source>lie in a folder with this in its path</source>
        <translation>in einem Ordner mit diesem Pfadteil liegen</translation>
    </message>
    <message>
        <source>are of this format</source>
        <translation>dieses Format haben</translation>
    </message>
    <message>
        <source>have so many stitches</source>
        <translation>so viele Stiche haben</translation>
    </message>
    <message>
        <source>have so many thread colors</source>
        <translation>so viele Garnfarben haben</translation>
    </message>
    <message>
        <source>are so wide, in millimeters or with &apos;in&apos; in inches</source>
        <translation>so breit sind, in Millimetern oder mit „in“ in Zoll</translation>
    </message>
    <message>
        <source>are so high</source>
        <translation>so hoch sind</translation>
    </message>
    <message>
        <source>fit into this hoop, also turned</source>
        <translation>in diesen Rahmen passen, auch gedreht</translation>
    </message>
    <message>
        <source>have a thread near this color, also as #c03020</source>
        <translation>ein Garn nahe dieser Farbe haben, auch als #c03020</translation>
    </message>
    <message>
        <source>have a thread with this in its name or chart</source>
        <translation>ein Garn mit diesem Namen oder dieser Farbkarte haben</translation>
    </message>
    <message>
        <source>have a file changed within a week, also as 2024-05</source>
        <translation>vor weniger als einer Woche geändert wurden, auch als 2024-05</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is none of %2</source>
        <translation>„%1“ ist keines von %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no color such as red or #c03020</source>
        <translation>„%1“ ist keine Farbe wie rot oder #c03020</translation>
    </message>
    <message>
        <source>are favorites; also untagged, duplicate, unreadable</source>
        <translation>Favoriten sind; auch untagged, duplicate, unreadable</translation>
    </message>
</context>
<context>
    <name>ReadDesign</name>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Die Datei lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>There are no stitches in this design.</source>
        <translation>Dieses Stickmuster hat keine Stiche.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Die Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>The file is damaged or not what its name says.</source>
        <translation>Die Datei ist beschädigt oder nicht das, was ihr Name sagt.</translation>
    </message>
    <message>
        <source>There is not enough memory for this design.</source>
        <translation>Für dieses Stickmuster reicht der Arbeitsspeicher nicht.</translation>
    </message>
</context>
<context>
    <name>Reconnection</name>
    <message>
        <source>Looking for moved designs</source>
        <translation>Verschobene Stickmuster werden gesucht</translation>
    </message>
</context>
<context>
    <name>RestoreCommand</name>
    <message>
        <source>Put a backup into the place of the catalogue.</source>
        <translation>Eine Sicherung an die Stelle des Katalogs setzen.</translation>
    </message>
    <message>
        <source>Puts a backup, or another copy of a catalogue, into the place of the catalogue. The catalogue that was there is kept among the backups, and its path printed.</source>
        <translation>Setzt eine Sicherung oder eine andere Kopie eines Katalogs an die Stelle des Katalogs. Der bisherige Katalog wird bei den Sicherungen aufgehoben und sein Pfad ausgegeben.</translation>
    </message>
    <message>
        <source>No file given.</source>
        <translation>Keine Datei angegeben.</translation>
    </message>
    <message>
        <source>Only one file can be given.</source>
        <translation>Es kann nur eine Datei angegeben werden.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no whole catalogue.</source>
        <translation>„%1“ ist kein vollständiger Katalog.</translation>
    </message>
    <message>
        <source>The saved searches of the backup could not be kept: %1</source>
        <translation>Die gespeicherten Suchen der Sicherung konnten nicht aufgehoben werden: %1</translation>
    </message>
</context>
<context>
    <name>SavedSearches</name>
    <message>
        <source>A saved search needs a name.</source>
        <translation>Eine gespeicherte Suche braucht einen Namen.</translation>
    </message>
    <message>
        <source>There is a saved search named &apos;%1&apos; already.</source>
        <translation>Es gibt schon eine gespeicherte Suche namens „%1“.</translation>
    </message>
</context>
<context>
    <name>SavedSearchesBox</name>
    <message>
        <source>Saved searches</source>
        <translation>Gespeicherte Suchen</translation>
    </message>
    <message>
        <source>Save search</source>
        <translation>Suche speichern</translation>
    </message>
    <message>
        <source>Rename saved search</source>
        <translation>Gespeicherte Suche umbenennen</translation>
    </message>
    <message>
        <source>Remove saved search</source>
        <translation>Gespeicherte Suche entfernen</translation>
    </message>
    <message>
        <source>Type a search above the designs and save it to find it here.</source>
        <translation>Suche oben eingeben und hier speichern.</translation>
    </message>
    <message>
        <source>Remove the saved search &apos;%1&apos;?</source>
        <translation>Die gespeicherte Suche „%1“ entfernen?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>ScanCommand</name>
    <message>
        <source>Adds the folders to the catalogue and brings it into line with the disk. Without a folder it rescans the folders that are there.</source>
        <translation>Nimmt die Ordner in den Katalog auf und gleicht ihn mit der Festplatte ab. Ohne Angabe eines Ordners werden die vorhandenen neu eingelesen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a folder</source>
        <translation>„%1“ ist kein Ordner</translation>
    </message>
    <message>
        <source>Add folders to the catalogue, bring it into line with the disk.</source>
        <translation>Ordner in den Katalog aufnehmen, ihn mit der Festplatte abgleichen.</translation>
    </message>
    <message>
        <source>Go on while a folder is missing or suddenly empty; its designs leave the catalogue.</source>
        <translation>Auch weitermachen, wenn ein Ordner fehlt oder plötzlich leer ist; seine Stickmuster verlassen den Katalog.</translation>
    </message>
    <message>
        <source>Only tell what would happen.</source>
        <translation>Nur sagen, was geschehen würde.</translation>
    </message>
    <message>
        <source>Tell it as JSON objects, a line each.</source>
        <translation>Es als JSON-Objekte sagen, je eines pro Zeile.</translation>
    </message>
</context>
<context>
    <name>ScanNotice</name>
    <message>
        <source>Nothing has changed.</source>
        <translation>Es hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>The scan was stopped.</source>
        <translation>Das Einlesen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>Abgebrochen: %1</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Neu einlesen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>file and reason</comment>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n new</source>
        <translation>
            <numerusform>%Ln neu</numerusform>
            <numerusform>%Ln neu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%Ln geändert</numerusform>
            <numerusform>%Ln geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n moved</source>
        <translation>
            <numerusform>%Ln verschoben</numerusform>
            <numerusform>%Ln verschoben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n gone</source>
        <translation>
            <numerusform>%Ln verschwunden</numerusform>
            <numerusform>%Ln verschwunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not readable</source>
        <translation>
            <numerusform>%Ln nicht lesbar</numerusform>
            <numerusform>%Ln nicht lesbar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%Ln ausgelassen</numerusform>
            <numerusform>%Ln ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not read yet</source>
        <translation>
            <numerusform>%Ln noch nicht gelesen</numerusform>
            <numerusform>%Ln noch nicht gelesen</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the counts of a scan</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %Ln weitere</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) could not be read.</source>
        <translation>
            <numerusform>%Ln Datei konnte nicht gelesen werden.</numerusform>
            <numerusform>%Ln Dateien konnten nicht gelesen werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanOutput</name>
    <message numerus="yes">
        <source>Stopped; %n new design(s) are still to be read.</source>
        <translation>
            <numerusform>Abgebrochen; %Ln neues Stickmuster ist noch zu lesen.</numerusform>
            <numerusform>Abgebrochen; %Ln neue Stickmuster sind noch zu lesen.</numerusform>
        </translation>
    </message>
    <message>
        <source>left out, the name is no valid text</source>
        <translation>ausgelassen, der Name ist kein gültiger Text</translation>
    </message>
</context>
<context>
    <name>ScanReportDialog</name>
    <message>
        <source>Result of the scan</source>
        <translation>Ergebnis des Einlesens</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Copy list</source>
        <translation>Liste kopieren</translation>
    </message>
    <message>
        <source>Not readable</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>The name is not valid text.</source>
        <translation>Der Name ist kein gültiger Text.</translation>
    </message>
    <message>
        <source>Not read yet</source>
        <translation>Noch nicht gelesen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Verschoben</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>war %1</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>Verschwunden</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>section and number of files</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>SearchCompleter</name>
    <message>
        <source>Completions</source>
        <translation>Vervollständigungen</translation>
    </message>
</context>
<context>
    <name>SearchHelpMenu</name>
    <message>
        <source>Designs that ...</source>
        <translation>Stickmuster, die …</translation>
    </message>
    <message>
        <source>don&apos;t, by a minus before any field</source>
        <translation>nicht, durch ein Minus vor dem Feld</translation>
    </message>
    <message>
        <source>fulfill all that is asked for</source>
        <translation>alles Gefragte erfüllen</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>completes fields and tags while you type</source>
        <translation>vervollständigt Felder und Schlagwörter</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Comparing the designs: %1 of %2</source>
        <translation>Die Stickmuster werden verglichen: %1 von %2</translation>
    </message>
    <message>
        <source>Comparing the designs...</source>
        <translation>Die Stickmuster werden verglichen …</translation>
    </message>
</context>
<context>
    <name>SewingSlider</name>
    <message>
        <source>Sewing progress</source>
        <translation>Fortschritt des Stickens</translation>
    </message>
</context>
<context>
    <name>SheetCommand</name>
    <message>
        <source>Put pictures of designs onto pages of a PDF.</source>
        <translation>Bilder von Stickmustern auf die Seiten einer PDF-Datei bringen.</translation>
    </message>
    <message>
        <source>Makes a PDF with a contact sheet of all designs of the catalogue, or of those that are chosen, or with a work sheet for each. Designs that are named need not be in the catalogue and come in the order of their names; a dash reads the names from standard input.</source>
        <translation>Macht eine PDF-Datei mit einem Kontaktbogen aller Stickmuster des Katalogs oder der ausgewählten, oder mit einem Arbeitsblatt für jedes. Genannte Stickmuster müssen nicht im Katalog sein und kommen in der Reihenfolge ihrer Nennung; ein Strich liest die Namen von der Standardeingabe.</translation>
    </message>
    <message>
        <source>Where the PDF goes to.</source>
        <translation>Wohin die PDF-Datei geschrieben wird.</translation>
    </message>
    <message>
        <source>Replace a file that is there.</source>
        <translation>Eine vorhandene Datei ersetzen.</translation>
    </message>
    <message>
        <source>A work sheet for each design rather than a contact sheet of all.</source>
        <translation>Ein Arbeitsblatt für jedes Stickmuster statt eines Kontaktbogens aller.</translation>
    </message>
    <message>
        <source>One of %1; A4 if not given.</source>
        <translation>Eines von %1; A4, wenn nicht angegeben.</translation>
    </message>
    <message>
        <source>The paper lies on its longer side.</source>
        <translation>Das Papier liegt quer.</translation>
    </message>
    <message>
        <source>Title of a contact sheet.</source>
        <translation>Titel eines Kontaktbogens.</translation>
    </message>
    <message>
        <source>Columns of a contact sheet; 4 if not given.</source>
        <translation>Spalten eines Kontaktbogens; 4, wenn nicht angegeben.</translation>
    </message>
    <message>
        <source>What stands under each picture of a contact sheet: some of %1, with commas between them, or nothing.</source>
        <translation>Was auf einem Kontaktbogen unter jedem Bild steht: einige von %1, mit Kommas dazwischen, oder nichts.</translation>
    </message>
    <message>
        <source>A contact sheet with a heading for each folder.</source>
        <translation>Ein Kontaktbogen mit einer Überschrift für jeden Ordner.</translation>
    </message>
    <message>
        <source>Work sheets without a page in true size.</source>
        <translation>Arbeitsblätter ohne eine Seite in wahrer Größe.</translation>
    </message>
    <message>
        <source>Pages without numbers.</source>
        <translation>Seiten ohne Seitenzahlen.</translation>
    </message>
    <message>
        <source>Unknown fact &apos;%1&apos;; there are %2.</source>
        <translation>Unbekannte Angabe „%1“; es gibt %2.</translation>
    </message>
    <message>
        <source>Unknown paper &apos;%1&apos;; there are %2.</source>
        <translation>Unbekanntes Papier „%1“; es gibt %2.</translation>
    </message>
    <message>
        <source>The columns must be a number from 1 to %1.</source>
        <translation>Die Spalten müssen eine Zahl von 1 bis %1 sein.</translation>
    </message>
    <message>
        <source>No PDF given; --pdf OUT.pdf tells where it goes to.</source>
        <translation>Keine PDF-Datei angegeben; --pdf OUT.pdf sagt, wohin sie geschrieben wird.</translation>
    </message>
    <message>
        <source>There are no designs to show.</source>
        <translation>Es gibt keine Stickmuster zu zeigen.</translation>
    </message>
</context>
<context>
    <name>SheetCommands</name>
    <message>
        <source>Designs</source>
        <translation>Stickmuster</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>&amp;Export as PDF...</source>
        <translation>Als PDF e&amp;xportieren …</translation>
    </message>
    <message>
        <source>There are no designs to print.</source>
        <translation>Es gibt keine Stickmuster zu drucken.</translation>
    </message>
    <message>
        <source>A sheet shows the selected designs, or all that the grid shows.</source>
        <translation>Ein Bogen zeigt die ausgewählten Stickmuster oder alle, die zu sehen sind.</translation>
    </message>
    <message>
        <source>Printing was canceled. Pages that are on their way may still be printed.</source>
        <translation>Der Druck wurde abgebrochen. Seiten, die schon unterwegs sind, werden vielleicht noch gedruckt.</translation>
    </message>
    <message>
        <source>The designs could not be printed.</source>
        <translation>Die Stickmuster konnten nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>Als PDF exportieren</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>Die Datei ersetzen?</translation>
    </message>
    <message numerus="yes">
        <source>%1 was written: %n page(s).</source>
        <translation>
            <numerusform>%1 wurde geschrieben: %n Seite.</numerusform>
            <numerusform>%1 wurde geschrieben: %n Seiten.</numerusform>
        </translation>
    </message>
    <message>
        <source>The PDF could not be written.</source>
        <translation>Die PDF-Datei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>Es wird gedruckt …</translation>
    </message>
    <message>
        <source>Writing the PDF...</source>
        <translation>Das PDF wird geschrieben …</translation>
    </message>
</context>
<context>
    <name>SheetDialog</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>Als PDF exportieren</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken …</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
</context>
<context>
    <name>SheetForm</name>
    <message>
        <source>Sheet</source>
        <translation>Bogen</translation>
    </message>
    <message>
        <source>&amp;Contact sheet: pictures in rows</source>
        <translation>&amp;Kontaktbogen: Bilder in Reihen</translation>
    </message>
    <message>
        <source>&amp;Work sheet for each design</source>
        <translation>&amp;Arbeitsblatt für jedes Stickmuster</translation>
    </message>
    <message>
        <source>Designs</source>
        <translation>Stickmuster</translation>
    </message>
    <message>
        <source>&amp;Selected (%1)</source>
        <translation>Aus&amp;gewählte (%1)</translation>
    </message>
    <message>
        <source>&amp;All shown (%1)</source>
        <translation>Alle &amp;sichtbaren (%1)</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>S&amp;ize:</source>
        <translation>F&amp;ormat:</translation>
    </message>
    <message>
        <source>&amp;Orientation:</source>
        <translation>A&amp;usrichtung:</translation>
    </message>
    <message>
        <source>Page &amp;numbers</source>
        <translation>Seiten&amp;zahlen</translation>
    </message>
    <message>
        <source>Contact sheet</source>
        <translation>Kontaktbogen</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>Col&amp;umns:</source>
        <translation>S&amp;palten:</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>Na&amp;me</translation>
    </message>
    <message>
        <source>Design si&amp;ze</source>
        <translation>G&amp;röße</translation>
    </message>
    <message>
        <source>Stitc&amp;hes</source>
        <translation>Stic&amp;he</translation>
    </message>
    <message>
        <source>Co&amp;lors</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>Ta&amp;gs</source>
        <translation>Sch&amp;lagwörter</translation>
    </message>
    <message>
        <source>Not&amp;es</source>
        <translation>&amp;Notizen</translation>
    </message>
    <message>
        <source>By &amp;folder, each with a heading</source>
        <translation>Nach Ordnern, &amp;jeder mit Überschrift</translation>
    </message>
    <message>
        <source>Work sheet</source>
        <translation>Arbeitsblatt</translation>
    </message>
    <message>
        <source>A page in t&amp;rue size, with the hoop</source>
        <translation>Eine Seite in &amp;wahrer Größe, mit Rahmen</translation>
    </message>
</context>
<context>
    <name>SheetPages</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Design %1 of %2, page %3 of %4</source>
        <translation>Stickmuster %1 von %2, Seite %3 von %4</translation>
    </message>
</context>
<context>
    <name>SheetPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>SheetPrinter</name>
    <message>
        <source>The printer has failed.</source>
        <translation>Der Drucker hat versagt.</translation>
    </message>
</context>
<context>
    <name>SheetWriter</name>
    <message>
        <source>The pages cannot be written.</source>
        <translation>Die Seiten können nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>SmartFolderCheck</name>
    <message>
        <source>Nothing was changed. With --prune the designs of such folders leave the catalogue.</source>
        <translation>Es wurde nichts geändert. Mit --prune verlassen die Stickmuster solcher Ordner den Katalog.</translation>
    </message>
    <message numerus="yes">
        <source>holds none of its %n design(s) any more</source>
        <translation>
            <numerusform>enthält sein Stickmuster nicht mehr</numerusform>
            <numerusform>enthält keines seiner %Ln Stickmuster mehr</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>&amp;Sort by</source>
        <translation>&amp;Sortieren nach</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Design &amp;size</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>S&amp;titches</source>
        <translation>&amp;Stichzahl</translation>
    </message>
    <message>
        <source>&amp;Colors</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>File &amp;date</source>
        <translation>&amp;Dateidatum</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Aufsteigend</translation>
    </message>
    <message>
        <source>D&amp;escending</source>
        <translation>A&amp;bsteigend</translation>
    </message>
</context>
<context>
    <name>StandardInput</name>
    <message>
        <source>Failed to read %1: %2</source>
        <translation>%1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 ist zu groß.</translation>
    </message>
    <message>
        <source>Standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>The names on standard input end with a NUL; -0 reads such names.</source>
        <translation>Die Namen in der Standardeingabe enden mit einem NUL; -0 liest solche Namen.</translation>
    </message>
</context>
<context>
    <name>StandardOutput</name>
    <message>
        <source>The output could not be written: %1</source>
        <translation>Die Ausgabe konnte nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Stitches and colors are those of the selected designs or, when none is selected, of all that are shown.</source>
        <translation>Stiche und Farben sind die der ausgewählten Stickmuster oder, wenn keines ausgewählt ist, aller gezeigten.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message numerus="yes">
        <source>%1 designs</source>
        <translation>
            <numerusform>%1 Stickmuster</numerusform>
            <numerusform>%1 Stickmuster</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 selected</source>
        <translation>
            <numerusform>%1 ausgewählt</numerusform>
            <numerusform>%1 ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 stitches</source>
        <translation>
            <numerusform>%1 Stich</numerusform>
            <numerusform>%1 Stiche</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 colors</source>
        <translation>
            <numerusform>%1 Farbe</numerusform>
            <numerusform>%1 Farben</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TagCommand</name>
    <message>
        <source>Give designs a tag, or take it from them.</source>
        <translation>Stickmustern ein Schlagwort geben oder nehmen.</translation>
    </message>
    <message>
        <source>Gives the designs a tag, or takes it from them. A dash reads their names from standard input.</source>
        <translation>Gibt den Stickmustern ein Schlagwort oder nimmt es ihnen. Ein Strich liest ihre Namen von der Standardeingabe.</translation>
    </message>
    <message>
        <source>No tag given.</source>
        <translation>Kein Schlagwort angegeben.</translation>
    </message>
</context>
<context>
    <name>TagController</name>
    <message>
        <source>rename tag</source>
        <translation>Schlagwort umbenennen</translation>
    </message>
    <message>
        <source>remove tag</source>
        <translation>Schlagwort entfernen</translation>
    </message>
    <message>
        <source>auto-create tags</source>
        <translation>Schlagwörter automatisch anlegen</translation>
    </message>
    <message>
        <source>remove unused tags</source>
        <translation>Unbenutzte Schlagwörter entfernen</translation>
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
        <translation>Das Schlagwort &lt;b&gt;%1&lt;/b&gt; ist bei allen ausgewählten Dateien gesetzt.</translation>
    </message>
    <message>
        <source>The tag &lt;b&gt;%1&lt;/b&gt; is set on some of the selected files.</source>
        <translation>Das Schlagwort &lt;b&gt;%1&lt;/b&gt; ist bei einigen der ausgewählten Dateien gesetzt.</translation>
    </message>
    <message>
        <source>Remove tag &lt;b&gt;%1&lt;/b&gt; from all selected files</source>
        <translation>Schlagwort &lt;b&gt;%1&lt;/b&gt; von allen ausgewählten Dateien entfernen</translation>
    </message>
    <message>
        <source>Remove tag %1</source>
        <translation>Schlagwort %1 entfernen</translation>
    </message>
</context>
<context>
    <name>TagListWidget</name>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>- show all files -</source>
        <translation>- alle Dateien zeigen -</translation>
    </message>
    <message>
        <source>&lt;enter tag name&gt;</source>
        <translation>&lt;Schlagwort eingeben&gt;</translation>
    </message>
    <message>
        <source>Remove &apos;%1&apos;</source>
        <translation>„%1“ entfernen</translation>
    </message>
    <message>
        <source>Rename &apos;%1&apos;</source>
        <translation>„%1“ umbenennen</translation>
    </message>
</context>
<context>
    <name>TagWidget</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>New tag</source>
        <translation>Neues Schlagwort</translation>
    </message>
    <message>
        <source>&lt;p&gt;Select an existing tag from the drop down list or enter a new tag. The tag is added to all selected files.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Wählen Sie ein vorhandenes Schlagwort aus der Liste oder geben Sie ein neues ein. Es wird allen ausgewählten Dateien hinzugefügt.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Add tag to all selected files.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Schlagwort allen ausgewählten Dateien hinzufügen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>add tag &apos;%1&apos;</source>
        <translation>Schlagwort „%1“ hinzufügen</translation>
    </message>
    <message>
        <source>remove tag &apos;%1&apos;</source>
        <translation>Schlagwort „%1“ entfernen</translation>
    </message>
    <message>
        <source>Show more tags</source>
        <translation>Weitere Schlagwörter anzeigen</translation>
    </message>
    <message>
        <source>+ %1 more</source>
        <translation>+ %1 weitere</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
</context>
<context>
    <name>TagsBox</name>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>Add tag</source>
        <translation>Schlagwort hinzufügen</translation>
    </message>
    <message>
        <source>Remove tag</source>
        <translation>Schlagwort entfernen</translation>
    </message>
    <message>
        <source>Rename tag</source>
        <translation>Schlagwort umbenennen</translation>
    </message>
    <message>
        <source>Remove all unused tags</source>
        <translation>Alle unbenutzten Schlagwörter entfernen</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>rename tag</source>
        <translation>Schlagwort umbenennen</translation>
    </message>
    <message numerus="yes">
        <source>This tag is attached to %n files</source>
        <translation>
            <numerusform>Dieses Schlagwort ist %Ln Datei zugeordnet</numerusform>
            <numerusform>Dieses Schlagwort ist %Ln Dateien zugeordnet</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleting the tag will also remove it from these files. Continue?</source>
        <translation>Beim Löschen wird das Schlagwort auch von diesen Dateien entfernt. Fortfahren?</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n unused tags?</source>
        <translation>
            <numerusform>%Ln unbenutztes Schlagwort löschen?</numerusform>
            <numerusform>%Ln unbenutzte Schlagwörter löschen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Empty tag name not allowed!</source>
        <translation>Der Name des Schlagworts darf nicht leer sein!</translation>
    </message>
    <message>
        <source>Tag with this name already exists!</source>
        <translation>Es gibt bereits ein Schlagwort mit diesem Namen!</translation>
    </message>
    <message>
        <source>remove tag</source>
        <translation>Schlagwort entfernen</translation>
    </message>
</context>
<context>
    <name>ThreadList</name>
    <message>
        <source>Color name</source>
        <translation>Farbname</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Farbkarte</translation>
    </message>
    <message>
        <source>Stitches</source>
        <translation>Stiche</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
</context>
<context>
    <name>ThreadTable</name>
    <message>
        <source>Threads</source>
        <translation>Garne</translation>
    </message>
    <message>
        <source>In the order of sewing. The arrow keys show where each comes.</source>
        <translation>In der Reihenfolge des Stickens. Die Pfeiltasten zeigen, wo jedes an der Reihe ist.</translation>
    </message>
</context>
<context>
    <name>ThreadTableModel</name>
    <message>
        <source>undefined</source>
        <translation>unbestimmt</translation>
    </message>
    <message>
        <source>How often the needle goes down; jumps and trims do not count.</source>
        <translation>Wie oft die Nadel einsticht; Sprünge und Schnitte zählen nicht.</translation>
    </message>
    <message>
        <source>The thread on the fabric, from one needle point to the next.</source>
        <translation>Das Garn auf dem Stoff, von einem Einstich zum nächsten.</translation>
    </message>
    <message>
        <source>Color name</source>
        <translation>Farbname</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Farbkarte</translation>
    </message>
    <message>
        <source>Stitches</source>
        <translation>Stiche</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
</context>
<context>
    <name>ThumbnailsCommand</name>
    <message>
        <source>Paint pictures of many designs into a folder.</source>
        <translation>Bilder vieler Stickmuster in einen Ordner malen.</translation>
    </message>
    <message>
        <source>Paints a picture of each design of the catalogue, or of those that are chosen, into a folder, which is made if it is missing. A dash reads the names of the designs from standard input. Pictures that are there already are kept, so that the command may be stopped and started again.</source>
        <translation>Malt ein Bild von jedem Stickmuster des Katalogs, oder von den gewählten, in einen Ordner, der angelegt wird, wenn er fehlt. Ein Strich liest die Namen der Stickmuster von der Standardeingabe. Vorhandene Bilder bleiben, sodass der Befehl angehalten und wieder gestartet werden darf.</translation>
    </message>
    <message>
        <source>Paint pictures anew that are there already.</source>
        <translation>Auch vorhandene Bilder neu malen.</translation>
    </message>
    <message>
        <source>No folder given.</source>
        <translation>Kein Ordner angegeben.</translation>
    </message>
    <message>
        <source>The folder &apos;%1&apos; cannot be made</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden</translation>
    </message>
</context>
<context>
    <name>TransferNotice</name>
    <message>
        <source>%1 of %2 files were copied to %3.</source>
        <translation>%1 von %2 Dateien wurden auf %3 kopiert.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) copied to %1.</source>
        <translation>
            <numerusform>%Ln Datei wurde auf %1 kopiert.</numerusform>
            <numerusform>%Ln Dateien wurden auf %1 kopiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them gave way to a later one of the same name.</source>
        <translation>
            <numerusform>%Ln davon ist einer späteren gleichen Namens gewichen.</numerusform>
            <numerusform>%Ln davon sind einer späteren gleichen Namens gewichen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 can be taken out now.</source>
        <translation>%1 kann jetzt entfernt werden.</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Auswerfen</translation>
    </message>
    <message>
        <source>another program still uses it.</source>
        <translation>Ein anderes Programm verwendet den Datenträger noch.</translation>
    </message>
    <message>
        <source>this needs more rights than you have.</source>
        <translation>Dafür fehlen die nötigen Rechte.</translation>
    </message>
    <message>
        <source>%1 cannot be ejected: %2</source>
        <translation>%1 kann nicht ausgeworfen werden: %2</translation>
    </message>
    <message>
        <source>Ejecting %1...</source>
        <translation>%1 wird ausgeworfen …</translation>
    </message>
</context>
<context>
    <name>TransferResult</name>
    <message>
        <source>There is no space left on the drive.</source>
        <translation>Auf dem Datenträger ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>The drive has space left, but its top folder cannot hold more files.</source>
        <translation>Auf dem Datenträger ist noch Platz, aber sein oberster Ordner kann keine weiteren Dateien aufnehmen.</translation>
    </message>
    <message>
        <source>The drive, or the file on it, is write-protected.</source>
        <translation>Der Datenträger oder die Datei darauf ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The drive&apos;s file system does not allow a file of this name.</source>
        <translation>Das Dateisystem des Datenträgers lässt keine Datei dieses Namens zu.</translation>
    </message>
    <message>
        <source>The file is no longer in its folder.</source>
        <translation>Die Datei ist nicht mehr in ihrem Ordner.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The drive is no longer there.</source>
        <translation>Der Datenträger ist nicht mehr da.</translation>
    </message>
</context>
<context>
    <name>TrueSizePicture</name>
    <message>
        <source>Reduced to %1%: the design is larger than the paper</source>
        <translation>Auf %1 % verkleinert: Das Stickmuster ist größer als das Papier</translation>
    </message>
    <message>
        <source>True size; the design is larger than any hoop</source>
        <translation>Wahre Größe; das Stickmuster ist größer als jeder Rahmen</translation>
    </message>
    <message>
        <source>True size, without its hoop of %1, which is larger than the paper</source>
        <translation>Wahre Größe, ohne den Rahmen von %1, der größer als das Papier ist</translation>
    </message>
    <message>
        <source>True size in a hoop of %1</source>
        <translation>Wahre Größe im Rahmen von %1</translation>
    </message>
</context>
<context>
    <name>UnreadDesign</name>
    <message>
        <source>Not read yet</source>
        <translation>Noch nicht gelesen</translation>
    </message>
    <message>
        <source>&quot;Rescan&quot; reads it.</source>
        <translation>„Neu einlesen“ liest es.</translation>
    </message>
</context>
<context>
    <name>WorkSheet</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Design size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Hoop</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>no hoop fits</source>
        <translation>kein Rahmen passt</translation>
    </message>
    <message>
        <source>Number of stitches</source>
        <translation>Stichzahl</translation>
    </message>
    <message>
        <source>Number of colors</source>
        <translation>Anzahl Farben</translation>
    </message>
    <message>
        <source>Thread</source>
        <translation>Garn</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Room to write</source>
        <translation>Platz zum Schreiben</translation>
    </message>
    <message>
        <source>2 inches, if the printer keeps the size</source>
        <translation>2 Zoll, wenn der Drucker die Größe einhält</translation>
    </message>
    <message>
        <source>50 mm, if the printer keeps the size</source>
        <translation>50 mm, wenn der Drucker die Größe einhält</translation>
    </message>
</context>
</TS>
