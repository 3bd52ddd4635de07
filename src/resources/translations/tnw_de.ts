<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Version %1
Built on %2</source>
        <translation>Version %1
Erstellt am %2</translation>
    </message>
</context>
<context>
    <name>About2</name>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>This program uses Qt %1, which is licensed under the GNU Lesser General Public License, version 3, and is a library of its own: it may be replaced by another build of it.</source>
        <translation>Dieses Programm verwendet Qt %1. Qt steht unter der GNU Lesser General Public License, Version 3, und ist eine eigenständige Bibliothek: Sie darf durch eine andere Fassung ersetzt werden.</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Lizenzen</translation>
    </message>
</context>
<context>
    <name>DesktopInteraction</name>
    <message>
        <source>Reveal in Finder</source>
        <translation>Im Finder zeigen</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Im Explorer anzeigen</translation>
    </message>
    <message>
        <source>Show in file manager</source>
        <translation>In der Dateiverwaltung anzeigen</translation>
    </message>
</context>
<context>
    <name>DirectoryScanner</name>
    <message>
        <source>Scanning directory &apos;%1&apos;</source>
        <translation>Ordner „%1“ wird durchsucht</translation>
    </message>
</context>
<context>
    <name>FeedbackDialog</name>
    <message>
        <source>Send feedback</source>
        <translation>Rückmeldung senden</translation>
    </message>
    <message>
        <source>%1 crash reporter</source>
        <translation>Absturzbericht von %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;Sorry, %1 crashed!&lt;/b&gt;&lt;br&gt;&lt;br&gt;Please describe what you did just before the crash. (optional)</source>
        <translation>&lt;b&gt;%1 ist leider abgestürzt!&lt;/b&gt;&lt;br&gt;&lt;br&gt;Bitte beschreiben Sie, was Sie unmittelbar vor dem Absturz getan haben. (freiwillig)</translation>
    </message>
    <message>
        <source>You are sending the following information:</source>
        <translation>Sie senden die folgenden Angaben:</translation>
    </message>
    <message>
        <source>Quick Feedback</source>
        <translation>Kurze Rückmeldung</translation>
    </message>
    <message>
        <source>What do you like, what can we do better?</source>
        <translation>Was gefällt Ihnen, was können wir besser machen?</translation>
    </message>
    <message>
        <source>Support Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Your question:</source>
        <translation>Ihre Frage:</translation>
    </message>
    <message>
        <source>Feature Request</source>
        <translation>Wunsch</translation>
    </message>
    <message>
        <source>What feature would you like to see added or improved?</source>
        <translation>Welche Funktion fehlt Ihnen oder sollte besser werden?</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>Fehlerbericht</translation>
    </message>
    <message>
        <source>What did you expect to happen? What happened instead?</source>
        <translation>Was haben Sie erwartet? Was ist stattdessen geschehen?</translation>
    </message>
    <message>
        <source>What steps will reproduce this problem?</source>
        <translation>Mit welchen Schritten lässt sich das Problem nachstellen?</translation>
    </message>
    <message>
        <source>This is a critical bug</source>
        <translation>Das ist ein schwerer Fehler</translation>
    </message>
    <message>
        <source>Topic:</source>
        <translation>Thema:</translation>
    </message>
    <message>
        <source>How important is this to you?</source>
        <translation>Wie wichtig ist Ihnen das?</translation>
    </message>
    <message>
        <source>Nice to have</source>
        <translation>Wäre schön</translation>
    </message>
    <message>
        <source>Very important</source>
        <translation>Sehr wichtig</translation>
    </message>
    <message>
        <source>Deal breaker</source>
        <translation>Unverzichtbar</translation>
    </message>
    <message>
        <source>Include email address:</source>
        <translation>E-Mail-Adresse mitsenden:</translation>
    </message>
    <message>
        <source>Your message goes to %1, together with the name and version of %2 and of your operating system, and is stored there to answer you and to improve the program. &lt;a href=&quot;%3&quot;&gt;Privacy&lt;/a&gt;</source>
        <translation>Ihre Nachricht geht zusammen mit Name und Version von %2 und Ihres Betriebssystems an %1 und wird dort gespeichert, um Ihnen zu antworten und das Programm zu verbessern. &lt;a href=&quot;%3&quot;&gt;Datenschutz&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Please add your mail address</source>
        <translation>Bitte geben Sie Ihre E-Mail-Adresse an</translation>
    </message>
    <message>
        <source>Please consider adding your mail address so I can answer your request.</source>
        <translation>Bitte geben Sie Ihre E-Mail-Adresse an, damit ich Ihnen antworten kann.</translation>
    </message>
    <message>
        <source>The server sends the message on to an address that cannot be used.</source>
        <translation>Der Server leitet die Nachricht an eine Adresse weiter, die nicht verwendet werden kann.</translation>
    </message>
    <message>
        <source>Sending feedback...</source>
        <translation>Rückmeldung wird gesendet …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Sending feedback</source>
        <translation>Rückmeldung senden</translation>
    </message>
    <message>
        <source>Sending message failed</source>
        <translation>Die Nachricht konnte nicht gesendet werden</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
