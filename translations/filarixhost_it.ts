<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>CheckedDownload</name>
    <message>
        <source>The program is made ready: %1 %</source>
        <translation>Preparazione del programma: %1 %</translation>
    </message>
    <message>
        <source>The download was stopped. The PLC keeps what it had.</source>
        <translation>Invio interrotto. Il PLC conserva ciò che aveva.</translation>
    </message>
    <message>
        <source>Nothing was sent. The PLC keeps what it had.</source>
        <translation>Nulla è stato inviato. Il PLC conserva ciò che aveva.</translation>
    </message>
    <message>
        <source>%1 goes to the PLC: %2 %</source>
        <translation>Invio di %1 al PLC: %2 %</translation>
    </message>
    <message>
        <source>%1 is in the PLC: %2 bytes, compared.</source>
        <translation>%1 è nel PLC: %2 byte, confrontati.</translation>
    </message>
    <message>
        <source>%1 is in the PLC as it was shown, %2. On the panel it is gone.</source>
        <translation>%1 è nel PLC come mostrato, %2. Sul pannello non c&apos;è più.</translation>
    </message>
    <message>
        <source>%1 is in the PLC as shown, %2. On the panel it has changed since: download it once more.</source>
        <translation>%1 è nel PLC come mostrato, %2. Sul pannello è cambiato da allora: inviarlo di nuovo.</translation>
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
        <translation>Spire</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Strati</translation>
    </message>
    <message>
        <source>Coils</source>
        <translation>Bobine</translation>
    </message>
    <message>
        <source>Wire length</source>
        <translation>Filo</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Massa</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>Resistenza</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Riempimento</translation>
    </message>
    <message>
        <source>Outer diameter</source>
        <translation>Ø esterno</translation>
    </message>
    <message>
        <source>Wire diameter</source>
        <translation>Ø filo</translation>
    </message>
</context>
<context>
    <name>CoilPicture</name>
    <message>
        <source>Tension %1</source>
        <translation>Tiro %1</translation>
    </message>
    <message>
        <source>Layer 1</source>
        <translation>Strato 1</translation>
    </message>
    <message>
        <source>Coil %1 of %2</source>
        <translation>Bobina %1 di %2</translation>
    </message>
    <message>
        <source>winding</source>
        <translation>avvolge</translation>
    </message>
    <message>
        <source>moving</source>
        <translation>muove</translation>
    </message>
    <message>
        <source>rapid</source>
        <translation>rapido</translation>
    </message>
    <message>
        <source>Traverse</source>
        <translation>Traslazione</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>turns</source>
        <translation>spire</translation>
    </message>
</context>
<context>
    <name>ConnectionFile</name>
    <message>
        <source>%1 cannot be made: %2.</source>
        <translation>Impossibile creare %1: %2.</translation>
    </message>
    <message>
        <source>the panel&apos;s temporary storage is full</source>
        <translation>la memoria temporanea del pannello è piena</translation>
    </message>
    <message>
        <source>the file was changed meanwhile. Edit them once more</source>
        <translation>il file è stato modificato nel frattempo. Modificarli di nuovo</translation>
    </message>
    <message>
        <source>the disk holds something else</source>
        <translation>sul disco c&apos;è altro</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 è troppo grande.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 non è un file.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossibile leggere %1: %2.</translation>
    </message>
    <message>
        <source>The connections cannot be read: the panel&apos;s temporary storage is full.</source>
        <translation>Impossibile leggere le connessioni: la memoria temporanea del pannello è piena.</translation>
    </message>
    <message>
        <source>The addresses are not stored: %1.</source>
        <translation>Gli indirizzi non sono salvati: %1.</translation>
    </message>
</context>
<context>
    <name>DownloadFacts</name>
    <message>
        <source>%1 in the file, %2 shown</source>
        <translation>%1 nel file, %2 mostrate</translation>
    </message>
    <message>
        <source>%1 in the file, comments not shown</source>
        <translation>%1 nel file, commenti non mostrati</translation>
    </message>
    <message>
        <source>%1 in the file, others shown</source>
        <translation>%1 nel file, mostrate altre</translation>
    </message>
    <message>
        <source>%1 in the file, not compared</source>
        <translation>%1 nel file, non confrontate</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Send this program to the PLC?</source>
        <translation>Inviare questo programma al PLC?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Righe</translation>
    </message>
    <message>
        <source>Checksum</source>
        <translation>Checksum</translation>
    </message>
    <message>
        <source>This machine takes no program with errors. Mend them, then send it.</source>
        <translation>Questa macchina non accetta programmi con errori. Correggerli, poi inviare.</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Controllo</translation>
    </message>
    <message>
        <source>The check found errors: %1. The machine may stop or wind something else.</source>
        <translation>Errori trovati dal controllo: %1. La macchina può fermarsi o avvolgere altro.</translation>
    </message>
    <message>
        <source>The program could not be checked to the end. Errors may be in it.</source>
        <translation>Il programma non è stato controllato fino in fondo. Può contenere errori.</translation>
    </message>
    <message>
        <source>Send it all the same?</source>
        <translation>Inviarlo comunque?</translation>
    </message>
</context>
<context>
    <name>DownloadSource</name>
    <message>
        <source>There is no program to download yet. Save it under a name first.</source>
        <translation>Nessun programma da inviare. Salvarlo prima con un nome.</translation>
    </message>
    <message>
        <source>The program %1 is gone from the panel. Save it again, then download.</source>
        <translation>Il programma %1 non è più sul pannello. Salvarlo di nuovo, poi inviarlo.</translation>
    </message>
    <message>
        <source>%1 is not a program file.</source>
        <translation>%1 non è un file di programma.</translation>
    </message>
    <message>
        <source>The program %1 cannot be read: %2.</source>
        <translation>Impossibile leggere il programma %1: %2.</translation>
    </message>
    <message>
        <source>The download was stopped. The PLC keeps what it had.</source>
        <translation>Invio interrotto. Il PLC conserva ciò che aveva.</translation>
    </message>
