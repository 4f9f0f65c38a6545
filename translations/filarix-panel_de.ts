<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Program: %1 %2</source>
        <translation>Programm: %1 %2</translation>
    </message>
    <message>
        <source>Toolkit: Qt %1</source>
        <translation>Toolkit: Qt %1</translation>
    </message>
    <message>
        <source>Licences: MIT; toolkit LGPL 3</source>
        <translation>Lizenzen: MIT; Toolkit LGPL 3</translation>
    </message>
    <message>
        <source>Data: %1</source>
        <translation>Daten: %1</translation>
    </message>
    <message>
        <source>Room left: %1</source>
        <translation>Noch frei: %1</translation>
    </message>
</context>
<context>
    <name>BarPager</name>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>ClockPage</name>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>The system keeps the clock, and it is set there, not here.</source>
        <translation>Die Uhr führt das System; dort wird sie gestellt, nicht hier.</translation>
    </message>
    <message>
        <source>Time zone: %1</source>
        <translation>Zeitzone: %1</translation>
    </message>
</context>
<context>
    <name>CoilExport</name>
    <message>
        <source>Writing the picture to the stick</source>
        <translation>Das Bild wird auf den Stick geschrieben</translation>
    </message>
    <message>
        <source>Picture and totals are on the stick, in the folder %1.</source>
        <translation>Bild und Werte sind auf dem Stick, im Ordner %1.</translation>
    </message>
    <message>
        <source>There is no stick. Plug one in, then export once more.</source>
        <translation>Kein Stick da. Einen einstecken, dann noch einmal exportieren.</translation>
    </message>
    <message>
        <source>The stick was pulled out: the picture is not on it. Plug it in, then export once more.</source>
        <translation>Der Stick wurde abgezogen: das Bild ist nicht darauf. Ihn einstecken, dann noch einmal exportieren.</translation>
    </message>
    <message>
        <source>The picture is not on the stick: %1.</source>
        <translation>Das Bild ist nicht auf dem Stick: %1.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Der Export wurde gestoppt.</translation>
    </message>
    <message>
        <source>The stick does not answer: whether the picture is on it is not known.</source>
        <translation>Der Stick antwortet nicht: ob das Bild darauf ist, ist unbekannt.</translation>
    </message>
</context>
<context>
    <name>CoilPreview</name>
    <message>
        <source>The panel&apos;s storage does not answer: the machine is not known.</source>
        <translation>Der Speicher des Panels antwortet nicht: die Maschine ist unbekannt.</translation>
    </message>
</context>
<context>
    <name>ConnectionsScreen</name>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Cid</source>
        <translation>Cid</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>Baud</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Edit the addresses</source>
        <translation>Adressen ändern</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <source>No address was changed.</source>
        <translation>Keine Adresse wurde geändert.</translation>
    </message>
    <message>
        <source>Stored: %1.</source>
        <translation>Gespeichert: %1.</translation>
    </message>
    <message>
        <source>not set yet</source>
        <translation>noch nicht gesetzt</translation>
    </message>
    <message>
        <source>%1 says that it holds %2 connections. The first %3 are shown.</source>
        <translation>Laut %1 gibt es %2 Verbindungen. Gezeigt werden die ersten %3.</translation>
    </message>
    <message>
        <source>%1 cannot be read: the panel&apos;s storage does not answer.</source>
        <translation>%1 ist nicht lesbar: Der Speicher des Panels antwortet nicht.</translation>
    </message>
    <message>
        <source>The addresses cannot be edited: the panel&apos;s temporary storage is full.</source>
        <translation>Die Adressen lassen sich nicht ändern: Der Zwischenspeicher des Panels ist voll.</translation>
    </message>
    <message>
        <source>The addresses are not stored: the panel&apos;s storage does not answer.</source>
        <translation>Die Adressen sind nicht gespeichert: Der Speicher des Panels antwortet nicht.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: nobody knows whether the addresses are stored.</source>
        <translation>Der Speicher des Panels antwortet nicht: Ob die Adressen gespeichert sind, ist unbekannt.</translation>
    </message>
    <message>
        <source>Loading ...</source>
        <translation>Wird geladen ...</translation>
    </message>
    <message>
        <source>TCP port</source>
        <translation>TCP-Port</translation>
    </message>
</context>
<context>
    <name>DownloadQuestion</name>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
