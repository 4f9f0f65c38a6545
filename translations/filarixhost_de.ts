<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CheckedDownload</name>
    <message>
        <source>The program is made ready: %1 %</source>
        <translation>Das Programm wird vorbereitet: %1 %</translation>
    </message>
    <message>
        <source>The download was stopped. The PLC keeps what it had.</source>
        <translation>Die Übertragung wurde gestoppt. Die SPS behält ihr bisheriges Programm.</translation>
    </message>
    <message>
        <source>Nothing was sent. The PLC keeps what it had.</source>
        <translation>Nichts gesendet. Die SPS behält ihr bisheriges Programm.</translation>
    </message>
    <message>
        <source>%1 goes to the PLC: %2 %</source>
        <translation>%1 wird zur SPS gesendet: %2 %</translation>
    </message>
    <message>
        <source>%1 is in the PLC: %2 bytes, compared.</source>
        <translation>%1 ist in der SPS: %2 Bytes, verglichen.</translation>
    </message>
    <message>
        <source>%1 is in the PLC as it was shown, %2. On the panel it is gone.</source>
        <translation>%1 ist wie gezeigt in der SPS, %2. Auf dem Panel ist es nicht mehr.</translation>
    </message>
    <message>
        <source>%1 is in the PLC as shown, %2. On the panel it has changed since: download it once more.</source>
        <translation>%1 ist wie gezeigt in der SPS, %2. Auf dem Panel ist es seither geändert: erneut senden.</translation>
    </message>
</context>
<context>
    <name>CoilFigures</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1:%2 min</source>
        <translation>%1:%2 min</translation>
    </message>
    <message>
        <source>%1:%2:%3 h</source>
        <translation>%1:%2:%3 h</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Windungen</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Lagen</translation>
    </message>
    <message>
        <source>Coils</source>
        <translation>Spulen</translation>
    </message>
    <message>
        <source>Wire length</source>
        <translation>Drahtlänge</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>Widerstand</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Outer diameter</source>
        <translation>Außen-Ø</translation>
    </message>
    <message>
        <source>Wire diameter</source>
        <translation>Draht-Ø</translation>
    </message>
</context>
<context>
    <name>CoilPicture</name>
    <message>
        <source>Tension %1</source>
        <translation>Zug %1</translation>
    </message>
    <message>
        <source>Layer 1</source>
        <translation>Lage 1</translation>
    </message>
    <message>
        <source>Coil %1 of %2</source>
        <translation>Spule %1 von %2</translation>
    </message>
    <message>
        <source>winding</source>
        <translation>wickeln</translation>
    </message>
    <message>
        <source>moving</source>
        <translation>fahren</translation>
    </message>
    <message>
        <source>rapid</source>
        <translation>Eilgang</translation>
    </message>
    <message>
        <source>Traverse</source>
        <translation>Verlegung</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Drehzahl</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>Zug</translation>
    </message>
    <message>
        <source>turns</source>
        <translation>Wdg.</translation>
    </message>
</context>
<context>
    <name>ConnectionFile</name>
    <message>
        <source>%1 cannot be made: %2.</source>
        <translation>%1 lässt sich nicht anlegen: %2.</translation>
    </message>
    <message>
        <source>the panel&apos;s temporary storage is full</source>
        <translation>der Zwischenspeicher des Panels ist voll</translation>
    </message>
    <message>
        <source>the file was changed meanwhile. Edit them once more</source>
        <translation>die Datei wurde inzwischen geändert. Adressen noch einmal ändern</translation>
    </message>
    <message>
        <source>the disk holds something else</source>
        <translation>auf dem Datenträger steht etwas anderes</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 ist zu groß.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>The connections cannot be read: the panel&apos;s temporary storage is full.</source>
        <translation>Die Verbindungen sind nicht lesbar: Der Zwischenspeicher des Panels ist voll.</translation>
    </message>
    <message>
        <source>The addresses are not stored: %1.</source>
        <translation>Die Adressen sind nicht gespeichert: %1.</translation>
    </message>
</context>
<context>
    <name>DownloadFacts</name>
    <message>
        <source>%1 in the file, %2 shown</source>
        <translation>%1 in der Datei, %2 gezeigt</translation>
    </message>
    <message>
        <source>%1 in the file, comments not shown</source>
        <translation>%1 in der Datei, ohne Kommentare gezeigt</translation>
    </message>
    <message>
        <source>%1 in the file, others shown</source>
        <translation>%1 in der Datei, andere gezeigt</translation>
    </message>
    <message>
        <source>%1 in the file, not compared</source>
        <translation>%1 in der Datei, nicht verglichen</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Send this program to the PLC?</source>
        <translation>Dieses Programm zur SPS senden?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Checksum</source>
        <translation>Prüfsumme</translation>
    </message>
    <message>
        <source>This machine takes no program with errors. Mend them, then send it.</source>
        <translation>Diese Maschine nimmt kein Programm mit Fehlern. Erst beheben, dann senden.</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>The check found errors: %1. The machine may stop or wind something else.</source>
        <translation>Die Prüfung fand Fehler: %1. Die Maschine kann anhalten oder anders wickeln.</translation>
    </message>
    <message>
        <source>The program could not be checked to the end. Errors may be in it.</source>
        <translation>Das Programm wurde nicht bis zum Ende geprüft. Es kann Fehler enthalten.</translation>
    </message>
    <message>
        <source>Send it all the same?</source>
        <translation>Trotzdem senden?</translation>
    </message>
</context>
<context>
    <name>DownloadSource</name>
    <message>
        <source>There is no program to download yet. Save it under a name first.</source>
        <translation>Noch kein Programm zum Senden. Erst unter einem Namen speichern.</translation>
    </message>
    <message>
        <source>The program %1 is gone from the panel. Save it again, then download.</source>
        <translation>Das Programm %1 ist nicht mehr auf dem Panel. Erneut speichern, dann senden.</translation>
    </message>
    <message>
        <source>%1 is not a program file.</source>
        <translation>%1 ist keine Programmdatei.</translation>
    </message>
    <message>
        <source>The program %1 cannot be read: %2.</source>
        <translation>Das Programm %1 ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>The download was stopped. The PLC keeps what it had.</source>
        <translation>Die Übertragung wurde gestoppt. Die SPS behält ihr bisheriges Programm.</translation>
    </message>