</context>
<context>
    <name>FindDialogGuide</name>
    <message>
        <source>Start reached, went on at the end: line %1.</source>
        <translation>Inizio raggiunto, ripreso dalla fine: riga %1.</translation>
    </message>
    <message>
        <source>End reached, went on at the top: line %1.</source>
        <translation>Fine raggiunta, ripreso dall&apos;inizio: riga %1.</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>A control character stands here, which nobody sees.</source>
        <translation>Qui c&apos;è un carattere di controllo, che nessuno vede.</translation>
    </message>
    <message>
        <source>Delete it, or write the line anew.</source>
        <translation>Cancellarlo o riscrivere la riga.</translation>
    </message>
    <message>
        <source>A character stands here that machines don&apos;t know.</source>
        <translation>Qui c&apos;è un carattere che le macchine non conoscono.</translation>
    </message>
    <message>
        <source>Write it anew: it may look like another one.</source>
        <translation>Riscriverlo: può somigliare a un altro.</translation>
    </message>
    <message>
        <source>The comment has a character that is not ASCII.</source>
        <translation>Il commento ha un carattere non ASCII.</translation>
    </message>
    <message>
        <source>Another panel may show another one in its place.</source>
        <translation>Un altro pannello può mostrarne un altro.</translation>
    </message>
    <message>
        <source>What stands here is no word.</source>
        <translation>Quello che c&apos;è qui non è una parola.</translation>
    </message>
    <message>
        <source>Delete it, or put a &quot;;&quot; before a comment.</source>
        <translation>Cancellarlo, o mettere &quot;;&quot; prima del commento.</translation>
    </message>
    <message>
        <source>The letter here has no number.</source>
        <translation>Questa lettera non ha un numero.</translation>
    </message>
    <message>
        <source>Add the number, or delete the letter.</source>
        <translation>Aggiungere il numero o cancellare la lettera.</translation>
    </message>
    <message>
        <source>The number here cannot be read.</source>
        <translation>Questo numero non è leggibile.</translation>
    </message>
    <message>
        <source>Write it with one point and one sign at most.</source>
        <translation>Scriverlo con al massimo un punto e un segno.</translation>
    </message>
    <message>
        <source>The number here is too large for any machine.</source>
        <translation>Questo numero è troppo grande per ogni macchina.</translation>
    </message>
    <message>
        <source>Correct the number.</source>
        <translation>Correggere il numero.</translation>
    </message>
    <message>
        <source>The comment that begins here has no end.</source>
        <translation>Il commento che inizia qui non ha fine.</translation>
    </message>
    <message>
        <source>Add a &quot;)&quot;, or begin it with &quot;;&quot;.</source>
        <translation>Aggiungere &quot;)&quot;, o iniziarlo con &quot;;&quot;.</translation>
    </message>
    <message>
        <source>The line has too many words: the rest is not read.</source>
        <translation>La riga ha troppe parole: il resto non viene letto.</translation>
    </message>
    <message>
        <source>Use several lines.</source>
        <translation>Usare più righe.</translation>
    </message>
    <message>
        <source>The line is too long: the rest is not read.</source>
        <translation>La riga è troppo lunga: il resto non viene letto.</translation>
    </message>
    <message>
        <source>%1 is unknown to this profile.</source>
        <translation>%1 è sconosciuto a questo profilo.</translation>
    </message>
    <message>
        <source>Correct it, or check with the profile of the machine.</source>
        <translation>Correggerlo, o verificare con il profilo della macchina.</translation>
    </message>
    <message>
        <source>%1: the machine has no such guide tube.</source>
        <translation>%1: la macchina non ha questo tubo guida.</translation>
    </message>
    <message>
        <source>Correct the number, or add the tube to the profile.</source>
        <translation>Correggere il numero, o aggiungere il tubo al profilo.</translation>
    </message>
    <message>
        <source>%1 does not count: another one stands in the line.</source>
        <translation>%1 non conta: nella riga ce n&apos;è un altro.</translation>
    </message>
    <message>
        <source>Keep one of them.</source>
        <translation>Tenerne uno solo.</translation>
    </message>
    <message>
        <source>%1 and %2 in one line contradict each other.</source>
        <translation>%1 e %2 nella stessa riga si contraddicono.</translation>
    </message>
    <message>
        <source>Keep one of them, or use two lines.</source>
        <translation>Tenerne uno, o usare due righe.</translation>
    </message>
    <message>
        <source>%1 has no effect in this line.</source>
        <translation>%1 non ha effetto in questa riga.</translation>
    </message>
    <message>
        <source>Delete it, or add what it belongs to.</source>
        <translation>Cancellarlo, o aggiungere ciò a cui appartiene.</translation>
    </message>
    <message>
        <source>%1 must not be negative.</source>
        <translation>%1 non può essere negativo.</translation>
    </message>
    <message>
        <source>%1 moves, but no motion is in force.</source>
        <translation>%1 muove, ma nessun movimento è attivo.</translation>
    </message>
    <message>
        <source>Put a motion before it, such as %2.</source>
        <translation>Mettere prima un movimento, come %2.</translation>
    </message>
    <message>
        <source>%1 moves without a feed.</source>
        <translation>%1 muove senza avanzamento.</translation>
    </message>
    <message>
        <source>Add %2 with the feed.</source>
        <translation>Aggiungere %2 con l&apos;avanzamento.</translation>
    </message>
    <message>
        <source>%1 winds without a pitch.</source>
        <translation>%1 avvolge senza passo.</translation>
    </message>
    <message>
        <source>Add %2 with the pitch.</source>
        <translation>Aggiungere %2 con il passo.</translation>
    </message>
    <message>
        <source>%1 waits without a time.</source>
        <translation>%1 attende senza un tempo.</translation>
    </message>
    <message>
        <source>Add %2 with the time.</source>
        <translation>Aggiungere %2 con il tempo.</translation>
    </message>
    <message>
        <source>%1 waits for the spindle, which stands.</source>
        <translation>%1 attende il mandrino, che è fermo.</translation>
    </message>
    <message>
        <source>Start the spindle before, by %2 and a speed.</source>
        <translation>Avviare prima il mandrino, con %2 e una velocità.</translation>
    </message>
    <message>
        <source>%1 goes to %2, beyond the axis: its end is %3.</source>
        <translation>%1 va a %2, oltre l&apos;asse: la fine è a %3.</translation>
    </message>
    <message>
        <source>Correct the number or the position before.</source>
        <translation>Correggere il numero o la posizione precedente.</translation>
    </message>
    <message>
        <source>%1 is faster than the spindle may turn: %2.</source>
        <translation>%1 supera la velocità del mandrino: %2.</translation>
    </message>
    <message>
        <source>Use a lower speed.</source>
        <translation>Usare una velocità minore.</translation>
    </message>
    <message>
        <source>The pitch %1 is above the limit of %2.</source>
        <translation>Il passo %1 supera il limite di %2.</translation>
    </message>
    <message>
        <source>Use a smaller pitch.</source>
        <translation>Usare un passo minore.</translation>
    </message>
    <message>
        <source>The spindle turns at a tension of %1; the limit is %2.</source>
        <translation>Il mandrino gira con una tensione di %1; il limite è %2.</translation>
    </message>
    <message>
        <source>Use less tension: the wire may break.</source>
        <translation>Ridurre la tensione: il filo può rompersi.</translation>
    </message>
    <message>
        <source>The tension jumps by %1; the limit is %2.</source>
        <translation>La tensione salta di %1; il limite è %2.</translation>
    </message>
    <message>
        <source>Use several steps.</source>
        <translation>Usare più passi.</translation>
    </message>
    <message>
        <source>The wire is laid at %1; the bobbin is from %2 to %3.</source>
        <translation>Il filo va a %1; la bobina va da %2 a %3.</translation>
    </message>
    <message>
        <source>Stay between the flanges, or stop the spindle.</source>
        <translation>Restare tra le flange, o fermare il mandrino.</translation>
    </message>
    <message>
        <source>The coil grows over the flange, which has %1.</source>
        <translation>L&apos;avvolgimento supera la flangia di %1.</translation>
    </message>
    <message>
        <source>Use fewer turns, a thinner wire or another bobbin.</source>
        <translation>Usare meno spire, un filo più sottile o un&apos;altra bobina.</translation>
    </message>
    <message>
        <source>The winding begins before the wire is clamped.</source>
        <translation>L&apos;avvolgimento inizia prima che il filo sia bloccato.</translation>
    </message>
    <message>
        <source>Clamp the wire first, by %2.</source>
        <translation>Bloccare prima il filo, con %2.</translation>
    </message>
    <message>
        <source>The program ends before the wire is cut.</source>
        <translation>Il programma finisce prima che il filo sia tagliato.</translation>
    </message>
    <message>
        <source>Cut the wire first, by %1.</source>
        <translation>Tagliare prima il filo, con %1.</translation>
    </message>
    <message>
        <source>The program has no end.</source>
        <translation>Il programma non ha fine.</translation>
    </message>
    <message>
        <source>Add %1 as the last line.</source>
        <translation>Aggiungere %1 come ultima riga.</translation>
    </message>
    <message>
        <source>The program has ended: this is never performed.</source>
        <translation>Il programma è finito: questo non viene mai eseguito.</translation>
    </message>
    <message>
        <source>Delete it, or put the end behind it.</source>
        <translation>Cancellarlo, o mettere la fine dopo.</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has no place: the folder %1 cannot be made.</source>
        <translation>Nessun posto per lo storico: impossibile creare la cartella %1.</translation>
    </message>
    <message>
        <source>%1 is too large for the history.</source>
        <translation>%1 è troppo grande per lo storico.</translation>
    </message>
    <message>
        <source>The history cannot read %1: %2.</source>
        <translation>Lo storico non può leggere %1: %2.</translation>
    </message>
    <message>
        <source>The history cannot keep %1: %2.</source>
        <translation>Lo storico non può salvare %1: %2.</translation>
    </message>
    <message>
        <source>The history has no room for %1 beside the other programs.</source>
        <translation>Lo storico non ha posto per %1 accanto agli altri programmi.</translation>
    </message>