</context>
<context>
    <name>FilesScreen</name>
    <message>
        <source>Plug</source>
        <translation>Stecken</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>Ziehen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>I/E</source>
        <translation>Im/Ex</translation>
    </message>
    <message>
        <source>Files and stick</source>
        <translation>Dateien und Stick</translation>
    </message>
    <message>
        <source>The stick is in; all file names are safe.</source>
        <translation>Der Stick steckt; alle Dateinamen sind sicher.</translation>
    </message>
    <message>
        <source>The stick is out.</source>
        <translation>Der Stick ist abgezogen.</translation>
    </message>
    <message>
        <source>Pick a path</source>
        <translation>Pfad wählen</translation>
    </message>
    <message>
        <source>simulated: %1</source>
        <translation>Ersatz: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>The stick does not answer.</source>
        <translation>Der Stick antwortet nicht.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>Der Speicher des Panels antwortet nicht.</translation>
    </message>
    <message>
        <source>To try a stick, start the panel by &quot;./run --stick DIR&quot;.</source>
        <translation>Um einen Stick auszuprobieren, das Panel mit „./run --stick DIR“ starten.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Stöbern</translation>
    </message>
    <message>
        <source>%1 is checked: %2 %</source>
        <translation>%1 wird geprüft: %2 %</translation>
    </message>
    <message>
        <source>The check of %1 was stopped.</source>
        <translation>Die Prüfung von %1 wurde gestoppt.</translation>
    </message>
    <message>
        <source>%1 was not checked: its storage does not answer.</source>
        <translation>%1 wurde nicht geprüft: der Speicher antwortet nicht.</translation>
    </message>
    <message>
        <source>Touch a program: its facts and its coil are shown here.</source>
        <translation>Ein Programm berühren: Angaben und Spule erscheinen hier.</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>%1 wird gelesen ...</translation>
    </message>
    <message>
        <source>%1 is read: %2 %</source>
        <translation>%1 wird gelesen: %2 %</translation>
    </message>
    <message>
        <source>Too long for a picture here. Open it to see its coil.</source>
        <translation>Zu lang für ein Bild hier. Öffnen zeigt die Spule.</translation>
    </message>
    <message>
        <source>This program winds no wire.</source>
        <translation>Dieses Programm wickelt keinen Draht.</translation>
    </message>
    <message>
        <source>%1 could not be checked to its end.</source>
        <translation>%1 konnte nicht bis zum Ende geprüft werden.</translation>
    </message>
    <message>
        <source>%1: nothing found.</source>
        <translation>%1: nichts gefunden.</translation>
    </message>
    <message>
        <source>%1: %2. Open it to see where.</source>
        <translation>%1: %2. Öffnen zeigt, wo.</translation>
    </message>
    <message>
        <source>Unsafe names: %1</source>
        <translation>Unsichere Namen: %1</translation>
    </message>
    <message>
        <source>Stick: looking ...</source>
        <translation>Stick: wird gesucht ...</translation>
    </message>
    <message>
        <source>Stick: in, files: %1</source>
        <translation>Stick: steckt, Dateien: %1</translation>
    </message>
    <message>
        <source>Stick: out</source>
        <translation>Stick: fehlt</translation>
    </message>
    <message>
        <source>Programs: looking ...</source>
        <translation>Programme: werden gezählt ...</translation>
    </message>
    <message>
        <source>Programs: %1, %2 KB of %3 MB</source>
        <translation>Programme: %1, %2 KB von %3 MB</translation>
    </message>
    <message>
        <source>All names are safe for the transfer.</source>
        <translation>Alle Namen sind sicher für die Übertragung.</translation>
    </message>
    <message>
        <source>Names that are not safe: %1. Rename them by the key Rename.</source>
        <translation>Unsichere Namen: %1. Die Taste Umbenennen benennt sie um.</translation>
    </message>
</context>
<context>
    <name>FindingsBar</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 of %2, line %3: %4 %5</source>
        <translation>%1 von %2, Zeile %3: %4 %5</translation>
    </message>
</context>
<context>
    <name>FindingsDialog</name>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>%1. The first %2 are listed.</source>
        <translation>%1. Die ersten %2 stehen in der Liste.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Kept on</source>
        <translation>Gesichert am</translation>
    </message>
    <message>
        <source>Checksum</source>
        <translation>Prüfsumme</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Only this</source>
        <translation>Nur dieses</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