</context>
<context>
    <name>FindDialogGuide</name>
    <message>
        <source>Start reached, went on at the end: line %1.</source>
        <translation>Anfang erreicht, weiter vom Ende: Zeile %1.</translation>
    </message>
    <message>
        <source>End reached, went on at the top: line %1.</source>
        <translation>Ende erreicht, weiter von oben: Zeile %1.</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>A control character stands here, which nobody sees.</source>
        <translation>Hier steht ein Steuerzeichen, das niemand sieht.</translation>
    </message>
    <message>
        <source>Delete it, or write the line anew.</source>
        <translation>Löschen oder die Zeile neu schreiben.</translation>
    </message>
    <message>
        <source>A character stands here that machines don&apos;t know.</source>
        <translation>Hier steht ein Zeichen, das Maschinen nicht kennen.</translation>
    </message>
    <message>
        <source>Write it anew: it may look like another one.</source>
        <translation>Neu schreiben: Es kann einem anderen gleichen.</translation>
    </message>
    <message>
        <source>The comment has a character that is not ASCII.</source>
        <translation>Der Kommentar hat ein Zeichen, das nicht ASCII ist.</translation>
    </message>
    <message>
        <source>Another panel may show another one in its place.</source>
        <translation>Ein anderes Panel zeigt dafür vielleicht ein anderes.</translation>
    </message>
    <message>
        <source>What stands here is no word.</source>
        <translation>Was hier steht, ist kein Wort.</translation>
    </message>
    <message>
        <source>Delete it, or put a &quot;;&quot; before a comment.</source>
        <translation>Löschen, oder ein &quot;;&quot; vor den Kommentar setzen.</translation>
    </message>
    <message>
        <source>The letter here has no number.</source>
        <translation>Der Buchstabe hier hat keine Zahl.</translation>
    </message>
    <message>
        <source>Add the number, or delete the letter.</source>
        <translation>Die Zahl ergänzen oder den Buchstaben löschen.</translation>
    </message>
    <message>
        <source>The number here cannot be read.</source>
        <translation>Die Zahl hier ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Write it with one point and one sign at most.</source>
        <translation>Mit höchstens einem Punkt und einem Vorzeichen schreiben.</translation>
    </message>
    <message>
        <source>The number here is too large for any machine.</source>
        <translation>Die Zahl hier ist für jede Maschine zu groß.</translation>
    </message>
    <message>
        <source>Correct the number.</source>
        <translation>Die Zahl berichtigen.</translation>
    </message>
    <message>
        <source>The comment that begins here has no end.</source>
        <translation>Der Kommentar, der hier beginnt, hat kein Ende.</translation>
    </message>
    <message>
        <source>Add a &quot;)&quot;, or begin it with &quot;;&quot;.</source>
        <translation>Ein &quot;)&quot; ergänzen, oder mit &quot;;&quot; beginnen.</translation>
    </message>
    <message>
        <source>The line has too many words: the rest is not read.</source>
        <translation>Die Zeile hat zu viele Wörter: Der Rest wird nicht gelesen.</translation>
    </message>
    <message>
        <source>Use several lines.</source>
        <translation>Mehrere Zeilen verwenden.</translation>
    </message>
    <message>
        <source>The line is too long: the rest is not read.</source>
        <translation>Die Zeile ist zu lang: Der Rest wird nicht gelesen.</translation>
    </message>
    <message>
        <source>%1 is unknown to this profile.</source>
        <translation>%1 ist diesem Profil unbekannt.</translation>
    </message>
    <message>
        <source>Correct it, or check with the profile of the machine.</source>
        <translation>Berichtigen, oder mit dem Profil der Maschine prüfen.</translation>
    </message>
    <message>
        <source>%1: the machine has no such guide tube.</source>
        <translation>%1: Die Maschine hat kein solches Führungsrohr.</translation>
    </message>
    <message>
        <source>Correct the number, or add the tube to the profile.</source>
        <translation>Die Zahl berichtigen, oder das Rohr ins Profil aufnehmen.</translation>
    </message>
    <message>
        <source>%1 does not count: another one stands in the line.</source>
        <translation>%1 zählt nicht: In der Zeile steht noch eines.</translation>
    </message>
    <message>
        <source>Keep one of them.</source>
        <translation>Nur eines behalten.</translation>
    </message>
    <message>
        <source>%1 and %2 in one line contradict each other.</source>
        <translation>%1 und %2 in einer Zeile widersprechen sich.</translation>
    </message>
    <message>
        <source>Keep one of them, or use two lines.</source>
        <translation>Eines behalten oder zwei Zeilen verwenden.</translation>
    </message>
    <message>
        <source>%1 has no effect in this line.</source>
        <translation>%1 bewirkt in dieser Zeile nichts.</translation>
    </message>
    <message>
        <source>Delete it, or add what it belongs to.</source>
        <translation>Löschen, oder ergänzen, wozu es gehört.</translation>
    </message>
    <message>
        <source>%1 must not be negative.</source>
        <translation>%1 darf nicht negativ sein.</translation>
    </message>
    <message>
        <source>%1 moves, but no motion is in force.</source>
        <translation>%1 bewegt, aber keine Bewegung ist in Kraft.</translation>
    </message>
    <message>
        <source>Put a motion before it, such as %2.</source>
        <translation>Eine Bewegung davor setzen, etwa %2.</translation>
    </message>
    <message>
        <source>%1 moves without a feed.</source>
        <translation>%1 bewegt ohne Vorschub.</translation>
    </message>
    <message>
        <source>Add %2 with the feed.</source>
        <translation>%2 mit dem Vorschub ergänzen.</translation>
    </message>
    <message>
        <source>%1 winds without a pitch.</source>
        <translation>%1 wickelt ohne Steigung.</translation>
    </message>
    <message>
        <source>Add %2 with the pitch.</source>
        <translation>%2 mit der Steigung ergänzen.</translation>
    </message>
    <message>
        <source>%1 waits without a time.</source>
        <translation>%1 wartet ohne Zeit.</translation>
    </message>
    <message>
        <source>Add %2 with the time.</source>
        <translation>%2 mit der Zeit ergänzen.</translation>
    </message>
    <message>
        <source>%1 waits for the spindle, which stands.</source>
        <translation>%1 wartet auf die Spindel, die steht.</translation>
    </message>
    <message>
        <source>Start the spindle before, by %2 and a speed.</source>
        <translation>Die Spindel vorher starten, mit %2 und einer Drehzahl.</translation>
    </message>
    <message>
        <source>%1 goes to %2, beyond the axis: its end is %3.</source>
        <translation>%1 fährt auf %2, über die Achse hinaus: Ihr Ende ist %3.</translation>
    </message>
    <message>
        <source>Correct the number or the position before.</source>
        <translation>Die Zahl oder die Position davor berichtigen.</translation>
    </message>
    <message>
        <source>%1 is faster than the spindle may turn: %2.</source>
        <translation>%1 ist schneller, als die Spindel drehen darf: %2.</translation>
    </message>
    <message>
        <source>Use a lower speed.</source>
        <translation>Eine kleinere Drehzahl verwenden.</translation>
    </message>
    <message>
        <source>The pitch %1 is above the limit of %2.</source>
        <translation>Die Steigung %1 liegt über der Grenze von %2.</translation>
    </message>
    <message>
        <source>Use a smaller pitch.</source>
        <translation>Eine kleinere Steigung verwenden.</translation>
    </message>
    <message>
        <source>The spindle turns at a tension of %1; the limit is %2.</source>
        <translation>Die Spindel dreht bei einem Zug von %1; die Grenze ist %2.</translation>
    </message>
    <message>
        <source>Use less tension: the wire may break.</source>
        <translation>Weniger Zug verwenden: Der Draht kann reißen.</translation>
    </message>
    <message>
        <source>The tension jumps by %1; the limit is %2.</source>
        <translation>Der Zug springt um %1; die Grenze ist %2.</translation>
    </message>
    <message>
        <source>Use several steps.</source>
        <translation>Mehrere Schritte verwenden.</translation>
    </message>
    <message>
        <source>The wire is laid at %1; the bobbin is from %2 to %3.</source>
        <translation>Der Draht wird bei %1 gelegt; die Spule reicht von %2 bis %3.</translation>
    </message>
    <message>
        <source>Stay between the flanges, or stop the spindle.</source>
        <translation>Zwischen den Flanschen bleiben oder die Spindel anhalten.</translation>
    </message>
    <message>
        <source>The coil grows over the flange, which has %1.</source>
        <translation>Die Wicklung wächst über den Flansch von %1.</translation>
    </message>
    <message>
        <source>Use fewer turns, a thinner wire or another bobbin.</source>
        <translation>Weniger Windungen, dünneren Draht oder eine andere Spule verwenden.</translation>
    </message>
    <message>
        <source>The winding begins before the wire is clamped.</source>
        <translation>Das Wickeln beginnt, bevor der Draht geklemmt ist.</translation>
    </message>
    <message>
        <source>Clamp the wire first, by %2.</source>
        <translation>Den Draht vorher klemmen, mit %2.</translation>
    </message>
    <message>
        <source>The program ends before the wire is cut.</source>
        <translation>Das Programm endet, bevor der Draht geschnitten ist.</translation>
    </message>
    <message>
        <source>Cut the wire first, by %1.</source>
        <translation>Den Draht vorher schneiden, mit %1.</translation>
    </message>
    <message>
        <source>The program has no end.</source>
        <translation>Das Programm hat kein Ende.</translation>
    </message>
    <message>
        <source>Add %1 as the last line.</source>
        <translation>%1 als letzte Zeile ergänzen.</translation>
    </message>
    <message>
        <source>The program has ended: this is never performed.</source>
        <translation>Das Programm ist zu Ende: Dies wird nie ausgeführt.</translation>
    </message>
    <message>
        <source>Delete it, or put the end behind it.</source>
        <translation>Löschen, oder das Ende dahinter setzen.</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has no place: the folder %1 cannot be made.</source>
        <translation>Kein Platz für den Verlauf: Der Ordner %1 lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>%1 is too large for the history.</source>
        <translation>%1 ist zu groß für den Verlauf.</translation>
    </message>
    <message>
        <source>The history cannot read %1: %2.</source>
        <translation>Der Verlauf kann %1 nicht lesen: %2.</translation>
    </message>
    <message>
        <source>The history cannot keep %1: %2.</source>
        <translation>Der Verlauf kann %1 nicht sichern: %2.</translation>
    </message>
    <message>
        <source>The history has no room for %1 beside the other programs.</source>
        <translation>Der Verlauf hat neben den anderen Programmen keinen Platz für %1.</translation>
    </message>