</context>
<context>
    <name>FileTools</name>
    <message>
        <source>Failed to load %1: %2</source>
        <translation>%1 konnte nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>Failed to read %1: %2</source>
        <translation>%1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Failed to write %1: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>GApplication</name>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>Caught unhandled error:&lt;br/&gt;%1&lt;br/&gt;</source>
        <translation>Unbehandelter Fehler:&lt;br/&gt;%1&lt;br/&gt;</translation>
    </message>
    <message>
        <source>Caught unhandled exception:&lt;br/&gt;%1&lt;br/&gt;</source>
        <translation>Unbehandelte Ausnahme:&lt;br/&gt;%1&lt;br/&gt;</translation>
    </message>
    <message>
        <source>Please report to </source>
        <translation>Bitte melden an </translation>
    </message>
    <message>
        <source>Critical Exception</source>
        <translation>Schwerer Fehler</translation>
    </message>
    <message>
        <source>&amp;New project</source>
        <translation>&amp;Neues Projekt</translation>
    </message>
    <message>
        <source>Create a new project</source>
        <translation>Ein neues Projekt anlegen</translation>
    </message>
    <message>
        <source>&amp;Open project...</source>
        <translation>Projekt ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open an existing project</source>
        <translation>Ein vorhandenes Projekt öffnen</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>Ü&amp;ber %1</translation>
    </message>
    <message>
        <source>Show the application&apos;s About box</source>
        <translation>Angaben zum Programm zeigen</translation>
    </message>
    <message>
        <source>Documentation...</source>
        <translation>Dokumentation …</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Tutorials...</source>
        <translation>Anleitungen …</translation>
    </message>
    <message>
        <source>Tutorials</source>
        <translation>Anleitungen</translation>
    </message>
    <message>
        <source>Acknowledgements...</source>
        <translation>Danksagungen …</translation>
    </message>
    <message>
        <source>Acknowledgements</source>
        <translation>Danksagungen</translation>
    </message>
    <message>
        <source>Send feedback ...</source>
        <translation>Rückmeldung senden …</translation>
    </message>
    <message>
        <source>Send feedback, feature requests, bug reports</source>
        <translation>Rückmeldungen, Wünsche und Fehlerberichte senden</translation>
    </message>
    <message>
        <source>Check for updates ...</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>untitled document</source>
        <translation>Unbenanntes Dokument</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>The manual is not installed.</source>
        <translation>Das Handbuch ist nicht installiert.</translation>
    </message>
    <message>
        <source>It should be here: %1
The packages of the program bring it along. Whoever builds the program needs the tool &apos;lowdown&apos; for it.</source>
        <translation>Es müsste hier sein: %1
Die Pakete des Programms bringen es mit. Wer das Programm selbst baut, braucht dazu das Werkzeug „lowdown“.</translation>
    </message>
</context>
<context>
    <name>GFileDialog</name>
    <message>
        <source>All known types (%1)</source>
        <translation>Alle bekannten Typen (%1)</translation>
    </message>
    <message>
        <source>All files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
</context>
<context>
    <name>GMainWindow</name>
    <message>
        <source>&amp;Save project</source>
        <translation>Projekt &amp;speichern</translation>
    </message>
    <message>
        <source>Save the project to disk</source>
        <translation>Das Projekt auf der Festplatte speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Save the project under a new name</source>
        <translation>Das Projekt unter einem neuen Namen speichern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close project</source>
        <translation>Projekt schließen</translation>
    </message>
    <message>
        <source>Save document</source>
        <translation>Dokument speichern</translation>
    </message>
    <message>
        <source>The document has been modified.</source>
        <translation>Das Dokument wurde geändert.</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>Möchten Sie Ihre Änderungen speichern?</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