</context>
<context>
    <name>KnownRows</name>
    <message>
        <source>%1 was changed by somebody else.</source>
        <translation>%1 wurde von jemand anderem geändert.</translation>
    </message>
</context>
<context>
    <name>ListScreen</name>
    <message>
        <source>First</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Loading ...</source>
        <translation>Wird geladen ...</translation>
    </message>
    <message>
        <source>What stood there is %1 now.</source>
        <translation>Die bisherige Datei heißt jetzt %1.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>There was nothing to tell yet.</source>
        <translation>Noch gibt es keine Meldung.</translation>
    </message>
</context>
<context>
    <name>MovementLimits</name>
    <message>
        <source>Instruction %1: %2 is %3. It must be %4.</source>
        <translation>Befehl %1: %2 ist %3. Erlaubt: %4.</translation>
    </message>
    <message>
        <source>Instruction %1, %2</source>
        <translation>Befehl %1, %2</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>remark</source>
        <translation>Bemerkung</translation>
    </message>
</context>
<context>
    <name>PageKeys</name>
    <message>
        <source>Page up</source>
        <translation>Seite zurück</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Seite vor</translation>
    </message>
</context>
<context>
    <name>PanelProgram</name>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Another panel works on the same programs. This one does not start.</source>
        <translation>Ein anderes Panel arbeitet mit denselben Programmen. Dieses startet nicht.</translation>
    </message>
    <message>
        <source>%1 is read and checked: %2 %</source>
        <translation>%1 wird gelesen und geprüft: %2 %</translation>
    </message>
</context>
<context>
    <name>PanelScreen</name>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
</context>
<context>
    <name>PanelWindow</name>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Teach</source>
        <translation>Einlernen</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>%1[*] - Winding panel</source>
        <translation>%1[*] - Wickelpanel</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Coil</source>
        <translation>Spule</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Weg</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>To line</source>
        <translation>Bis hier</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Zoom +</source>
        <translation>Zoom +</translation>
    </message>
    <message>
        <source>Zoom -</source>
        <translation>Zoom -</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passend</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>Zug</translation>
    </message>
    <message>
        <source>Read: %1 %</source>
        <translation>Gelesen: %1 %</translation>
    </message>
    <message>
        <source>Reading the program ...</source>
        <translation>Das Programm wird gelesen ...</translation>
    </message>
    <message>
        <source>There is no program yet. Open or write one, and its coil is shown here.</source>
        <translation>Noch kein Programm da. Eines öffnen oder schreiben, dann steht seine Spule hier.</translation>
    </message>
    <message>
        <source>This program winds no wire: no line moves the guide while the spindle turns.</source>
        <translation>Dieses Programm wickelt keinen Draht: keine Zeile bewegt den Führer, während die Spindel dreht.</translation>
    </message>
    <message>
        <source>The machine is not known, so no coil can be reckoned. %1</source>
        <translation>Die Maschine ist unbekannt, so lässt sich keine Spule rechnen. %1</translation>
    </message>
    <message>
        <source>Lines not understood in full: %1. First: %2</source>
        <translation>Zeilen, nicht ganz verstanden: %1. Erste: %2</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Stopped at %1 %</source>
        <translation>Gestoppt bei %1 %</translation>
    </message>
    <message>
        <source>The reading was stopped. The next change begins it anew.</source>
        <translation>Das Lesen wurde gestoppt. Die nächste Änderung beginnt es neu.</translation>
    </message>
</context>
<context>
    <name>PreviewScreen</name>
    <message>
        <source>Coil of %1</source>
        <translation>Spule von %1</translation>
    </message>
</context>
<context>
    <name>ProgramList</name>
    <message>
        <source>Programs</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer. The programs come once it does.</source>
        <translation>Der Speicher des Panels antwortet nicht. Die Programme kommen, sobald er antwortet.</translation>
    </message>
    <message>
        <source>Reading the programs ...</source>
        <translation>Die Programme werden gelesen ...</translation>
    </message>
    <message>
        <source>The folder of the programs cannot be read: %1.</source>
        <translation>Der Ordner der Programme ist nicht lesbar: %1.</translation>
    </message>
    <message>
        <source>No programs yet. Write one on the screen Program, or bring some from the stick by I/E.</source>
        <translation>Noch keine Programme. Auf dem Bildschirm Programm eines schreiben oder mit I/E vom Stick holen.</translation>
    </message>