</context>
<context>
    <name>ImportGuard</name>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>File names</source>
        <translation>Dateinamen</translation>
    </message>
    <message>
        <source>Not renamed. Import and export stay closed until the names are safe.</source>
        <translation>Nicht umbenannt. Import und Export bleiben gesperrt, bis die Namen sicher sind.</translation>
    </message>
    <message>
        <source>Files that could not be renamed: %1. Is the stick write-protected?</source>
        <translation>Nicht umbenennbare Dateien: %1. Ist der Stick schreibgeschützt?</translation>
    </message>
    <message>
        <source>Files renamed: %1.</source>
        <translation>Umbenannte Dateien: %1.</translation>
    </message>
    <message>
        <source>No transfer: the path %1 holds characters that the transfer would not take for what they are.</source>
        <translation>Keine Übertragung: Der Pfad %1 enthält Zeichen, die die Übertragung falsch verstehen würde.</translation>
    </message>
    <message>
        <source>One moment: the panel looks at the programs and the stick.</source>
        <translation>Einen Moment: Das Panel prüft die Programme und den Stick.</translation>
    </message>
    <message>
        <source>No stick is in: nothing was copied or deleted.</source>
        <translation>Kein Stick steckt: Nichts wurde kopiert oder gelöscht.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>The stick does not answer: nothing was copied, deleted or renamed. Pull it and plug it in again.</source>
        <translation>Der Stick antwortet nicht: Nichts wurde kopiert, gelöscht oder umbenannt. Abziehen und wieder einstecken.</translation>
    </message>
    <message>
        <source>%1 is copied to the stick, and compared.</source>
        <translation>%1 ist auf den Stick kopiert und verglichen.</translation>
    </message>
    <message>
        <source>%1 is copied to the panel, and compared.</source>
        <translation>%1 ist auf das Panel kopiert und verglichen.</translation>
    </message>
    <message>
        <source>%1 is deleted from the stick.</source>
        <translation>%1 ist vom Stick gelöscht.</translation>
    </message>
    <message>
        <source>%1 is deleted from the panel.</source>
        <translation>%1 ist vom Panel gelöscht.</translation>
    </message>
    <message>
        <source>%1 was not copied.</source>
        <translation>%1 wurde nicht kopiert.</translation>
    </message>
    <message>
        <source>%1 was not copied, and the one on the stick is gone.</source>
        <translation>%1 wurde nicht kopiert, und das auf dem Stick ist weg.</translation>
    </message>
    <message>
        <source>%1 was not copied, and the panel&apos;s own is gone: bring it back from the history.</source>
        <translation>%1 wurde nicht kopiert, und das auf dem Panel ist weg: aus dem Verlauf zurückholen.</translation>
    </message>
    <message>
        <source>The copy of %1 is not what was to be copied. Is there space left? Copy it once more.</source>
        <translation>Die Kopie von %1 weicht vom Original ab. Ist noch Platz? Noch einmal kopieren.</translation>
    </message>
    <message>
        <source>Leave them</source>
        <translation>So lassen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>Trotzdem</translation>
    </message>
    <message>
        <source>The transfer cannot take these file names. Nothing is copied or deleted until they are renamed.</source>
        <translation>Die Übertragung kann diese Dateinamen nicht. Bis sie umbenannt sind, wird nichts kopiert oder gelöscht.</translation>
    </message>
    <message>
        <source>What %1 is now would be lost.</source>
        <translation>Der jetzige Stand von %1 ginge verloren.</translation>
    </message>