</context>
<context>
    <name>ImportGuard</name>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>File names</source>
        <translation>Nomi dei file</translation>
    </message>
    <message>
        <source>Not renamed. Import and export stay closed until the names are safe.</source>
        <translation>Non rinominati. Importazione ed esportazione restano chiuse finché i nomi non sono sicuri.</translation>
    </message>
    <message>
        <source>Files that could not be renamed: %1. Is the stick write-protected?</source>
        <translation>File non rinominabili: %1. La chiavetta è protetta da scrittura?</translation>
    </message>
    <message>
        <source>Files renamed: %1.</source>
        <translation>File rinominati: %1.</translation>
    </message>
    <message>
        <source>No transfer: the path %1 holds characters that the transfer would not take for what they are.</source>
        <translation>Nessun trasferimento: il percorso %1 ha caratteri che il trasferimento interpreterebbe male.</translation>
    </message>
    <message>
        <source>One moment: the panel looks at the programs and the stick.</source>
        <translation>Un momento: il pannello controlla i programmi e la chiavetta.</translation>
    </message>
    <message>
        <source>No stick is in: nothing was copied or deleted.</source>
        <translation>Nessuna chiavetta inserita: nulla è stato copiato o eliminato.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Storico</translation>
    </message>
    <message>
        <source>The stick does not answer: nothing was copied, deleted or renamed. Pull it and plug it in again.</source>
        <translation>La chiavetta non risponde: nulla è stato copiato, eliminato o rinominato. Toglierla e inserirla di nuovo.</translation>
    </message>
    <message>
        <source>%1 is copied to the stick, and compared.</source>
        <translation>%1 è copiato sulla chiavetta e confrontato.</translation>
    </message>
    <message>
        <source>%1 is copied to the panel, and compared.</source>
        <translation>%1 è copiato sul pannello e confrontato.</translation>
    </message>
    <message>
        <source>%1 is deleted from the stick.</source>
        <translation>%1 è eliminato dalla chiavetta.</translation>
    </message>
    <message>
        <source>%1 is deleted from the panel.</source>
        <translation>%1 è eliminato dal pannello.</translation>
    </message>
    <message>
        <source>%1 was not copied.</source>
        <translation>%1 non è stato copiato.</translation>
    </message>
    <message>
        <source>%1 was not copied, and the one on the stick is gone.</source>
        <translation>%1 non è stato copiato, e quello sulla chiavetta non c&apos;è più.</translation>
    </message>
    <message>
        <source>%1 was not copied, and the panel&apos;s own is gone: bring it back from the history.</source>
        <translation>%1 non è stato copiato, e quello sul pannello non c&apos;è più: ripristinarlo dallo storico.</translation>
    </message>
    <message>
        <source>The copy of %1 is not what was to be copied. Is there space left? Copy it once more.</source>
        <translation>La copia di %1 è diversa dall&apos;originale. C&apos;è ancora spazio? Copiarlo di nuovo.</translation>
    </message>
    <message>
        <source>Leave them</source>
        <translation>Lascia così</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>Comunque</translation>
    </message>
    <message>
        <source>The transfer cannot take these file names. Nothing is copied or deleted until they are renamed.</source>
        <translation>Il trasferimento non accetta questi nomi. Finché non sono rinominati, nulla viene copiato o eliminato.</translation>
    </message>
    <message>
        <source>What %1 is now would be lost.</source>
        <translation>Lo stato attuale di %1 andrebbe perso.</translation>
    </message>