</context>
<context>
    <name>ProgramPicture</name>
    <message>
        <source>Coil</source>
        <translation>Spule</translation>
    </message>
</context>
<context>
    <name>ProgramReview</name>
    <message>
        <source>No check: the machine&apos;s profile has a fault.</source>
        <translation>Keine Prüfung: Das Profil der Maschine hat einen Fehler.</translation>
    </message>
    <message>
        <source>The program is being checked.</source>
        <translation>Das Programm wird geprüft.</translation>
    </message>
    <message>
        <source>Nothing found, by the rules of &quot;%1&quot;.</source>
        <translation>Nichts gefunden, nach den Regeln von &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Fehler: %1, Warnungen: %2</translation>
    </message>
    <message>
        <source>The check was stopped. The next change, or the screen Preview, begins it anew.</source>
        <translation>Die Prüfung wurde gestoppt. Die nächste Änderung oder die Vorschau beginnt sie neu.</translation>
    </message>
</context>
<context>
    <name>ProgramScreen</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Storno</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wieder</translation>
    </message>
    <message>
        <source>A download is running. Let it end, or stop it first.</source>
        <translation>Eine Übertragung läuft. Ihr Ende abwarten oder sie erst stoppen.</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation>%1 hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>The machine already stands as point %1 &quot;%2&quot; wants it: nothing to insert.</source>
        <translation>Die Maschine steht schon auf Punkt %1 „%2“: nichts einzufügen.</translation>
    </message>
    <message>
        <source>Point %1 &quot;%2&quot; inserted: %3</source>
        <translation>Punkt %1 „%2“ eingefügt: %3</translation>
    </message>
    <message>
        <source>The program is still being loaded or saved. Close the panel after that.</source>
        <translation>Das Programm wird noch geladen oder gespeichert. Das Panel danach schließen.</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Coil</source>
        <translation>Spule</translation>
    </message>
    <message>
        <source>The program is loaded: %1 %</source>
        <translation>Das Programm wird geladen: %1 %</translation>
    </message>
    <message>
        <source>downloading</source>
        <translation>Übertragung</translation>
    </message>
    <message>
        <source>not stored</source>
        <translation>nicht gespeichert</translation>
    </message>
    <message>
        <source>stored</source>
        <translation>gespeichert</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The settings file had errors and is now named %1. Please look over your settings.</source>
        <translation>Die Einstellungsdatei war fehlerhaft und heißt jetzt %1. Bitte prüfen Sie Ihre Einstellungen.</translation>
    </message>
    <message>
        <source>The settings file %1 has errors and cannot be renamed. What you choose lasts until the program ends.</source>
        <translation>Die Einstellungsdatei %1 ist fehlerhaft und nicht umbenennbar. Ihre Wahl gilt bis zum Ende.</translation>
    </message>
    <message>
        <source>The settings cannot be stored in %1. What you choose lasts until the program ends.</source>
        <translation>Die Einstellungen lassen sich nicht in %1 speichern. Was Sie wählen, gilt bis zum Programmende.</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Texts grow as far as each screen has room.</source>
        <translation>Texte wachsen, soweit der Schirm Platz hat.</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Töne</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>The display&apos;s bell at each touch of a key.</source>
        <translation>Der Ton des Displays bei jedem Tastendruck.</translation>
    </message>
    <message>
        <source>This display has no bell: nothing is heard.</source>
        <translation>Dieses Display hat keinen Ton: es bleibt still.</translation>
    </message>
    <message>
        <source>The translation is not installed.</source>
        <translation>Die Übersetzung ist nicht installiert.</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>One more</source>
        <translation>Eine mehr</translation>
    </message>
    <message>
        <source>One fewer</source>
        <translation>Eine weniger</translation>
    </message>
    <message>
        <source>Copy to the stick</source>
        <translation>Auf den Stick kopieren</translation>
    </message>
    <message>
        <source>Copy to the panel</source>
        <translation>Auf das Gerät kopieren</translation>
    </message>
    <message>
        <source>Out of the folder</source>
        <translation>Aus dem Ordner</translation>
    </message>
    <message>
        <source>Into the folder</source>
        <translation>In den Ordner</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Whether another panel works on the same programs cannot be told: %1.</source>
        <translation>Ob ein anderes Panel mit denselben Programmen arbeitet, lässt sich nicht feststellen: %1.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer. The programs come once it does.</source>
        <translation>Der Speicher des Panels antwortet nicht. Die Programme kommen, sobald er antwortet.</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>PLC: not known</source>
        <translation>SPS: unbekannt</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>PLC: ready</source>
        <translation>SPS: bereit</translation>
    </message>
    <message>
        <source>away</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>PLC: does not answer</source>
        <translation>SPS: antwortet nicht</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>PLC: receives a program</source>
        <translation>SPS: empfängt ein Programm</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>PLC: the last download failed</source>
        <translation>SPS: die letzte Übertragung ist gescheitert</translation>
    </message>
    <message>
        <source>Stick: not known</source>
        <translation>Stick: unbekannt</translation>
    </message>
    <message>
        <source>in</source>
        <translation>steckt</translation>
    </message>
    <message>
        <source>Stick: in</source>
        <translation>Stick: steckt</translation>
    </message>
    <message>
        <source>out</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Stick: out</source>
        <translation>Stick: fehlt</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Storage: not known</source>
        <translation>Speicher: unbekannt</translation>
    </message>
    <message>
        <source>Storage: %1 free</source>
        <translation>Speicher: %1 frei</translation>
    </message>
    <message>
        <source>Storage: only %1 free</source>
        <translation>Speicher: nur %1 frei</translation>
    </message>
    <message>
        <source>full</source>
        <translation>voll</translation>
    </message>
    <message>
        <source>Storage: full</source>
        <translation>Speicher: voll</translation>
    </message>
    <message>
        <source>PLC</source>
        <translation>SPS</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Stick</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Check: not known</source>
        <translation>Prüfung: nicht bekannt</translation>
    </message>
    <message>
        <source>Check: errors %1, warnings %2</source>
        <translation>Prüfung: Fehler %1, Warnungen %2</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>Check: nothing found</source>
        <translation>Prüfung: nichts gefunden</translation>
    </message>