</context>
<context>
    <name>LineEntry</name>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
</context>
<context>
    <name>MachineProfile</name>
    <message>
        <source>%1 is too large for a machine profile.</source>
        <translation>%1 ist zu groß für ein Maschinenprofil.</translation>
    </message>
    <message>
        <source>%1 is no text, and so no machine profile.</source>
        <translation>%1 ist kein Text und damit kein Maschinenprofil.</translation>
    </message>
    <message>
        <source>A line is a [section] or a key = value.</source>
        <translation>Eine Zeile ist ein [Abschnitt] oder Schlüssel = Wert.</translation>
    </message>
    <message>
        <source>There is no section [%1].</source>
        <translation>Es gibt keinen Abschnitt [%1].</translation>
    </message>
    <message>
        <source>A key stands before the first section.</source>
        <translation>Ein Schlüssel steht vor dem ersten Abschnitt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands there twice.</source>
        <translation>„%1“ steht zweimal da.</translation>
    </message>
    <message>
        <source>An axis is: letter = role, unit, minimum, maximum.</source>
        <translation>Eine Achse ist: Buchstabe = Aufgabe, Einheit, Minimum, Maximum.</translation>
    </message>
    <message>
        <source>Another axis is the %1 already.</source>
        <translation>Eine andere Achse ist schon %1.</translation>
    </message>
    <message>
        <source>The unit of this axis is mm.</source>
        <translation>Die Einheit dieser Achse ist mm.</translation>
    </message>
    <message>
        <source>The unit of this axis is N.</source>
        <translation>Die Einheit dieser Achse ist N.</translation>
    </message>
    <message>
        <source>There are too many axes.</source>
        <translation>Es sind zu viele Achsen.</translation>
    </message>
    <message>
        <source>A function is: G or M with a number = action, modal group.</source>
        <translation>Eine Funktion ist: G oder M mit einer Zahl = Aktion, modale Gruppe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no letter.</source>
        <translation>„%1“ ist kein Buchstabe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of a tool, or stands there twice.</source>
        <translation>„%1“ ist keine Werkzeugnummer oder steht zweimal da.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size of IEC 60317, as &quot;0.250 grade 1&quot; is.</source>
        <translation>„%1“ ist keine Größe der IEC 60317 wie „0.250 grade 1“.</translation>
    </message>
    <message>
        <source>The letter %1 means something already.</source>
        <translation>Der Buchstabe %1 hat schon eine Bedeutung.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number from %2 to %3.</source>
        <translation>„%1“ ist keine Zahl von %2 bis %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of: %2.</source>
        <translation>„%1“ ist keins von: %2.</translation>
    </message>
    <message>
        <source>%1: no axis is the traverse.</source>
        <translation>%1: Keine Achse ist die Verlegung (traverse).</translation>
    </message>
    <message>
        <source>%1: the bobbin needs a core and a width.</source>
        <translation>%1: Der Spulenkörper braucht Kern und Breite.</translation>
    </message>
    <message>
        <source>%1: the flange is narrower than the core.</source>
        <translation>%1: Der Flansch ist kleiner als der Kern.</translation>
    </message>
    <message>
        <source>%1: the conductor is wider than the wire.</source>
        <translation>%1: Der Leiter ist dicker als der Draht.</translation>
    </message>
    <message>
        <source>%1: a dwell needs &quot;dwell = letter&quot; in [words].</source>
        <translation>%1: Eine Verweilzeit braucht „dwell = Buchstabe“ in [words].</translation>
    </message>
    <message>
        <source>%1: the letter of the dwell means something already.</source>
        <translation>%1: Der Buchstabe der Verweilzeit hat schon eine Bedeutung.</translation>
    </message>
    <message>
        <source>There is no key &quot;%1&quot; in [%2].</source>
        <translation>In [%2] gibt es keinen Schlüssel „%1“.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 ist nicht lesbar: %2.</translation>
    </message>
