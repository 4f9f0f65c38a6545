<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ConnEditor</name>
    <message>
        <source>Connect Table</source>
        <translation>Tabella connessioni</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
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
        <translation>Ind. CPU</translation>
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
        <translation>Dir: </translation>
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
        <translation>Esci</translation>
    </message>
</context>
<context>
    <name>ImportManage</name>
    <message>
        <source>Hmi</source>
        <translation>Pannello</translation>
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
        <translation>&gt;Canc</translation>
    </message>
    <message>
        <source>Del&lt;</source>
        <translation>Canc&lt;</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Used Space </source>
        <translation>Usati </translation>
    </message>
    <message>
        <source>Left Space </source>
        <translation> Liberi </translation>
    </message>
    <message>
        <source> Usb not found!</source>
        <translation> Chiavetta USB assente!</translation>
    </message>
    <message>
        <source>Hmi Delete</source>
        <translation>Elimina dal pannello</translation>
    </message>
    <message>
        <source>Usb Delete</source>
        <translation>Elimina dalla chiavetta</translation>
    </message>
    <message>
        <source>Copy to Usb</source>
        <translation>Copia sulla chiavetta</translation>
    </message>
    <message>
        <source>No file Selected!</source>
        <translation>Nessun file selezionato!</translation>
    </message>
    <message>
        <source>Usb not found!</source>
        <translation>Chiavetta USB non trovata!</translation>
    </message>
    <message>
        <source> existed in Usb,
 do you want to cover it?</source>
        <translation> esiste già sulla chiavetta.
Sovrascriverlo?</translation>
    </message>
    <message>
        <source>Copy to Hmi</source>
        <translation>Copia sul pannello</translation>
    </message>
    <message>
        <source>No file Selected.</source>
        <translation>Nessun file selezionato.</translation>
    </message>
    <message>
        <source>Usb not found.</source>
        <translation>Chiavetta USB non trovata.</translation>
    </message>
    <message>
        <source> existed in Hmi,
 do you want to cover it?</source>
        <translation> esiste già sul pannello.
Sovrascriverlo?</translation>
    </message>
    <message>
        <source>Copy file failed!</source>
        <translation>Copia del file non riuscita!</translation>
    </message>
    <message>
        <source>Can&apos;t cover this file!</source>
        <translation>Impossibile sovrascrivere questo file!</translation>
    </message>
    <message>
        <source>Are you sure to delete </source>
        <translation>Eliminare davvero </translation>
    </message>
    <message>
        <source>Can&apos;t delete this file.</source>
        <translation>Impossibile eliminare questo file.</translation>
    </message>
    <message>
        <source>Font file can not be a Dir!</source>
        <translation>Non si possono copiare cartelle!</translation>
    </message>
    <message>
        <source>Not enough Space!</source>
        <translation>Spazio insufficiente!</translation>
    </message>
    <message>
        <source>Unexpected error!</source>
        <translation>Errore imprevisto!</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>Operazione in corso...</translation>
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
        <translation>Informazioni su Corvane</translation>
    </message>
</context>
<context>
    <name>WCopyDialog</name>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Current line:</source>
        <translation>Riga attuale:</translation>
    </message>
    <message>
        <source>Copy count:</source>
        <translation>Righe:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>WFileDialog</name>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
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
        <translation>T&amp;rova:</translation>
    </message>
    <message>
        <source>Replace &amp;what:</source>
        <translation>Sostituisci c&amp;on:</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>&amp;Maiuscole/minuscole</translation>
    </message>
    <message>
        <source>Search &amp;backward</source>
        <translation>Cerca all&apos;&amp;indietro</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Trova</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Sostituisci</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Trova</translation>
    </message>
</context>
<context>
    <name>WMMainWindow</name>
    <message>
        <source>Row:</source>
        <translation>Riga:</translation>
    </message>
    <message>
        <source>Col:</source>
        <translation>Col.:</translation>
    </message>
    <message>
        <source>Count:</source>
        <translation>Totale:</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Applicazione</translation>
    </message>
    <message>
        <source>The document has been existed.
Do you want to open it again?</source>
        <translation>Questo programma è già aperto.
Riaprirlo?</translation>
    </message>
    <message>
        <source>Remove file</source>
        <translation>Elimina file</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>Il file non esiste!</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>Eliminare %1?</translation>
    </message>
    <message>
        <source>Success to remove file.</source>
        <translation>File eliminato.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Salva con nome</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>RM</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>SaveAs</source>
        <translation>Salva n.</translation>
    </message>
    <message>
        <source>I/E</source>
        <translation>Imp/Esp</translation>
    </message>
    <message>
        <source>Morphology</source>
        <translation>Lessico</translation>
    </message>
    <message>
        <source>Syntax</source>
        <translation>Sintassi</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Compila</translation>
    </message>
    <message>
        <source>D/L</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>Riga +</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Riga −</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Variabile</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>Remove G File!</source>
        <translation>Elimina il file di codice G</translation>
    </message>
    <message>
        <source>Import/Export G File.</source>
        <translation>Importa/esporta file di codice G</translation>
    </message>
    <message>
        <source>Preproccess</source>
        <translation>Prepara</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>The document has been modified.
Do you want to save your changes?</source>
        <translation>Il programma è stato modificato.
Salvare le modifiche?</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Impossibile leggere il file %1:
%2.</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>Impossibile scrivere il file %1:
%2.</translation>
    </message>
    <message>
        <source>%1[*] - %2</source>
        <translation>%1[*] - %2</translation>
    </message>
    <message>
        <source>It is a device or a pipe, not a file</source>
        <translation>È un dispositivo o una pipe, non un file</translation>
    </message>
</context>
</TS>
