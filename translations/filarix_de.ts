<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ConnEditor</name>
    <message>
        <source>Connect Table</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cid</source>
        <translation>Cid</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>CPU Addr</source>
        <translation>CPU-Adr.</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>Baud</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>Path: </source>
        <translation>Pfad: </translation>
    </message>
    <message>
        <source>&lt;&lt;</source>
        <translation>&lt;&lt;</translation>
    </message>
    <message>
        <source>&gt;&gt;</source>
        <translation>&gt;&gt;</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbr.</translation>
    </message>
</context>
<context>
    <name>ImportManage</name>
    <message>
        <source>Hmi</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Usb</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>&gt;&gt;</source>
        <translation>&gt;&gt;</translation>
    </message>
    <message>
        <source>&lt;&lt;</source>
        <translation>&lt;&lt;</translation>
    </message>
    <message>
        <source>&gt;Del</source>
        <translation>&gt;Entf</translation>
    </message>
    <message>
        <source>Del&lt;</source>
        <translation>Entf&lt;</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Used Space </source>
        <translation>Belegt </translation>
    </message>
    <message>
        <source>Left Space </source>
        <translation> Frei </translation>
    </message>
    <message>
        <source> Usb not found!</source>
        <translation> Kein USB-Stick!</translation>
    </message>
    <message>
        <source>Hmi Delete</source>
        <translation>Löschen vom Panel</translation>
    </message>
    <message>
        <source>Usb Delete</source>
        <translation>Löschen vom USB-Stick</translation>
    </message>
    <message>
        <source>Copy to Usb</source>
        <translation>Kopieren auf USB-Stick</translation>
    </message>
    <message>
        <source>No file Selected!</source>
        <translation>Keine Datei ausgewählt!</translation>
    </message>
    <message>
        <source>Usb not found!</source>
        <translation>Kein USB-Stick gefunden!</translation>
    </message>
    <message>
        <source> existed in Usb,
 do you want to cover it?</source>
        <translation> ist auf dem USB-Stick schon vorhanden.
Überschreiben?</translation>
    </message>
    <message>
        <source>Copy to Hmi</source>
        <translation>Kopieren auf das Panel</translation>
    </message>
    <message>
        <source>No file Selected.</source>
        <translation>Keine Datei ausgewählt.</translation>
    </message>
    <message>
        <source>Usb not found.</source>
        <translation>Kein USB-Stick gefunden.</translation>
    </message>
    <message>
        <source> existed in Hmi,
 do you want to cover it?</source>
        <translation> ist auf dem Panel schon vorhanden.
Überschreiben?</translation>
    </message>
    <message>
        <source>Copy file failed!</source>
        <translation>Kopieren fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Can&apos;t cover this file!</source>
        <translation>Diese Datei lässt sich nicht überschreiben!</translation>
    </message>
    <message>
        <source>Are you sure to delete </source>
        <translation>Wirklich löschen: </translation>
    </message>
    <message>
        <source>Can&apos;t delete this file.</source>
        <translation>Diese Datei lässt sich nicht löschen.</translation>
    </message>
    <message>
        <source>Font file can not be a Dir!</source>
        <translation>Ordner können nicht kopiert werden!</translation>
    </message>
    <message>
        <source>Not enough Space!</source>
        <translation>Nicht genug Speicherplatz!</translation>
    </message>
    <message>
        <source>Unexpected error!</source>
        <translation>Unerwarteter Fehler!</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>In Arbeit ...</translation>
    </message>
</context>
<context>
    <name>MJLine</name>
    <message>
        <source>(↓)</source>
        <extracomment>Behind the name of the instruction. Keep the &quot;(&quot; in front: the name ends there.</extracomment>
        <translation>(↓)</translation>
    </message>
    <message>
        <source>(↑)</source>
        <extracomment>Behind the name of the instruction. Keep the &quot;(&quot; in front: the name ends there.</extracomment>
        <translation>(↑)</translation>
    </message>
    <message>
        <source>↑</source>
        <extracomment>Closes an open row.</extracomment>
        <translation>↑</translation>
    </message>
</context>
<context>
    <name>MessageBox</name>
    <message>
        <source>About Corvane</source>
        <translation>Über Corvane</translation>
    </message>
</context>
<context>
    <name>WCopyDialog</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Current line:</source>
        <translation>Aktuelle Zeile:</translation>
    </message>
    <message>
        <source>Copy count:</source>
        <translation>Anzahl:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>WFileDialog</name>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
</context>
<context>
    <name>WFindDialog</name>
    <message>
        <source>Find &amp;what:</source>
        <translation>Suchen &amp;nach:</translation>
    </message>
    <message>
        <source>Replace &amp;what:</source>
        <translation>Ersetzen &amp;durch:</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>&amp;Groß/klein beachten</translation>
    </message>
    <message>
        <source>Search &amp;backward</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>WMMainWindow</name>
    <message>
        <source>Row:</source>
        <translation>Zeile:</translation>
    </message>
    <message>
        <source>Col:</source>
        <translation>Spalte:</translation>
    </message>
    <message>
        <source>Count:</source>
        <translation>Total:</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Programm-Editor</translation>
    </message>
    <message>
        <source>The document has been existed.
Do you want to open it again?</source>
        <translation>Dieses Programm ist bereits geöffnet.
Nochmals öffnen?</translation>
    </message>
    <message>
        <source>Remove file</source>
        <translation>Datei löschen</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>Die Datei ist nicht vorhanden!</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>%1 löschen?</translation>
    </message>
    <message>
        <source>Success to remove file.</source>
        <translation>Die Datei wurde gelöscht.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>RM</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>SaveAs</source>
        <translation>Sich. als</translation>
    </message>
    <message>
        <source>I/E</source>
        <translation>Im/Ex</translation>
    </message>
    <message>
        <source>Morphology</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Syntax</source>
        <translation>Syntax</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Übersetzen</translation>
    </message>
    <message>
        <source>D/L</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ab</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Zeile +</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Zeile −</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Remove G File!</source>
        <translation>G-Code-Programm löschen</translation>
    </message>
    <message>
        <source>Import/Export G File.</source>
        <translation>G-Code-Programme importieren und exportieren</translation>
    </message>
    <message>
        <source>Preproccess</source>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>The document has been modified.
Do you want to save your changes?</source>
        <translation>Das Programm wurde geändert.
Änderungen speichern?</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Datei %1 ist nicht lesbar:
%2.</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>Datei %1 ist nicht beschreibbar:
%2.</translation>
    </message>
    <message>
        <source>%1[*] - %2</source>
        <translation>%1[*] - %2</translation>
    </message>
    <message>
        <source>It is a device or a pipe, not a file</source>
        <translation>Das ist ein Gerät oder eine Pipe, keine Datei</translation>
    </message>
</context>
</TS>