</context>
<context>
    <name>LineEntry</name>
    <message>
        <source>Line %1</source>
        <translation>Riga %1</translation>
    </message>
</context>
<context>
    <name>MachineProfile</name>
    <message>
        <source>%1 is too large for a machine profile.</source>
        <translation>%1 è troppo grande per un profilo macchina.</translation>
    </message>
    <message>
        <source>%1 is no text, and so no machine profile.</source>
        <translation>%1 non è un testo, quindi non è un profilo macchina.</translation>
    </message>
    <message>
        <source>A line is a [section] or a key = value.</source>
        <translation>Una riga è una [sezione] o chiave = valore.</translation>
    </message>
    <message>
        <source>There is no section [%1].</source>
        <translation>La sezione [%1] non esiste.</translation>
    </message>
    <message>
        <source>A key stands before the first section.</source>
        <translation>Una chiave precede la prima sezione.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands there twice.</source>
        <translation>&quot;%1&quot; compare due volte.</translation>
    </message>
    <message>
        <source>An axis is: letter = role, unit, minimum, maximum.</source>
        <translation>Un asse è: lettera = ruolo, unità, minimo, massimo.</translation>
    </message>
    <message>
        <source>Another axis is the %1 already.</source>
        <translation>Un altro asse è già %1.</translation>
    </message>
    <message>
        <source>The unit of this axis is mm.</source>
        <translation>L&apos;unità di questo asse è mm.</translation>
    </message>
    <message>
        <source>The unit of this axis is N.</source>
        <translation>L&apos;unità di questo asse è N.</translation>
    </message>
    <message>
        <source>There are too many axes.</source>
        <translation>Ci sono troppi assi.</translation>
    </message>
    <message>
        <source>A function is: G or M with a number = action, modal group.</source>
        <translation>Una funzione è: G o M con un numero = azione, gruppo modale.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no letter.</source>
        <translation>&quot;%1&quot; non è una lettera.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of a tool, or stands there twice.</source>
        <translation>&quot;%1&quot; non è un numero di utensile o compare due volte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size of IEC 60317, as &quot;0.250 grade 1&quot; is.</source>
        <translation>&quot;%1&quot; non è una misura della IEC 60317 come &quot;0.250 grade 1&quot;.</translation>
    </message>
    <message>
        <source>The letter %1 means something already.</source>
        <translation>La lettera %1 ha già un significato.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number from %2 to %3.</source>
        <translation>&quot;%1&quot; non è un numero da %2 a %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of: %2.</source>
        <translation>&quot;%1&quot; non è tra: %2.</translation>
    </message>
    <message>
        <source>%1: no axis is the traverse.</source>
        <translation>%1: nessun asse è il guidafilo (traverse).</translation>
    </message>
    <message>
        <source>%1: the bobbin needs a core and a width.</source>
        <translation>%1: il rocchetto richiede nucleo e larghezza.</translation>
    </message>
    <message>
        <source>%1: the flange is narrower than the core.</source>
        <translation>%1: la flangia è più piccola del nucleo.</translation>
    </message>
    <message>
        <source>%1: the conductor is wider than the wire.</source>
        <translation>%1: il conduttore è più grosso del filo.</translation>
    </message>
    <message>
        <source>%1: a dwell needs &quot;dwell = letter&quot; in [words].</source>
        <translation>%1: una sosta richiede &quot;dwell = lettera&quot; in [words].</translation>
    </message>
    <message>
        <source>%1: the letter of the dwell means something already.</source>
        <translation>%1: la lettera della sosta ha già un significato.</translation>
    </message>
    <message>
        <source>There is no key &quot;%1&quot; in [%2].</source>
        <translation>In [%2] non esiste la chiave &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, riga %2: %3</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 non è un file.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossibile leggere %1: %2.</translation>
    </message>