</context>
<context>
    <name>StickCover</name>
    <message>
        <source>The stick is out. Plug it in: its files come by themselves.</source>
        <translation>Der Stick ist abgezogen. Ihn einstecken: die Dateien kommen von selbst.</translation>
    </message>
</context>
<context>
    <name>TablePicker</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
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
    <name>TapArea</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
</context>
<context>
    <name>TaughtDetails</name>
    <message>
        <source>own values</source>
        <translation>eigene Werte</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Tempo %1</translation>
    </message>
    <message>
        <source>Zone %1</source>
        <translation>Zone %1</translation>
    </message>
    <message>
        <source>Tool %1</source>
        <translation>Werkzeug %1</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Instruction %1: %2</source>
        <translation>Befehl %1: %2</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>TaughtFolder</name>
    <message>
        <source>it is too large</source>
        <translation>zu groß</translation>
    </message>
    <message>
        <source>%1 could not be copied to %2: %3.</source>
        <translation>%1 konnte nicht nach %2 kopiert werden: %3.</translation>
    </message>
</context>
<context>
    <name>TaughtProgram</name>
    <message>
        <source>Instr.</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>T</source>
        <translation>T</translation>
    </message>
    <message>
        <source>%1 is no taught program: row %2 is not an instruction.</source>
        <translation>%1 ist kein eingelerntes Programm: Zeile %2 ist kein Befehl.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>TeachScreen</name>
    <message>
        <source>G04 F1 wait</source>
        <translation>G04 F1 warten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf.</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Clearing: %1 %</source>
        <translation>Leeren: %1 %</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>The taught program has changes that are not stored.</source>
        <translation>Das eingelernte Programm hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>%1 loaded, instructions: %2.</source>
        <translation>%1 geladen, Befehle: %2.</translation>
    </message>
    <message>
        <source>%1 stored, instructions: %2.</source>
        <translation>%1 gespeichert, Befehle: %2.</translation>
    </message>
    <message>
        <source>Loading replaces what was changed and is not stored.</source>
        <translation>Laden ersetzt, was geändert und nicht gespeichert ist.</translation>
    </message>
    <message>
        <source>Load a taught program</source>
        <translation>Eingelerntes Programm laden</translation>
    </message>
    <message>
        <source>Remove all %1 instructions?</source>
        <translation>Alle %1 Befehle löschen?</translation>
    </message>
    <message>
        <source>There is no instruction to delete.</source>
        <translation>Es gibt keinen Befehl zum Löschen.</translation>
    </message>
    <message>
        <source>Point for instruction %1</source>
        <translation>Punkt für Befehl %1</translation>
    </message>
    <message>
        <source>Instructions that now name point %1 &quot;%2&quot;: %3.</source>
        <translation>Befehle, die nun Punkt %1 „%2“ nennen: %3.</translation>
    </message>
    <message>
        <source>Speed for instruction %1</source>
        <translation>Tempo für Befehl %1</translation>
    </message>
    <message>
        <source>Instructions that now name speed %1 &quot;%2&quot;: %3.</source>
        <translation>Befehle, die nun Tempo %1 „%2“ nennen: %3.</translation>
    </message>
    <message>
        <source>Taught program</source>
        <translation>Eingelerntes Programm</translation>
    </message>
    <message>
        <source>The list is empty. Store first puts that file aside.</source>
        <translation>Die Liste ist leer. Sichern legt diese Datei erst beiseite.</translation>
    </message>
    <message>
        <source>The list is empty. Try Load.</source>
        <translation>Die Liste ist leer. Mit Laden versuchen.</translation>
    </message>
    <message>
        <source>%1 is not there.</source>
        <translation>%1 ist nicht da.</translation>
    </message>
    <message>
        <source>%1, %2, instructions: %3</source>
        <translation>%1, %2, Befehle: %3</translation>
    </message>
    <message>
        <source>Not stored. %1</source>
        <translation>Nicht gespeichert. %1</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopie</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einf.</translation>
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
        <source>Undo</source>
        <translation>Storno</translation>
    </message>
    <message>
        <source>Taught programs are in %1 now, copied: %2. The old files stay.</source>
        <translation>Eingelernte Programme liegen nun in %1, kopiert: %2. Die alten Dateien bleiben.</translation>
    </message>
    <message>
        <source>Store as</source>
        <translation>Sich. als</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>%1 is there already, instructions: %2. Write over it?</source>
        <translation>%1 gibt es schon, Befehle: %2. Überschreiben?</translation>
    </message>
    <message>
        <source>%1 is there already and cannot be read. Put it aside and store?</source>
        <translation>%1 gibt es schon und ist nicht lesbar. Beiseitelegen und sichern?</translation>
    </message>
    <message>
        <source>Instructions removed: %1. Undo brings them back.</source>
        <translation>Gelöschte Befehle: %1. „Storno“ bringt sie wieder.</translation>
    </message>
    <message>
        <source>There is no instruction to copy.</source>
        <translation>Es gibt keinen Befehl zum Kopieren.</translation>
    </message>
    <message>
        <source>Instructions copied: %1. Paste puts them below a row.</source>
        <translation>Kopierte Befehle: %1. „Einf.“ setzt sie unter eine Zeile.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: taught programs of %1 may be missing.</source>
        <translation>Der Speicher des Panels antwortet nicht: Eingelernte Programme aus %1 können fehlen.</translation>
    </message>
    <message>
        <source>No instruction is chosen. Touch one.</source>
        <translation>Kein Befehl gewählt. Berühren Sie einen.</translation>
    </message>
    <message>
        <source>No instruction yet. MoveJ, MoveL and Text make one.</source>
        <translation>Noch kein Befehl. MoveJ, MoveL und Text legen einen an.</translation>
    </message>