</context>
<context>
    <name>OwnTransfer</name>
    <message>
        <source>The machine has not ended the last download yet. Wait, then download once more.</source>
        <translation>Die letzte Übertragung zur Maschine ist noch nicht zu Ende. Abwarten, dann erneut senden.</translation>
    </message>
    <message>
        <source>The machine stopped answering: whether it holds %1 is not known. Check it, then download again.</source>
        <translation>Die Maschine antwortet nicht mehr. Hat sie %1? Prüfen, dann erneut senden.</translation>
    </message>
    <message>
        <source>%1 is in the machine.</source>
        <translation>%1 ist in der Maschine.</translation>
    </message>
</context>
<context>
    <name>PickerFacts</name>
    <message>
        <source>Reading %1 ...</source>
        <translation>%1 wird gelesen ...</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>Der Speicher des Panels antwortet nicht.</translation>
    </message>
    <message>
        <source>A new program.</source>
        <translation>Ein neues Programm.</translation>
    </message>
    <message>
        <source>There is no program of this name.</source>
        <translation>Kein Programm dieses Namens da.</translation>
    </message>
    <message>
        <source>This is no program file.</source>
        <translation>Das ist keine Programmdatei.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Es ist nicht lesbar: %1.</translation>
    </message>
    <message>
        <source>It is there already.</source>
        <translation>Es ist schon da.</translation>
    </message>
    <message>
        <source>More than %1 lines: too long to be read here.</source>
        <translation>Mehr als %1 Zeilen: zu lang, um hier gelesen zu werden.</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>Reading: %1 %</source>
        <translation>Lesen: %1 %</translation>
    </message>
    <message>
        <source>%1 turns, %2 m of wire</source>
        <translation>%1 Windungen, %2 m Draht</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>Not read to its end: it was stopped.</source>
        <translation>Nicht zu Ende gelesen: es wurde gestoppt.</translation>
    </message>
    <message>
        <source>Runs for %1</source>
        <translation>Läuft %1</translation>
    </message>
</context>
<context>
    <name>PickerFitting</name>
    <message>
        <source>Program name</source>
        <translation>Programmname</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programme</translation>
    </message>
</context>
<context>
    <name>PickerGuard</name>
    <message>
        <source>%1 is now at the end of the name. Press OK once more, or change the name.</source>
        <translation>Der Name endet jetzt mit %1. Noch einmal OK drücken oder den Namen ändern.</translation>
    </message>
</context>
<context>
    <name>PickerStrip</name>
    <message>
        <source>Save the program as</source>
        <translation>Programm speichern als</translation>
    </message>
    <message>
        <source>Remove a program</source>
        <translation>Programm löschen</translation>
    </message>
    <message>
        <source>Open a program</source>
        <translation>Programm öffnen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>Teil eines Namens</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Seite zurück</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Seite vor</translation>
    </message>
    <message>
        <source>%1 of %2 programs</source>
        <translation>%1 von %2 Programmen</translation>
    </message>
    <message>
        <source>Programs: %1</source>
        <translation>Programme: %1</translation>
    </message>
    <message>
        <source>The folder is read-only.</source>
        <translation>Der Ordner ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Order: %1</source>
        <translation>Reihenfolge: %1</translation>
    </message>
</context>
<context>
    <name>PickerTable</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
</context>
<context>
    <name>PlcTransfer</name>
    <message>
        <source>The PLC does not answer: there is no folder %1.</source>
        <translation>Die SPS antwortet nicht: Der Ordner %1 fehlt.</translation>
    </message>
    <message>
        <source>The PLC folder is the program directory itself. Choose another one.</source>
        <translation>Der SPS-Ordner ist das Programmverzeichnis selbst. Einen anderen wählen.</translation>
    </message>
    <message>
        <source>The program %1 is larger than the PLC takes (%2 MB).</source>
        <translation>Das Programm %1 ist größer, als die SPS annimmt (%2 MB).</translation>
    </message>
    <message>
        <source>The PLC does not take the program: %1.</source>
        <translation>Die SPS nimmt das Programm nicht an: %1.</translation>
    </message>
    <message>
        <source>What arrived in the PLC cannot be read back: %1.</source>
        <translation>Rücklesen aus der SPS ist nicht möglich: %1.</translation>
    </message>
    <message>
        <source>What arrived in the PLC differs from what was sent. It was taken out again; download once more.</source>
        <translation>In der SPS ist etwas anderes angekommen als gesendet. Es wurde wieder entfernt; bitte erneut senden.</translation>
    </message>
    <message>
        <source>The download was stopped before the program in the PLC was compared. Download it once more.</source>
        <translation>Vor dem Vergleich mit der SPS gestoppt. Das Programm erneut senden.</translation>
    </message>
    <message>
        <source>The copy of %1 has changed since it was shown, and was not sent. Download once more.</source>
        <translation>Die Kopie von %1 hat sich seit dem Anzeigen geändert und wurde nicht gesendet. Erneut senden.</translation>
    </message>
    <message>
        <source>%1 is in the PLC, but the PLC does not say that it is stored: %2. Download once more.</source>
        <translation>%1 ist in der SPS, doch sie bestätigt das Speichern nicht: %2. Erneut senden.</translation>
    </message>
    <message>
        <source>What is in the PLC as %1 differs from what was sent. Do not run it; download once more.</source>
        <translation>%1 in der SPS weicht vom Gesendeten ab. Nicht starten; erneut senden.</translation>
    </message>
    <message>
        <source>The last download has not ended yet. Wait, or switch the PLC off and on, then download once more.</source>
        <translation>Die letzte Übertragung ist noch nicht zu Ende. Abwarten oder SPS aus- und einschalten, dann erneut senden.</translation>
    </message>
    <message>
        <source>The PLC stopped answering: whether it holds %1 is not known. Check it, then download again.</source>
        <translation>Die SPS antwortet nicht mehr: Ob sie %1 hat, ist unbekannt. SPS prüfen, dann erneut senden.</translation>
    </message>
    <message>
        <source>%1 is in the PLC but not compared: the PLC stopped answering. Check the PLC, then download again.</source>
        <translation>%1 ist in der SPS, aber nicht verglichen: keine Antwort mehr. SPS prüfen, dann erneut senden.</translation>
    </message>
    <message>
        <source>The PLC stopped answering during the download. Check the PLC and its cable, then download once more.</source>
        <translation>Die SPS antwortet mitten im Senden nicht mehr. SPS und Kabel prüfen, dann erneut senden.</translation>
    </message>