</context>
<context>
    <name>OwnTransfer</name>
    <message>
        <source>The machine has not ended the last download yet. Wait, then download once more.</source>
        <translation>L&apos;ultimo invio alla macchina non è ancora finito. Attendere, poi inviare di nuovo.</translation>
    </message>
    <message>
        <source>The machine stopped answering: whether it holds %1 is not known. Check it, then download again.</source>
        <translation>La macchina non risponde più: non si sa se contiene %1. Controllarla, poi inviare di nuovo.</translation>
    </message>
    <message>
        <source>%1 is in the machine.</source>
        <translation>%1 è nella macchina.</translation>
    </message>
</context>
<context>
    <name>PickerFacts</name>
    <message>
        <source>Reading %1 ...</source>
        <translation>Lettura di %1 ...</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>La memoria del pannello non risponde.</translation>
    </message>
    <message>
        <source>A new program.</source>
        <translation>Un programma nuovo.</translation>
    </message>
    <message>
        <source>There is no program of this name.</source>
        <translation>Nessun programma con questo nome.</translation>
    </message>
    <message>
        <source>This is no program file.</source>
        <translation>Non è un file di programma.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Non è leggibile: %1.</translation>
    </message>
    <message>
        <source>It is there already.</source>
        <translation>Esiste già.</translation>
    </message>
    <message>
        <source>More than %1 lines: too long to be read here.</source>
        <translation>Più di %1 righe: troppo lungo da leggere qui.</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 righe</translation>
    </message>
    <message>
        <source>Reading: %1 %</source>
        <translation>Lettura: %1 %</translation>
    </message>
    <message>
        <source>%1 turns, %2 m of wire</source>
        <translation>%1 spire, %2 m di filo</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>Not read to its end: it was stopped.</source>
        <translation>Non letto fino alla fine: è stato fermato.</translation>
    </message>
    <message>
        <source>Runs for %1</source>
        <translation>Dura %1</translation>
    </message>
</context>
<context>
    <name>PickerFitting</name>
    <message>
        <source>Program name</source>
        <translation>Nome del programma</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmi</translation>
    </message>
</context>
<context>
    <name>PickerGuard</name>
    <message>
        <source>%1 is now at the end of the name. Press OK once more, or change the name.</source>
        <translation>Il nome ora finisce con %1. Premere di nuovo OK, o cambiare il nome.</translation>
    </message>
</context>
<context>
    <name>PickerStrip</name>
    <message>
        <source>Save the program as</source>
        <translation>Salva il programma come</translation>
    </message>
    <message>
        <source>Remove a program</source>
        <translation>Elimina un programma</translation>
    </message>
    <message>
        <source>Open a program</source>
        <translation>Apri un programma</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dim.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Recenti</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>Parte di un nome</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagina su</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina giù</translation>
    </message>
    <message>
        <source>%1 of %2 programs</source>
        <translation>%1 di %2 programmi</translation>
    </message>
    <message>
        <source>Programs: %1</source>
        <translation>Programmi: %1</translation>
    </message>
    <message>
        <source>The folder is read-only.</source>
        <translation>La cartella è di sola lettura.</translation>
    </message>
    <message>
        <source>Order: %1</source>
        <translation>Ordine: %1</translation>
    </message>
</context>
<context>
    <name>PickerTable</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dim.</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificato</translation>
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
        <translation>Il PLC non risponde: manca la cartella %1.</translation>
    </message>
    <message>
        <source>The PLC folder is the program directory itself. Choose another one.</source>
        <translation>La cartella del PLC è la directory dei programmi stessa. Sceglierne un&apos;altra.</translation>
    </message>
    <message>
        <source>The program %1 is larger than the PLC takes (%2 MB).</source>
        <translation>Il programma %1 è più grande di quanto il PLC accetta (%2 MB).</translation>
    </message>
    <message>
        <source>The PLC does not take the program: %1.</source>
        <translation>Il PLC non accetta il programma: %1.</translation>
    </message>
    <message>
        <source>What arrived in the PLC cannot be read back: %1.</source>
        <translation>Impossibile rileggere quanto arrivato al PLC: %1.</translation>
    </message>
    <message>
        <source>What arrived in the PLC differs from what was sent. It was taken out again; download once more.</source>
        <translation>Quanto arrivato al PLC è diverso da quanto inviato. È stato tolto; inviare di nuovo.</translation>
    </message>
    <message>
        <source>The download was stopped before the program in the PLC was compared. Download it once more.</source>
        <translation>Invio interrotto prima del confronto nel PLC. Inviare di nuovo il programma.</translation>
    </message>
    <message>
        <source>The copy of %1 has changed since it was shown, and was not sent. Download once more.</source>
        <translation>La copia di %1 è cambiata da quando è stata mostrata e non è stata inviata. Inviare di nuovo.</translation>
    </message>
    <message>
        <source>%1 is in the PLC, but the PLC does not say that it is stored: %2. Download once more.</source>
        <translation>%1 è nel PLC, ma il PLC non conferma di averlo salvato: %2. Inviare di nuovo.</translation>
    </message>
    <message>
        <source>What is in the PLC as %1 differs from what was sent. Do not run it; download once more.</source>
        <translation>%1 nel PLC è diverso da quanto inviato. Non eseguirlo; inviare di nuovo.</translation>
    </message>
    <message>
        <source>The last download has not ended yet. Wait, or switch the PLC off and on, then download once more.</source>
        <translation>L&apos;ultimo invio non è ancora finito. Attendere, o spegnere e riaccendere il PLC, poi inviare di nuovo.</translation>
    </message>
    <message>
        <source>The PLC stopped answering: whether it holds %1 is not known. Check it, then download again.</source>
        <translation>Il PLC non risponde più: non si sa se contiene %1. Controllarlo, poi inviare di nuovo.</translation>
    </message>
    <message>
        <source>%1 is in the PLC but not compared: the PLC stopped answering. Check the PLC, then download again.</source>
        <translation>%1 è nel PLC ma non confrontato: il PLC non risponde più. Controllarlo, poi inviare di nuovo.</translation>
    </message>
    <message>
        <source>The PLC stopped answering during the download. Check the PLC and its cable, then download once more.</source>
        <translation>Il PLC non risponde più durante l&apos;invio. Controllare il PLC e il cavo, poi inviare di nuovo.</translation>
    </message>