</context>
<context>
    <name>GProject</name>
    <message>
        <source>preset collection of type &apos;%1&apos; does not exist</source>
        <translation>Sammlung von Vorgaben der Art „%1“ existiert nicht</translation>
    </message>
</context>
<context>
    <name>GSideBarBoxAdvanced</name>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
</context>
<context>
    <name>HooplineApplication</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>MessageText</name>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>NetworkTrouble</name>
    <message>
        <source>The answer cannot be used. In some networks a page to sign in on answers in the place of the server.</source>
        <translation>Die Antwort ist nicht brauchbar. In manchen Netzen antwortet an der Stelle des Servers eine Seite zum Anmelden.</translation>
    </message>
    <message>
        <source>The server was not found. Please check that the computer is connected to the internet.</source>
        <translation>Der Server wurde nicht gefunden. Bitte prüfen Sie, ob der Computer mit dem Internet verbunden ist.</translation>
    </message>
    <message>
        <source>The server does not answer. Please try again later.</source>
        <translation>Der Server antwortet nicht. Bitte versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The connection to the server is not secure. Please check the date of the computer.</source>
        <translation>Die Verbindung zum Server ist nicht sicher. Bitte prüfen Sie das Datum des Computers.</translation>
    </message>
    <message>
        <source>The server reports an error. Please try again later.</source>
        <translation>Der Server meldet einen Fehler. Bitte versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The address has moved:</source>
        <translation>Die Adresse ist umgezogen:</translation>
    </message>
</context>
<context>
    <name>PropertyDescription</name>
    <message>
        <source>property &apos;%1&apos; already exists in preset &apos;%2&apos;</source>
        <translation>Eigenschaft „%1“ ist in der Vorgabe „%2“ bereits vorhanden</translation>
    </message>
    <message>
        <source>property &apos;%1&apos; does not exist in preset &apos;%2&apos;</source>
        <translation>Eigenschaft „%1“ ist in der Vorgabe „%2“ nicht vorhanden</translation>
    </message>
</context>
<context>
    <name>PropertyPresetCollection</name>
    <message>
        <source>cannot add unnamed property preset to collection &apos;%1&apos;</source>
        <translation>Vorgabe ohne Namen kann nicht in die Sammlung „%1“ aufgenommen werden</translation>
    </message>
    <message>
        <source>property preset &apos;%1&apos; already exists in &apos;%2&apos;</source>
        <translation>Vorgabe „%1“ ist in „%2“ bereits vorhanden</translation>
    </message>
    <message>
        <source>property preset &apos;%1&apos; not found in &apos;%2&apos;</source>
        <translation>Vorgabe „%1“ wurde in „%2“ nicht gefunden</translation>
    </message>
</context>
<context>
    <name>PropertyReference</name>
    <message>
        <source>reference property may not be set to NULL</source>
        <translation>Verweis darf nicht leer sein</translation>
    </message>
    <message>
        <source>cannot assign type &apos;%1&apos; to reference property of type &apos;%2&apos;</source>
        <translation>Typ „%1“ kann einem Verweis vom Typ „%2“ nicht zugewiesen werden</translation>
    </message>
</context>
<context>
    <name>PropertyStruct</name>
    <message>
        <source>requested undefined property &apos;%1&apos;</source>
        <translation>Unbekannte Eigenschaft „%1“ angefordert</translation>
    </message>
</context>
<context>
    <name>PropertyXMLReader</name>
    <message>
        <source>Failed to read &apos;%1&apos; from XML!
(%2)</source>
        <translation>„%1“ konnte nicht aus XML gelesen werden!