</context>
<context>
    <name>ProgramGuard</name>
    <message>
        <source>A program is being loaded. Wait until all of it is here.</source>
        <translation>Ein Programm wird geladen. Warten, bis alles da ist.</translation>
    </message>
    <message>
        <source>the panel&apos;s storage does not answer</source>
        <translation>der Speicher des Panels antwortet nicht</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save without them</source>
        <translation>Ohne sie sichern</translation>
    </message>
    <message>
        <source>Save as shown</source>
        <translation>Wie gezeigt sichern</translation>
    </message>
    <message>
        <source>Other name</source>
        <translation>Anderer Name</translation>
    </message>
    <message>
        <source>%1 is not stored: %2. Do not switch off: the whole program is only in the editor.</source>
        <translation>%1 ist nicht gespeichert: %2. Nicht ausschalten: Das ganze Programm steht nur im Editor.</translation>
    </message>
    <message>
        <source>%1 saved, %2 lines.</source>
        <translation>%1 gespeichert, %2 Zeilen.</translation>
    </message>
    <message>
        <source>%1 has characters that the file cannot hold; they were replaced.</source>
        <translation>%1 enthält Zeichen, die die Datei nicht aufnehmen kann; sie wurden ersetzt.</translation>
    </message>
    <message>
        <source>%1 is on the stick as %2. On the panel it is not stored: %3.</source>
        <translation>%1 ist auf dem Stick als %2. Auf dem Panel ist es nicht gespeichert: %3.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>Der Speicher des Panels antwortet nicht.</translation>
    </message>
    <message>
        <source>%1 is not a program file. Take another name.</source>
        <translation>%1 ist keine Programmdatei. Einen anderen Namen wählen.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Write over it</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>%1 is open, with changes that are not saved. They are lost with it.</source>
        <translation>%1 ist offen und hat ungespeicherte Änderungen. Sie gehen mit verloren.</translation>
    </message>
    <message>
        <source>Remove it</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>%1 could not be removed: it is still there.</source>
        <translation>%1 ließ sich nicht löschen: Es ist noch da.</translation>
    </message>
    <message>
        <source>%1 is there already: %2 lines, of %3. Write this program over it?</source>
        <translation>%1 ist schon da: %2 Zeilen, vom %3. Mit diesem Programm überschreiben?</translation>
    </message>
    <message>
        <source>This program: %1 lines</source>
        <translation>Dieses Programm: %1 Zeilen</translation>
    </message>
</context>
<context>
    <name>ProgramHistory</name>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>This version of %1 is not in the history any more.</source>
        <translation>Diese Fassung von %1 ist nicht mehr im Verlauf.</translation>
    </message>
    <message>
        <source>This version of %1 is damaged and was not brought back. Try the one before it.</source>
        <translation>Diese Fassung von %1 ist beschädigt und wurde nicht zurückgeholt. Die davor versuchen.</translation>
    </message>
    <message>
        <source>%1 is brought back: %2 %</source>
        <translation>%1 wird zurückgeholt: %2 %</translation>
    </message>
    <message>
        <source>Stopped. %1 is as it was.</source>
        <translation>Gestoppt. %1 ist unverändert.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering; %1 was not brought back.</source>
        <translation>Der Speicher des Panels antwortet nicht mehr; %1 wurde nicht zurückgeholt.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering: nothing goes into the history any more. Switch the panel off and on.</source>
        <translation>Der Speicher antwortet nicht mehr: Der Verlauf sichert nichts. Panel aus- und einschalten.</translation>
    </message>
    <message>
        <source>%1 was not brought back.</source>
        <translation>%1 wurde nicht zurückgeholt.</translation>
    </message>
    <message>
        <source>%1 was not brought back: what it is now cannot be kept in the history first.</source>
        <translation>%1 wurde nicht zurückgeholt: Der jetzige Stand lässt sich nicht vorher sichern.</translation>
    </message>
    <message>
        <source>%1 is back as of %2. Open it to see it.</source>
        <translation>%1 ist zurück, Stand %2. Zum Ansehen öffnen.</translation>
    </message>
    <message>
        <source>%1 is back, but it is not certain that it is stored: %2.</source>
        <translation>%1 ist zurück, doch ob es gespeichert ist, ist nicht sicher: %2.</translation>
    </message>
    <message>
        <source>%1 was not brought back: it is being written. Try again when that is over.</source>
        <translation>%1 wurde nicht zurückgeholt: Es wird gerade geschrieben. Danach noch einmal versuchen.</translation>
    </message>
    <message>
        <source>The history has not taken in %1 yet.</source>
        <translation>Der Verlauf hat %1 noch nicht gesichert.</translation>
    </message>
    <message>
        <source>%1 was not brought back: the last restore has not ended yet. Switch the panel off and on.</source>
        <translation>%1 wurde nicht zurückgeholt: Das letzte Zurückholen läuft noch. Das Panel aus- und einschalten.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering: the version of %1 is not known. Switch the panel off and on.</source>
        <translation>Der Speicher antwortet nicht mehr: Fassung von %1 unbekannt. Panel aus- und einschalten.</translation>
    </message>