</context>
<context>
    <name>ProgramGuard</name>
    <message>
        <source>A program is being loaded. Wait until all of it is here.</source>
        <translation>Caricamento di un programma in corso. Attendere che sia completo.</translation>
    </message>
    <message>
        <source>the panel&apos;s storage does not answer</source>
        <translation>la memoria del pannello non risponde</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save without them</source>
        <translation>Salva senza</translation>
    </message>
    <message>
        <source>Save as shown</source>
        <translation>Salva come mostrato</translation>
    </message>
    <message>
        <source>Other name</source>
        <translation>Altro nome</translation>
    </message>
    <message>
        <source>%1 is not stored: %2. Do not switch off: the whole program is only in the editor.</source>
        <translation>%1 non è salvato: %2. Non spegnere: il programma completo è solo nell&apos;editor.</translation>
    </message>
    <message>
        <source>%1 saved, %2 lines.</source>
        <translation>%1 salvato, %2 righe.</translation>
    </message>
    <message>
        <source>%1 has characters that the file cannot hold; they were replaced.</source>
        <translation>%1 contiene caratteri che il file non può contenere; sono stati sostituiti.</translation>
    </message>
    <message>
        <source>%1 is on the stick as %2. On the panel it is not stored: %3.</source>
        <translation>%1 è sulla chiavetta come %2. Sul pannello non è salvato: %3.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>La memoria del pannello non risponde.</translation>
    </message>
    <message>
        <source>%1 is not a program file. Take another name.</source>
        <translation>%1 non è un file di programma. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Salva con nome</translation>
    </message>
    <message>
        <source>Write over it</source>
        <translation>Sovrascrivi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>%1 is open, with changes that are not saved. They are lost with it.</source>
        <translation>%1 è aperto, con modifiche non salvate. Vanno perse anch&apos;esse.</translation>
    </message>
    <message>
        <source>Remove it</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>%1 could not be removed: it is still there.</source>
        <translation>Impossibile eliminare %1: c&apos;è ancora.</translation>
    </message>
    <message>
        <source>%1 is there already: %2 lines, of %3. Write this program over it?</source>
        <translation>%1 esiste già: %2 righe, del %3. Sovrascriverlo con questo programma?</translation>
    </message>
    <message>
        <source>This program: %1 lines</source>
        <translation>Questo programma: %1 righe</translation>
    </message>
</context>
<context>
    <name>ProgramHistory</name>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Impossibile scrivere %1: %2.</translation>
    </message>
    <message>
        <source>This version of %1 is not in the history any more.</source>
        <translation>Questa versione di %1 non è più nello storico.</translation>
    </message>
    <message>
        <source>This version of %1 is damaged and was not brought back. Try the one before it.</source>
        <translation>Questa versione di %1 è danneggiata e non è stata ripristinata. Provare la precedente.</translation>
    </message>
    <message>
        <source>%1 is brought back: %2 %</source>
        <translation>Ripristino di %1: %2 %</translation>
    </message>
    <message>
        <source>Stopped. %1 is as it was.</source>
        <translation>Interrotto. %1 è come prima.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering; %1 was not brought back.</source>
        <translation>La memoria del pannello non risponde più; %1 non è stato ripristinato.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering: nothing goes into the history any more. Switch the panel off and on.</source>
        <translation>La memoria del pannello non risponde più: lo storico non salva più nulla. Spegnere e riaccendere il pannello.</translation>
    </message>
    <message>
        <source>%1 was not brought back.</source>
        <translation>%1 non è stato ripristinato.</translation>
    </message>
    <message>
        <source>%1 was not brought back: what it is now cannot be kept in the history first.</source>
        <translation>%1 non è stato ripristinato: lo stato attuale non può essere salvato prima.</translation>
    </message>
    <message>
        <source>%1 is back as of %2. Open it to see it.</source>
        <translation>%1 è ripristinato al %2. Aprirlo per vederlo.</translation>
    </message>
    <message>
        <source>%1 is back, but it is not certain that it is stored: %2.</source>
        <translation>%1 è ripristinato, ma non è certo che sia salvato: %2.</translation>
    </message>
    <message>
        <source>%1 was not brought back: it is being written. Try again when that is over.</source>
        <translation>%1 non è stato ripristinato: è in fase di scrittura. Riprovare quando è finita.</translation>
    </message>
    <message>
        <source>The history has not taken in %1 yet.</source>
        <translation>Lo storico non ha ancora salvato %1.</translation>
    </message>
    <message>
        <source>%1 was not brought back: the last restore has not ended yet. Switch the panel off and on.</source>
        <translation>%1 non è stato ripristinato: l&apos;ultimo ripristino non è finito. Spegnere e riaccendere il pannello.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering: the version of %1 is not known. Switch the panel off and on.</source>
        <translation>La memoria del pannello non risponde più: versione di %1 ignota. Spegnere e riaccendere il pannello.</translation>
    </message>