(%2)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>cannot add &apos;%1&apos; to list &apos;%2&apos;, wrong type</source>
        <translation>„%1“ kann nicht in die Liste „%2“ aufgenommen werden, falscher Typ</translation>
    </message>
    <message>
        <source>property &apos;%1&apos; in list &apos;%2&apos; has wrong type&apos;</source>
        <translation>Eigenschaft „%1“ in der Liste „%2“ hat den falschen Typ</translation>
    </message>
    <message>
        <source>preset collection of type &apos;%1&apos; already exists</source>
        <translation>Sammlung von Vorgaben der Art „%1“ ist bereits vorhanden</translation>
    </message>
    <message>
        <source>property &apos;%1&apos; already exists in struct &apos;%2&apos;</source>
        <translation>Eigenschaft „%1“ ist in „%2“ bereits vorhanden</translation>
    </message>
    <message>
        <source>requested property &apos;%1&apos; has wrong type</source>
        <translation>Angeforderte Eigenschaft „%1“ hat den falschen Typ</translation>
    </message>
</context>
<context>
    <name>SingleApplication</name>
    <message>
        <source>%1 is already running, but does not answer.</source>
        <translation>%1 läuft bereits, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>It may be busy: wait a little and start again. If that does not help, end the process %1 first.</source>
        <translation>Vielleicht ist es beschäftigt: Warten Sie ein wenig und starten Sie es erneut. Hilft das nicht, beenden Sie zuerst den Prozess %1.</translation>
    </message>
    <message>
        <source>It may be busy: wait a little and start again.</source>
        <translation>Vielleicht ist es beschäftigt: Warten Sie ein wenig und starten Sie es erneut.</translation>
    </message>
    <message>
        <source>%1 cannot start.</source>
        <translation>%1 kann nicht starten.</translation>
    </message>
    <message>
        <source>It can write neither to the folder for temporary files nor to that of its own data: %1</source>
        <translation>Es kann weder in den Ordner für temporäre Dateien noch in den seiner eigenen Daten schreiben: %1</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Software update</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>Eine neue Version von %1 ist verfügbar!</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3.</source>
        <translation>%1 %2 ist jetzt verfügbar; Sie haben %3.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Neuigkeiten</translation>
    </message>
    <message>
        <source>The address of the download is not secure, so it cannot be opened from here.</source>
        <translation>Die Adresse des Downloads ist nicht sicher und kann deshalb nicht von hier aus geöffnet werden.</translation>
    </message>
    <message>
        <source>Install update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Version überspringen</translation>
    </message>
</context>
<context>
    <name>UrlOpener</name>
    <message>
        <source>There is no program that opens this file or folder.</source>
        <translation>Es gibt kein Programm, das diese Datei oder diesen Ordner öffnet.</translation>
    </message>
    <message>
        <source>There is no program for mail.</source>
        <translation>Es gibt kein Programm für E-Mails.</translation>
    </message>
    <message>
        <source>There is no web browser that opens this address.</source>
        <translation>Es gibt keinen Browser, der diese Adresse öffnet.</translation>
    </message>
</context>
<context>
    <name>WindowsUpdater</name>
    <message>
        <source>Update check failed</source>
        <translation>Suche nach Aktualisierungen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Can&apos;t read app cast feed. (No XML)</source>
        <translation>Die Liste der Aktualisierungen ist nicht lesbar. (Kein XML)</translation>
    </message>
    <message>
        <source>Can&apos;t read app cast feed. (Not RSS)</source>
        <translation>Die Liste der Aktualisierungen ist nicht lesbar. (Kein RSS)</translation>
    </message>
    <message>
        <source>Can&apos;t read app cast feed. (No channel found)</source>
        <translation>Die Liste der Aktualisierungen ist nicht lesbar. (Kein Kanal gefunden)</translation>
    </message>
    <message>
        <source>No new updates available</source>
        <translation>Keine neuen Aktualisierungen</translation>
    </message>
    <message>
        <source>There are no new updates available for %1</source>
        <translation>Für %1 sind keine neuen Aktualisierungen verfügbar</translation>
    </message>
    <message>
        <source>Staging server</source>
        <translation>Testserver</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Kennwort:</translation>
    </message>
    <message>
        <source>This copy cannot look for updates</source>
        <translation>Diese Ausgabe kann nicht nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>It was made without an address to ask. New versions come from where you got this one.</source>
        <translation>Sie wurde ohne Adresse für die Suche erstellt. Neue Versionen gibt es dort, woher Sie diese haben.</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Es wird nach Aktualisierungen gesucht …</translation>
    </message>
</context>
</TS>