</context>
<context>
    <name>TitleStrip</name>
    <message>
        <source>Panel and stick</source>
        <translation>Panel und Stick</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Bitte warten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Tour</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>What step %1 touches is not on the screen.</source>
        <translation>Was Schritt %1 berührt, ist nicht auf dem Bildschirm.</translation>
    </message>
    <message>
        <source>Step %1 expects a dialog, and none is open.</source>
        <translation>Schritt %1 erwartet einen Dialog, und keiner ist offen.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be written.</source>
        <translation>Das Bild %1 lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>What step %1 waits for does not come.</source>
        <translation>Worauf Schritt %1 wartet, kommt nicht.</translation>
    </message>
</context>
<context>
    <name>ValueRule</name>
    <message>
        <source>not a number</source>
        <translation>keine Zahl</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>unter %1</translation>
    </message>
    <message>
        <source>above %1</source>
        <translation>über %1</translation>
    </message>
    <message>
        <source>not whole</source>
        <translation>nicht ganz</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>zu lang</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>unlesbar</translation>
    </message>
    <message>
        <source>not on or off</source>
        <translation>nicht on/off</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on oder off</translation>
    </message>
    <message>
        <source>at most %1 letters</source>
        <translation>höchstens %1 Zeichen</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1, whole</source>
        <translation>%1, ganz</translation>
    </message>