</context>
<context>
    <name>ProgramKeeper</name>
    <message>
        <source>One moment: the history takes in the program first.</source>
        <translation>Un momento: prima lo storico salva il programma.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Storico</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>Comunque</translation>
    </message>
    <message>
        <source>What %1 is now would be lost.</source>
        <translation>Lo stato attuale di %1 andrebbe perso.</translation>
    </message>
</context>
<context>
    <name>ProgramName</name>
    <message>
        <source>Give the program a name.</source>
        <translation>Dare un nome al programma.</translation>
    </message>
    <message>
        <source>A name holds no &quot;/&quot;: programs lie in one folder.</source>
        <translation>Un nome non contiene &quot;/&quot;: i programmi stanno in una sola cartella.</translation>
    </message>
    <message>
        <source>A name that begins with a dot is hidden from the lists. Take another one.</source>
        <translation>Un nome che inizia con un punto non appare negli elenchi. Sceglierne un altro.</translation>
    </message>
    <message>
        <source>New program</source>
        <translation>Senza nome</translation>
    </message>
</context>
<context>
    <name>ProgramSnapshot</name>
    <message>
        <source>The program %1 cannot be held for the download: %2.</source>
        <translation>Impossibile tenere pronto il programma %1 per l&apos;invio: %2.</translation>
    </message>
    <message>
        <source>The program %1 is being written. Download it when that is over.</source>
        <translation>Il programma %1 è in fase di scrittura. Inviarlo quando è finita.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering. Switch the panel off and on, then download once more.</source>
        <translation>La memoria del pannello non risponde più. Spegnere e riaccendere il pannello, poi inviare di nuovo.</translation>
    </message>
</context>
<context>
    <name>ProgramState</name>
    <message>
        <source>Not compared with the file: %1</source>
        <translation>Non confrontato con il file: %1</translation>
    </message>
    <message>
        <source>Not as in the file: it has characters that cannot be shown, or has changed</source>
        <translation>Diverso dal file: ha caratteri non mostrabili, o è cambiato</translation>
    </message>
    <message>
        <source>Not as in the file: %1 lines there, %2 shown</source>
        <translation>Diverso dal file: là %1 righe, mostrate %2</translation>
    </message>
    <message>
        <source>Incomplete: %1 lines in the file, %2 shown</source>
        <translation>Incompleto: %1 righe nel file, %2 mostrate</translation>
    </message>
    <message>
        <source>%1 is not stored: %2</source>
        <translation>%1 non è salvato: %2</translation>
    </message>
    <message>
        <source>%1 is shown otherwise than the file has it. Saving replaces the file by what is shown.</source>
        <translation>%1 è mostrato diversamente dal file. Salvando, il file è sostituito da quanto mostrato.</translation>
    </message>
    <message>
        <source>%1 is not stored: %2. Save it first.</source>
        <translation>%1 non è salvato: %2. Salvarlo prima.</translation>
    </message>
    <message>
        <source>%1 lines in the file, %2 shown: no comments, no empty lines</source>
        <translation>%1 righe nel file, %2 mostrate: senza commenti e righe vuote</translation>
    </message>
    <message>
        <source>%1 has %2 lines, %3 are shown. Saving takes out its comments and empty lines.</source>
        <translation>%1 ha %2 righe, %3 mostrate. Salvando spariscono commenti e righe vuote.</translation>
    </message>
    <message>
        <source>Only a part of %1 is here: saving or sending loses the rest. Open it again, or take another name.</source>
        <translation>Solo una parte di %1 è presente: salvando o inviando si perde il resto. Riaprirlo, o altro nome.</translation>
    </message>
</context>
<context>
    <name>ProgramVerdict</name>
    <message>
        <source>Nothing found</source>
        <translation>Nessun problema</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Errori: %1, avvisi: %2</translation>
    </message>
    <message>
        <source>Not checked to the end</source>
        <translation>Controllo non completo</translation>
    </message>
</context>
<context>
    <name>ProgramWalk</name>
    <message>
        <source>Line</source>
        <translation>Riga</translation>
    </message>
</context>
<context>
    <name>RowFile</name>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Impossibile scrivere %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossibile leggere %1: %2.</translation>
    </message>
    <message>
        <source>%1 is not a text file.</source>
        <translation>%1 non è un file di testo.</translation>
    </message>
</context>
<context>
    <name>RowKeeper</name>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 non è un file.</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 è troppo grande.</translation>
    </message>
    <message>
        <source>%1 is missing; what could not be read is %2.</source>
        <translation>%1 manca; ciò che non era leggibile è %2.</translation>
    </message>
    <message>
        <source>%1 is not stored: %2.</source>
        <translation>%1 non è salvato: %2.</translation>
    </message>
    <message>
        <source>%1 is not stored: the file that stands there cannot be put aside: %2.</source>
        <translation>%1 non è salvato: il file presente non si può mettere da parte: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be read: the panel&apos;s storage does not answer.</source>
        <translation>Impossibile leggere %1: la memoria del pannello non risponde.</translation>
    </message>
    <message>
        <source>%1 is not stored: the panel&apos;s storage does not answer.</source>
        <translation>%1 non è salvato: la memoria del pannello non risponde.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: nobody knows whether %1 is stored.</source>
        <translation>La memoria del pannello non risponde: non si sa se %1 è salvato.</translation>
    </message>