</context>
<context>
    <name>ProgramKeeper</name>
    <message>
        <source>One moment: the history takes in the program first.</source>
        <translation>Einen Moment: Der Verlauf sichert erst das Programm.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>Trotzdem</translation>
    </message>
    <message>
        <source>What %1 is now would be lost.</source>
        <translation>Der jetzige Stand von %1 ginge verloren.</translation>
    </message>
</context>
<context>
    <name>ProgramName</name>
    <message>
        <source>Give the program a name.</source>
        <translation>Dem Programm einen Namen geben.</translation>
    </message>
    <message>
        <source>A name holds no &quot;/&quot;: programs lie in one folder.</source>
        <translation>Ein Name enthält kein „/“: Alle Programme liegen in einem Ordner.</translation>
    </message>
    <message>
        <source>A name that begins with a dot is hidden from the lists. Take another one.</source>
        <translation>Ein Name mit einem Punkt am Anfang fehlt in den Listen. Einen anderen wählen.</translation>
    </message>
    <message>
        <source>New program</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>ProgramSnapshot</name>
    <message>
        <source>The program %1 cannot be held for the download: %2.</source>
        <translation>Das Programm %1 lässt sich nicht zum Senden bereitlegen: %2.</translation>
    </message>
    <message>
        <source>The program %1 is being written. Download it when that is over.</source>
        <translation>Das Programm %1 wird gerade geschrieben. Danach senden.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering. Switch the panel off and on, then download once more.</source>
        <translation>Der Speicher des Panels antwortet nicht mehr. Panel aus- und einschalten, dann erneut senden.</translation>
    </message>
</context>
<context>
    <name>ProgramState</name>
    <message>
        <source>Not compared with the file: %1</source>
        <translation>Nicht mit der Datei verglichen: %1</translation>
    </message>
    <message>
        <source>Not as in the file: it has characters that cannot be shown, or has changed</source>
        <translation>Nicht wie in der Datei: Sie enthält nicht darstellbare Zeichen oder wurde geändert</translation>
    </message>
    <message>
        <source>Not as in the file: %1 lines there, %2 shown</source>
        <translation>Nicht wie in der Datei: dort %1 Zeilen, gezeigt %2</translation>
    </message>
    <message>
        <source>Incomplete: %1 lines in the file, %2 shown</source>
        <translation>Unvollständig: %1 Zeilen in der Datei, %2 gezeigt</translation>
    </message>
    <message>
        <source>%1 is not stored: %2</source>
        <translation>%1 ist nicht gespeichert: %2</translation>
    </message>
    <message>
        <source>%1 is shown otherwise than the file has it. Saving replaces the file by what is shown.</source>
        <translation>%1 ist anders gezeigt, als die Datei es hat. Sichern ersetzt die Datei durch das Gezeigte.</translation>
    </message>
    <message>
        <source>%1 is not stored: %2. Save it first.</source>
        <translation>%1 ist nicht gespeichert: %2. Erst sichern.</translation>
    </message>
    <message>
        <source>%1 lines in the file, %2 shown: no comments, no empty lines</source>
        <translation>%1 Zeilen in der Datei, %2 gezeigt: ohne Kommentare, Leerzeilen</translation>
    </message>
    <message>
        <source>%1 has %2 lines, %3 are shown. Saving takes out its comments and empty lines.</source>
        <translation>%1 hat %2 Zeilen, gezeigt sind %3. Sichern entfernt Kommentare und Leerzeilen.</translation>
    </message>
    <message>
        <source>Only a part of %1 is here: saving or sending loses the rest. Open it again, or take another name.</source>
        <translation>Nur ein Teil von %1 ist da: Sichern oder Senden verliert den Rest. Neu öffnen oder anderer Name.</translation>
    </message>
</context>
<context>
    <name>ProgramVerdict</name>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Fehler: %1, Warnungen: %2</translation>
    </message>
    <message>
        <source>Not checked to the end</source>
        <translation>Nicht bis zum Ende geprüft</translation>
    </message>
</context>
<context>
    <name>ProgramWalk</name>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
</context>
<context>
    <name>RowFile</name>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>%1 is not a text file.</source>
        <translation>%1 ist keine Textdatei.</translation>
    </message>
</context>
<context>
    <name>RowKeeper</name>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 ist zu groß.</translation>
    </message>
    <message>
        <source>%1 is missing; what could not be read is %2.</source>
        <translation>%1 fehlt; was nicht lesbar war, heißt %2.</translation>
    </message>
    <message>
        <source>%1 is not stored: %2.</source>
        <translation>%1 ist nicht gespeichert: %2.</translation>
    </message>
    <message>
        <source>%1 is not stored: the file that stands there cannot be put aside: %2.</source>
        <translation>%1 ist nicht gespeichert: Die vorhandene Datei lässt sich nicht beiseitelegen: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be read: the panel&apos;s storage does not answer.</source>
        <translation>%1 ist nicht lesbar: Der Speicher des Panels antwortet nicht.</translation>
    </message>
    <message>
        <source>%1 is not stored: the panel&apos;s storage does not answer.</source>
        <translation>%1 ist nicht gespeichert: Der Speicher des Panels antwortet nicht.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: nobody knows whether %1 is stored.</source>
        <translation>Der Speicher des Panels antwortet nicht: Ob %1 gespeichert ist, ist unbekannt.</translation>
    </message>