</context>
<context>
    <name>VariableDetails</name>
    <message>
        <source>whole number</source>
        <translation>ganze Zahl</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on oder off</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>In der Datei</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
</context>
<context>
    <name>VariableTable</name>
    <message>
        <source>limit not a number</source>
        <translation>Grenze keine Zahl</translation>
    </message>
    <message>
        <source>minimum above maximum</source>
        <translation>Minimum über Maximum</translation>
    </message>
    <message>
        <source>limit too large</source>
        <translation>Grenze zu groß</translation>
    </message>
    <message>
        <source>no whole number between the limits</source>
        <translation>keine ganze Zahl zwischen den Grenzen</translation>
    </message>
    <message>
        <source>name empty, too long or not readable</source>
        <translation>Name leer, zu lang oder unlesbar</translation>
    </message>
    <message>
        <source>type unknown</source>
        <translation>Typ unbekannt</translation>
    </message>
    <message>
        <source>unit too long or not readable</source>
        <translation>Einheit zu lang oder unlesbar</translation>
    </message>
    <message>
        <source>there twice</source>
        <translation>doppelt vorhanden</translation>
    </message>
    <message>
        <source>too many variables</source>
        <translation>zu viele Variablen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>VariablesScreen</name>
    <message>
        <source>Machine variables</source>
        <translation>Maschinenvariablen</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>The variables have changes that are not stored.</source>
        <translation>Die Variablen haben Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Variables stored: %1.</source>
        <translation>Gespeicherte Variablen: %1.</translation>
    </message>
    <message>
        <source>The values are empty. Store first puts that file aside.</source>
        <translation>Die Werte sind leer. Sichern legt diese Datei erst beiseite.</translation>
    </message>
    <message>
        <source>The values are empty. Switch the panel off and on.</source>
        <translation>Die Werte sind leer. Das Panel aus- und einschalten.</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>%1, %2, values: %3</source>
        <translation>%1, %2, Werte: %3</translation>
    </message>
    <message>
        <source>Not stored. %1 must be %2.</source>
        <translation>Nicht gespeichert. %1: erlaubt ist %2.</translation>
    </message>
    <message>
        <source>Variables stored: %1, changed ones: %2.</source>
        <translation>Gespeicherte Variablen: %1, geändert: %2.</translation>
    </message>
    <message>
        <source>%1, lines not used: %2. %3.</source>
        <translation>%1, ungültige Zeilen: %2. %3.</translation>
    </message>
    <message>
        <source>Variables out of limits: %1. Touch the red ones.</source>
        <translation>Variablen außerhalb der Grenzen: %1. Rote berühren.</translation>
    </message>
    <message>
        <source>%1 is %2. It must be %3.</source>
        <translation>%1 ist %2. Erlaubt: %3.</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>stored</source>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>Values that are no variable&apos;s now, not brought back: %1.</source>
        <translation>Nicht zurückgeholte Werte ohne Variable: %1.</translation>
    </message>
    <message>
        <source>No variable is chosen. Touch one.</source>
        <translation>Keine Variable gewählt. Berühren Sie eine.</translation>
    </message>
</context>
<context>
    <name>WalkKeys</name>
    <message>
        <source>First</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>First line</source>
        <translation>Erste Zeile</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Go to a line</source>
        <translation>Zu einer Zeile</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Last line</source>
        <translation>Letzte Zeile</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Stopping ...</source>
        <translation>Wird gestoppt ...</translation>
    </message>
    <message>
        <source>%1 (more work: %2)</source>
        <translation>%1 (weitere Arbeit: %2)</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>noch %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>noch %1 min</translation>
    </message>
</context>
</TS>