</context>
<context>
    <name>RowText</name>
    <message>
        <source>This is not a text file.</source>
        <translation>Questo non è un file di testo.</translation>
    </message>
    <message>
        <source>Line %1 is not written as CSV.</source>
        <translation>La riga %1 non è scritta come CSV.</translation>
    </message>
    <message>
        <source>Line %1 is not written as JSON of rows.</source>
        <translation>La riga %1 non è scritta come JSON di righe.</translation>
    </message>
</context>
<context>
    <name>Stick</name>
    <message>
        <source>The stick is the panel&apos;s own: plug it into the panel.</source>
        <translation>La chiavetta è quella vera: inserirla nel pannello.</translation>
    </message>
    <message>
        <source>Another stick is plugged: %1 is there already.</source>
        <translation>È inserita un&apos;altra chiavetta: %1 c&apos;è già.</translation>
    </message>
    <message>
        <source>The folder %1, which stands for the stick, cannot be made.</source>
        <translation>Impossibile creare la cartella %1, che sta per la chiavetta.</translation>
    </message>
    <message>
        <source>The marker %1 cannot be made: %2.</source>
        <translation>Impossibile creare il segnale %1: %2.</translation>
    </message>
    <message>
        <source>The stick stays out: the mount point %1 is not this program&apos;s to change.</source>
        <translation>La chiavetta resta fuori: il punto di montaggio %1 non appartiene a questo programma.</translation>
    </message>
</context>
<context>
    <name>StoreCheck</name>
    <message>
        <source>the panel&apos;s storage stopped answering</source>
        <translation>la memoria del pannello non risponde più</translation>
    </message>
    <message>
        <source>the file holds something else than the editor</source>
        <translation>il file contiene altro rispetto all&apos;editor</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Save to the stick</source>
        <translation>Sulla chiavetta</translation>
    </message>
    <message>
        <source>the stick stopped answering</source>
        <translation>la chiavetta non risponde più</translation>
    </message>
    <message>
        <source>neither here nor on the stick (%1)</source>
        <translation>né qui né sulla chiavetta (%1)</translation>
    </message>
    <message>
        <source>neither here nor on the stick, which is out</source>
        <translation>né qui né sulla chiavetta, che non è inserita</translation>
    </message>
    <message>
        <source>neither here nor on the stick, whose file differs</source>
        <translation>né qui né sulla chiavetta, il cui file è diverso</translation>
    </message>
    <message>
        <source>%1 is not stored. The whole program is only in the editor.</source>
        <translation>%1 non è salvato. Il programma completo è solo nell&apos;editor.</translation>
    </message>
</context>
<context>
    <name>UnsavedList</name>
    <message>
        <source>%1, %2, rows: %3</source>
        <translation>%1, %2, righe: %3</translation>
    </message>
</context>
<context>
    <name>UnsavedOffer</name>
    <message>
        <source>Unsaved work of an earlier run cannot be read. It was put aside: %1.</source>
        <translation>Il lavoro non salvato di una sessione precedente non è leggibile. È stato messo da parte: %1.</translation>
    </message>
    <message>
        <source>%1 was not brought back. It is offered again at the next start.</source>
        <translation>%1 non è stato ripristinato. Sarà riproposto al prossimo avvio.</translation>
    </message>
    <message>
        <source>%1: brought back, not stored yet.</source>
        <translation>%1: ripristinato, non ancora salvato.</translation>
    </message>
    <message>
        <source>%1 had not been loaded whole. What was not saved of it is a new program now.</source>
        <translation>%1 non era stato caricato per intero. La parte non salvata ora è un nuovo programma.</translation>
    </message>
    <message>
        <source>%1 is not there any more. What was not saved of it is a new program now.</source>
        <translation>%1 non c&apos;è più. La parte non salvata ora è un nuovo programma.</translation>
    </message>
    <message>
        <source>%1: brought back, not saved yet. The file has changed since then: Save covers that.</source>
        <translation>%1: ripristinato, non ancora salvato. Il file è cambiato da allora: &quot;Salva&quot; lo sovrascrive.</translation>
    </message>
    <message>
        <source>%1: brought back, not saved yet.</source>
        <translation>%1: ripristinato, non ancora salvato.</translation>
    </message>
    <message>
        <source>%1, %2, lines: %3</source>
        <translation>%1, %2, righe: %3</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>Lavoro non salvato</translation>
    </message>
    <message>
        <source>Throw the unsaved work away for good?</source>
        <translation>Scartare per sempre il lavoro non salvato?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Throw away</source>
        <translation>Scarta</translation>
    </message>
    <message>
        <source>This was not saved when the panel ended. Bring it back?</source>
        <translation>Non era salvato quando il pannello è terminato. Ripristinare?</translation>
    </message>
    <message>
        <source>Keep for later</source>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Ripristina</translation>
    </message>
</context>
<context>
    <name>UnsavedWork</name>
    <message>
        <source>the storage does not answer</source>
        <translation>la memoria non risponde</translation>
    </message>
    <message>
        <source>What is not saved cannot be kept for a power cut: %1. Save soon.</source>
        <translation>Le modifiche non salvate non sono protette da un blackout: %1. Salvare presto.</translation>
    </message>
</context>
<context>
    <name>WindingReview</name>
    <message>
        <source>%1 is not a program file.</source>
        <translation>%1 non è un file di programma.</translation>
    </message>
    <message>
        <source>The program %1 cannot be read: %2.</source>
        <translation>Impossibile leggere il programma %1: %2.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering. Switch the panel off and on, then try once more.</source>
        <translation>La memoria del pannello non risponde più. Spegnere e riaccendere il pannello, poi riprovare.</translation>
    </message>
</context>
</TS>