</context>
<context>
    <name>RowText</name>
    <message>
        <source>This is not a text file.</source>
        <translation>Das ist keine Textdatei.</translation>
    </message>
    <message>
        <source>Line %1 is not written as CSV.</source>
        <translation>Zeile %1 ist nicht als CSV geschrieben.</translation>
    </message>
    <message>
        <source>Line %1 is not written as JSON of rows.</source>
        <translation>Zeile %1 ist nicht als JSON mit Zeilen geschrieben.</translation>
    </message>
</context>
<context>
    <name>Stick</name>
    <message>
        <source>The stick is the panel&apos;s own: plug it into the panel.</source>
        <translation>Der Stick ist ein echter: in das Panel stecken.</translation>
    </message>
    <message>
        <source>Another stick is plugged: %1 is there already.</source>
        <translation>Ein anderer Stick steckt: %1 ist schon da.</translation>
    </message>
    <message>
        <source>The folder %1, which stands for the stick, cannot be made.</source>
        <translation>Der Ordner %1, der für den Stick steht, lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>The marker %1 cannot be made: %2.</source>
        <translation>Die Markierung %1 lässt sich nicht anlegen: %2.</translation>
    </message>
    <message>
        <source>The stick stays out: the mount point %1 is not this program&apos;s to change.</source>
        <translation>Der Stick bleibt draußen: Der Einhängepunkt %1 gehört nicht diesem Programm.</translation>
    </message>
</context>
<context>
    <name>StoreCheck</name>
    <message>
        <source>the panel&apos;s storage stopped answering</source>
        <translation>der Speicher des Panels antwortet nicht mehr</translation>
    </message>
    <message>
        <source>the file holds something else than the editor</source>
        <translation>in der Datei steht etwas anderes als im Editor</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Noch einmal</translation>
    </message>
    <message>
        <source>Save to the stick</source>
        <translation>Auf den Stick</translation>
    </message>
    <message>
        <source>the stick stopped answering</source>
        <translation>der Stick antwortet nicht mehr</translation>
    </message>
    <message>
        <source>neither here nor on the stick (%1)</source>
        <translation>weder hier noch auf dem Stick (%1)</translation>
    </message>
    <message>
        <source>neither here nor on the stick, which is out</source>
        <translation>weder hier noch auf dem Stick, der nicht steckt</translation>
    </message>
    <message>
        <source>neither here nor on the stick, whose file differs</source>
        <translation>weder hier noch auf dem Stick, dessen Datei abweicht</translation>
    </message>
    <message>
        <source>%1 is not stored. The whole program is only in the editor.</source>
        <translation>%1 ist nicht gespeichert. Das ganze Programm steht nur im Editor.</translation>
    </message>
</context>
<context>
    <name>UnsavedList</name>
    <message>
        <source>%1, %2, rows: %3</source>
        <translation>%1, %2, Zeilen: %3</translation>
    </message>
</context>
<context>
    <name>UnsavedOffer</name>
    <message>
        <source>Unsaved work of an earlier run cannot be read. It was put aside: %1.</source>
        <translation>Ungespeicherte Arbeit eines früheren Laufs ist nicht lesbar. Sie wurde beiseitegelegt: %1.</translation>
    </message>
    <message>
        <source>%1 was not brought back. It is offered again at the next start.</source>
        <translation>%1 wurde nicht zurückgeholt. Beim nächsten Start wird es wieder angeboten.</translation>
    </message>
    <message>
        <source>%1: brought back, not stored yet.</source>
        <translation>%1: zurückgeholt, noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>%1 had not been loaded whole. What was not saved of it is a new program now.</source>
        <translation>%1 war nicht ganz geladen. Das Ungespeicherte davon ist jetzt ein neues Programm.</translation>
    </message>
    <message>
        <source>%1 is not there any more. What was not saved of it is a new program now.</source>
        <translation>%1 ist nicht mehr da. Das Ungespeicherte davon ist jetzt ein neues Programm.</translation>
    </message>
    <message>
        <source>%1: brought back, not saved yet. The file has changed since then: Save covers that.</source>
        <translation>%1: zurückgeholt, noch nicht gespeichert. Die Datei hat sich seither geändert: Sichern überschreibt das.</translation>
    </message>
    <message>
        <source>%1: brought back, not saved yet.</source>
        <translation>%1: zurückgeholt, noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>%1, %2, lines: %3</source>
        <translation>%1, %2, Zeilen: %3</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>Ungespeicherte Arbeit</translation>
    </message>
    <message>
        <source>Throw the unsaved work away for good?</source>
        <translation>Ungespeicherte Arbeit endgültig verwerfen?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Throw away</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>This was not saved when the panel ended. Bring it back?</source>
        <translation>Dies war beim Ende des Panels nicht gespeichert. Zurückholen?</translation>
    </message>
    <message>
        <source>Keep for later</source>
        <translation>Für später</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Zurückholen</translation>
    </message>
</context>
<context>
    <name>UnsavedWork</name>
    <message>
        <source>the storage does not answer</source>
        <translation>der Speicher antwortet nicht</translation>
    </message>
    <message>
        <source>What is not saved cannot be kept for a power cut: %1. Save soon.</source>
        <translation>Ungespeichertes lässt sich nicht gegen Stromausfall sichern: %1. Bald speichern.</translation>
    </message>
</context>
<context>
    <name>WindingReview</name>
    <message>
        <source>%1 is not a program file.</source>
        <translation>%1 ist keine Programmdatei.</translation>
    </message>
    <message>
        <source>The program %1 cannot be read: %2.</source>
        <translation>Das Programm %1 ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering. Switch the panel off and on, then try once more.</source>
        <translation>Der Speicher des Panels antwortet nicht mehr. Panel aus- und einschalten, dann erneut versuchen.</translation>
    </message>
</context>
</TS>
