<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>Program: %1 %2</source>
        <translation>Programma: %1 %2</translation>
    </message>
    <message>
        <source>Toolkit: Qt %1</source>
        <translation>Toolkit: Qt %1</translation>
    </message>
    <message>
        <source>Licences: MIT; toolkit LGPL 3</source>
        <translation>Licenze: MIT; toolkit LGPL 3</translation>
    </message>
    <message>
        <source>Data: %1</source>
        <translation>Dati: %1</translation>
    </message>
    <message>
        <source>Room left: %1</source>
        <translation>Spazio libero: %1</translation>
    </message>
</context>
<context>
    <name>BarPager</name>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
</context>
<context>
    <name>ClockPage</name>
    <message>
        <source>Clock</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>The system keeps the clock, and it is set there, not here.</source>
        <translation>L&apos;ora è del sistema e si imposta lì, non qui.</translation>
    </message>
    <message>
        <source>Time zone: %1</source>
        <translation>Fuso orario: %1</translation>
    </message>
</context>
<context>
    <name>CoilExport</name>
    <message>
        <source>Writing the picture to the stick</source>
        <translation>Scrittura dell’immagine sulla chiavetta</translation>
    </message>
    <message>
        <source>Picture and totals are on the stick, in the folder %1.</source>
        <translation>Immagine e valori sono sulla chiavetta, nella cartella %1.</translation>
    </message>
    <message>
        <source>There is no stick. Plug one in, then export once more.</source>
        <translation>Nessuna chiavetta. Inserirne una, poi esportare di nuovo.</translation>
    </message>
    <message>
        <source>The stick was pulled out: the picture is not on it. Plug it in, then export once more.</source>
        <translation>La chiavetta è stata tolta: l’immagine non c’è. Inserirla, poi esportare di nuovo.</translation>
    </message>
    <message>
        <source>The picture is not on the stick: %1.</source>
        <translation>L’immagine non è sulla chiavetta: %1.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>L’esportazione è stata fermata.</translation>
    </message>
    <message>
        <source>The stick does not answer: whether the picture is on it is not known.</source>
        <translation>La chiavetta non risponde: non si sa se l’immagine c’è.</translation>
    </message>
</context>
<context>
    <name>CoilPreview</name>
    <message>
        <source>The panel&apos;s storage does not answer: the machine is not known.</source>
        <translation>La memoria del pannello non risponde: la macchina non è nota.</translation>
    </message>
</context>
<context>
    <name>ConnectionsScreen</name>
    <message>
        <source>Connection</source>
        <translation>Connessione</translation>
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
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Edit the addresses</source>
        <translation>Modifica gli indirizzi</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Connessioni</translation>
    </message>
    <message>
        <source>No address was changed.</source>
        <translation>Nessun indirizzo modificato.</translation>
    </message>
    <message>
        <source>Stored: %1.</source>
        <translation>Salvato: %1.</translation>
    </message>
    <message>
        <source>not set yet</source>
        <translation>da impostare</translation>
    </message>
    <message>
        <source>%1 says that it holds %2 connections. The first %3 are shown.</source>
        <translation>%1 dichiara %2 connessioni. Sono mostrate le prime %3.</translation>
    </message>
    <message>
        <source>%1 cannot be read: the panel&apos;s storage does not answer.</source>
        <translation>Impossibile leggere %1: la memoria del pannello non risponde.</translation>
    </message>
    <message>
        <source>The addresses cannot be edited: the panel&apos;s temporary storage is full.</source>
        <translation>Impossibile modificare gli indirizzi: la memoria temporanea del pannello è piena.</translation>
    </message>
    <message>
        <source>The addresses are not stored: the panel&apos;s storage does not answer.</source>
        <translation>Gli indirizzi non sono salvati: la memoria del pannello non risponde.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: nobody knows whether the addresses are stored.</source>
        <translation>La memoria del pannello non risponde: non si sa se gli indirizzi sono salvati.</translation>
    </message>
    <message>
        <source>Loading ...</source>
        <translation>Caricamento ...</translation>
    </message>
    <message>
        <source>TCP port</source>
        <translation>Porta TCP</translation>
    </message>
</context>
<context>
    <name>DownloadQuestion</name>
    <message>
        <source>Send</source>
        <translation>Invia</translation>
    </message>
</context>
<context>
    <name>FilesScreen</name>
    <message>
        <source>Plug</source>
        <translation>Inserisci</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>Togli</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>I/E</source>
        <translation>Imp/Esp</translation>
    </message>
    <message>
        <source>Files and stick</source>
        <translation>File e chiavetta</translation>
    </message>
    <message>
        <source>The stick is in; all file names are safe.</source>
        <translation>Chiavetta inserita; tutti i nomi dei file sono sicuri.</translation>
    </message>
    <message>
        <source>The stick is out.</source>
        <translation>Chiavetta rimossa.</translation>
    </message>
    <message>
        <source>Pick a path</source>
        <translation>Scegli un percorso</translation>
    </message>
    <message>
        <source>simulated: %1</source>
        <translation>simulata: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Storico</translation>
    </message>
    <message>
        <source>The stick does not answer.</source>
        <translation>La chiavetta non risponde.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>La memoria del pannello non risponde.</translation>
    </message>
    <message>
        <source>To try a stick, start the panel by &quot;./run --stick DIR&quot;.</source>
        <translation>Per provare una chiavetta, avviare il pannello con &quot;./run --stick DIR&quot;.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Controllo</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Sfoglia</translation>
    </message>
    <message>
        <source>%1 is checked: %2 %</source>
        <translation>Controllo di %1: %2 %</translation>
    </message>
    <message>
        <source>The check of %1 was stopped.</source>
        <translation>Il controllo di %1 è stato fermato.</translation>
    </message>
    <message>
        <source>%1 was not checked: its storage does not answer.</source>
        <translation>%1 non è stato controllato: la sua memoria non risponde.</translation>
    </message>
    <message>
        <source>Touch a program: its facts and its coil are shown here.</source>
        <translation>Toccare un programma: i suoi dati e la sua bobina appaiono qui.</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Lettura di %1 ...</translation>
    </message>
    <message>
        <source>%1 is read: %2 %</source>
        <translation>Lettura di %1: %2 %</translation>
    </message>
    <message>
        <source>Too long for a picture here. Open it to see its coil.</source>
        <translation>Troppo lungo per un’immagine qui. Aprirlo per vedere la bobina.</translation>
    </message>
    <message>
        <source>This program winds no wire.</source>
        <translation>Questo programma non avvolge filo.</translation>
    </message>
    <message>
        <source>%1 could not be checked to its end.</source>
        <translation>%1 non è stato controllato fino alla fine.</translation>
    </message>
    <message>
        <source>%1: nothing found.</source>
        <translation>%1: nessun problema.</translation>
    </message>
    <message>
        <source>%1: %2. Open it to see where.</source>
        <translation>%1: %2. Aprirlo per vedere dove.</translation>
    </message>
    <message>
        <source>Unsafe names: %1</source>
        <translation>Nomi non sicuri: %1</translation>
    </message>
    <message>
        <source>Stick: looking ...</source>
        <translation>Chiavetta: ricerca ...</translation>
    </message>
    <message>
        <source>Stick: in, files: %1</source>
        <translation>Chiavetta: inserita, file: %1</translation>
    </message>
    <message>
        <source>Stick: out</source>
        <translation>Chiavetta: assente</translation>
    </message>
    <message>
        <source>Programs: looking ...</source>
        <translation>Programmi: ricerca ...</translation>
    </message>
    <message>
        <source>Programs: %1, %2 KB of %3 MB</source>
        <translation>Programmi: %1, %2 KB di %3 MB</translation>
    </message>
    <message>
        <source>All names are safe for the transfer.</source>
        <translation>Tutti i nomi sono sicuri per il trasferimento.</translation>
    </message>
    <message>
        <source>Names that are not safe: %1. Rename them by the key Rename.</source>
        <translation>Nomi non sicuri: %1. Rinominarli con il tasto Rinomina.</translation>
    </message>
</context>
<context>
    <name>FindingsBar</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>%1 of %2, line %3: %4 %5</source>
        <translation>%1 di %2, riga %3: %4 %5</translation>
    </message>
</context>
<context>
    <name>FindingsDialog</name>
    <message>
        <source>Check</source>
        <translation>Controllo</translation>
    </message>
    <message>
        <source>%1. The first %2 are listed.</source>
        <translation>%1. Sono elencati i primi %2.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>History</source>
        <translation>Storico</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>Kept on</source>
        <translation>Salvato il</translation>
    </message>
    <message>
        <source>Checksum</source>
        <translation>Checksum</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dim.</translation>
    </message>
    <message>
        <source>Only this</source>
        <translation>Solo questo</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
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
        <translation>%1 è stato modificato da altri.</translation>
    </message>
</context>
<context>
    <name>ListScreen</name>
    <message>
        <source>First</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Loading ...</source>
        <translation>Caricamento ...</translation>
    </message>
    <message>
        <source>What stood there is %1 now.</source>
        <translation>Il file precedente ora si chiama %1.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>Messages</source>
        <translation>Messaggi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>There was nothing to tell yet.</source>
        <translation>Ancora nessun messaggio.</translation>
    </message>
</context>
<context>
    <name>MovementLimits</name>
    <message>
        <source>Instruction %1: %2 is %3. It must be %4.</source>
        <translation>Istruzione %1: %2 è %3. Ammesso: %4.</translation>
    </message>
    <message>
        <source>Instruction %1, %2</source>
        <translation>Istruzione %1, %2</translation>
    </message>
    <message>
        <source>text</source>
        <translation>testo</translation>
    </message>
    <message>
        <source>remark</source>
        <translation>nota</translation>
    </message>
</context>
<context>
    <name>PageKeys</name>
    <message>
        <source>Page up</source>
        <translation>Pagina su</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina giù</translation>
    </message>
</context>
<context>
    <name>PanelProgram</name>
    <message>
        <source>Panel</source>
        <translation>Pannello</translation>
    </message>
    <message>
        <source>Another panel works on the same programs. This one does not start.</source>
        <translation>Un altro pannello lavora sugli stessi programmi. Questo non si avvia.</translation>
    </message>
    <message>
        <source>%1 is read and checked: %2 %</source>
        <translation>Lettura e controllo di %1: %2 %</translation>
    </message>
</context>
<context>
    <name>PanelScreen</name>
    <message>
        <source>changed</source>
        <translation>modificato</translation>
    </message>
</context>
<context>
    <name>PanelWindow</name>
    <message>
        <source>Program</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>Teach</source>
        <translation>Apprendi</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variabili</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Connessioni</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>%1[*] - Winding panel</source>
        <translation>%1[*] - Pannello avvolgitrice</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Coil</source>
        <translation>Bobina</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Corsa</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Curve</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Valori</translation>
    </message>
    <message>
        <source>To line</source>
        <translation>Fin qui</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
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
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>Tiro</translation>
    </message>
    <message>
        <source>Read: %1 %</source>
        <translation>Letto: %1 %</translation>
    </message>
    <message>
        <source>Reading the program ...</source>
        <translation>Lettura del programma ...</translation>
    </message>
    <message>
        <source>There is no program yet. Open or write one, and its coil is shown here.</source>
        <translation>Ancora nessun programma. Aprirne o scriverne uno: la sua bobina appare qui.</translation>
    </message>
    <message>
        <source>This program winds no wire: no line moves the guide while the spindle turns.</source>
        <translation>Questo programma non avvolge filo: nessuna riga muove la guida mentre il mandrino gira.</translation>
    </message>
    <message>
        <source>The machine is not known, so no coil can be reckoned. %1</source>
        <translation>La macchina non è nota: nessuna bobina si può calcolare. %1</translation>
    </message>
    <message>
        <source>Lines not understood in full: %1. First: %2</source>
        <translation>Righe non capite del tutto: %1. Prima: %2</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Riga %1</translation>
    </message>
    <message>
        <source>Stopped at %1 %</source>
        <translation>Fermato al %1 %</translation>
    </message>
    <message>
        <source>The reading was stopped. The next change begins it anew.</source>
        <translation>La lettura è stata fermata. La prossima modifica la riavvia.</translation>
    </message>
</context>
<context>
    <name>PreviewScreen</name>
    <message>
        <source>Coil of %1</source>
        <translation>Bobina di %1</translation>
    </message>
</context>
<context>
    <name>ProgramList</name>
    <message>
        <source>Programs</source>
        <translation>Programmi</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer. The programs come once it does.</source>
        <translation>La memoria del pannello non risponde. I programmi appariranno quando risponderà.</translation>
    </message>
    <message>
        <source>Reading the programs ...</source>
        <translation>Lettura dei programmi ...</translation>
    </message>
    <message>
        <source>The folder of the programs cannot be read: %1.</source>
        <translation>La cartella dei programmi non è leggibile: %1.</translation>
    </message>
    <message>
        <source>No programs yet. Write one on the screen Program, or bring some from the stick by I/E.</source>
        <translation>Ancora nessun programma. Scriverlo in Programma o prenderlo dalla chiavetta con Imp/Esp.</translation>
    </message>
</context>
<context>
    <name>ProgramPicture</name>
    <message>
        <source>Coil</source>
        <translation>Bobina</translation>
    </message>
</context>
<context>
    <name>ProgramReview</name>
    <message>
        <source>No check: the machine&apos;s profile has a fault.</source>
        <translation>Nessun controllo: il profilo della macchina ha un errore.</translation>
    </message>
    <message>
        <source>The program is being checked.</source>
        <translation>Il programma è in corso di controllo.</translation>
    </message>
    <message>
        <source>Nothing found, by the rules of &quot;%1&quot;.</source>
        <translation>Nessun problema, secondo le regole di &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Errori: %1, avvisi: %2</translation>
    </message>
    <message>
        <source>The check was stopped. The next change, or the screen Preview, begins it anew.</source>
        <translation>Il controllo è stato fermato. La prossima modifica o l’Anteprima lo riavvia.</translation>
    </message>
</context>
<context>
    <name>ProgramScreen</name>
    <message>
        <source>Find</source>
        <translation>Trova</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Disfa</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>A download is running. Let it end, or stop it first.</source>
        <translation>Invio in corso. Attenderne la fine o interromperlo prima.</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation>%1 ha modifiche non salvate.</translation>
    </message>
    <message>
        <source>The machine already stands as point %1 &quot;%2&quot; wants it: nothing to insert.</source>
        <translation>La macchina è già sul punto %1 &quot;%2&quot;: nulla da inserire.</translation>
    </message>
    <message>
        <source>Point %1 &quot;%2&quot; inserted: %3</source>
        <translation>Inserito il punto %1 &quot;%2&quot;: %3</translation>
    </message>
    <message>
        <source>The program is still being loaded or saved. Close the panel after that.</source>
        <translation>Il programma è ancora in caricamento o salvataggio. Chiudere il pannello dopo.</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Verifica</translation>
    </message>
    <message>
        <source>Coil</source>
        <translation>Bobina</translation>
    </message>
    <message>
        <source>The program is loaded: %1 %</source>
        <translation>Caricamento del programma: %1 %</translation>
    </message>
    <message>
        <source>downloading</source>
        <translation>invio</translation>
    </message>
    <message>
        <source>not stored</source>
        <translation>non salvato</translation>
    </message>
    <message>
        <source>stored</source>
        <translation>salvato</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The settings file had errors and is now named %1. Please look over your settings.</source>
        <translation>Il file delle impostazioni conteneva errori e ora si chiama %1. Controllare le impostazioni.</translation>
    </message>
    <message>
        <source>The settings file %1 has errors and cannot be renamed. What you choose lasts until the program ends.</source>
        <translation>Il file delle impostazioni %1 è errato e non si rinomina. Le scelte valgono fino alla chiusura.</translation>
    </message>
    <message>
        <source>The settings cannot be stored in %1. What you choose lasts until the program ends.</source>
        <translation>Le impostazioni non si possono salvare in %1. Le scelte valgono fino alla chiusura del programma.</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Contrasto alto</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Colori</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Texts grow as far as each screen has room.</source>
        <translation>I testi crescono dove lo schermo ha spazio.</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Suoni</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Spenti</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Accesi</translation>
    </message>
    <message>
        <source>The display&apos;s bell at each touch of a key.</source>
        <translation>Il segnale del display a ogni tasto.</translation>
    </message>
    <message>
        <source>This display has no bell: nothing is heard.</source>
        <translation>Questo display non ha segnale: non si sente nulla.</translation>
    </message>
    <message>
        <source>The translation is not installed.</source>
        <translation>La traduzione non è installata.</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>One more</source>
        <translation>Una in più</translation>
    </message>
    <message>
        <source>One fewer</source>
        <translation>Una in meno</translation>
    </message>
    <message>
        <source>Copy to the stick</source>
        <translation>Copia sulla chiavetta</translation>
    </message>
    <message>
        <source>Copy to the panel</source>
        <translation>Copia sul pannello</translation>
    </message>
    <message>
        <source>Out of the folder</source>
        <translation>Fuori dalla cartella</translation>
    </message>
    <message>
        <source>Into the folder</source>
        <translation>Nella cartella</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Whether another panel works on the same programs cannot be told: %1.</source>
        <translation>Impossibile stabilire se un altro pannello lavora sugli stessi programmi: %1.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer. The programs come once it does.</source>
        <translation>La memoria del pannello non risponde. I programmi appariranno quando risponderà.</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>PLC: not known</source>
        <translation>PLC: sconosciuto</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>pronto</translation>
    </message>
    <message>
        <source>PLC: ready</source>
        <translation>PLC: pronto</translation>
    </message>
    <message>
        <source>away</source>
        <translation>manca</translation>
    </message>
    <message>
        <source>PLC: does not answer</source>
        <translation>PLC: non risponde</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>PLC: receives a program</source>
        <translation>PLC: riceve un programma</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>errore</translation>
    </message>
    <message>
        <source>PLC: the last download failed</source>
        <translation>PLC: l&apos;ultimo trasferimento è fallito</translation>
    </message>
    <message>
        <source>Stick: not known</source>
        <translation>Chiavetta: sconosciuta</translation>
    </message>
    <message>
        <source>in</source>
        <translation>sì</translation>
    </message>
    <message>
        <source>Stick: in</source>
        <translation>Chiavetta: inserita</translation>
    </message>
    <message>
        <source>out</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Stick: out</source>
        <translation>Chiavetta: assente</translation>
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
        <translation>Memoria: sconosciuta</translation>
    </message>
    <message>
        <source>Storage: %1 free</source>
        <translation>Memoria: %1 liberi</translation>
    </message>
    <message>
        <source>Storage: only %1 free</source>
        <translation>Memoria: solo %1 liberi</translation>
    </message>
    <message>
        <source>full</source>
        <translation>piena</translation>
    </message>
    <message>
        <source>Storage: full</source>
        <translation>Memoria: piena</translation>
    </message>
    <message>
        <source>PLC</source>
        <translation>PLC</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Chiavetta</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Controllo</translation>
    </message>
    <message>
        <source>Check: not known</source>
        <translation>Controllo: non noto</translation>
    </message>
    <message>
        <source>Check: errors %1, warnings %2</source>
        <translation>Controllo: errori %1, avvisi %2</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>Check: nothing found</source>
        <translation>Controllo: nessun problema</translation>
    </message>
</context>
<context>
    <name>StickCover</name>
    <message>
        <source>The stick is out. Plug it in: its files come by themselves.</source>
        <translation>Chiavetta rimossa. Inserirla: i file compaiono da soli.</translation>
    </message>
</context>
<context>
    <name>TablePicker</name>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
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
    <name>TapArea</name>
    <message>
        <source>Messages</source>
        <translation>Messaggi</translation>
    </message>
</context>
<context>
    <name>TaughtDetails</name>
    <message>
        <source>own values</source>
        <translation>valori propri</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Veloc.</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Veloc. %1</translation>
    </message>
    <message>
        <source>Zone %1</source>
        <translation>Zona %1</translation>
    </message>
    <message>
        <source>Tool %1</source>
        <translation>Utensile %1</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Instruction %1: %2</source>
        <translation>Istruzione %1: %2</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
</context>
<context>
    <name>TaughtFolder</name>
    <message>
        <source>it is too large</source>
        <translation>è troppo grande</translation>
    </message>
    <message>
        <source>%1 could not be copied to %2: %3.</source>
        <translation>Impossibile copiare %1 in %2: %3.</translation>
    </message>
</context>
<context>
    <name>TaughtProgram</name>
    <message>
        <source>Instr.</source>
        <translation>Istr.</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Veloc.</translation>
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
        <translation>%1 non è un programma appreso: la riga %2 non è un&apos;istruzione.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
</context>
<context>
    <name>TeachScreen</name>
    <message>
        <source>G04 F1 wait</source>
        <translation>G04 F1 attesa</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Scegli</translation>
    </message>
    <message>
        <source>Clearing: %1 %</source>
        <translation>Svuotamento: %1 %</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>The taught program has changes that are not stored.</source>
        <translation>Il programma appreso ha modifiche non salvate.</translation>
    </message>
    <message>
        <source>%1 loaded, instructions: %2.</source>
        <translation>%1 caricato, istruzioni: %2.</translation>
    </message>
    <message>
        <source>%1 stored, instructions: %2.</source>
        <translation>%1 salvato, istruzioni: %2.</translation>
    </message>
    <message>
        <source>Loading replaces what was changed and is not stored.</source>
        <translation>Il caricamento sostituisce le modifiche non salvate.</translation>
    </message>
    <message>
        <source>Load a taught program</source>
        <translation>Carica un programma appreso</translation>
    </message>
    <message>
        <source>Remove all %1 instructions?</source>
        <translation>Eliminare tutte le %1 istruzioni?</translation>
    </message>
    <message>
        <source>There is no instruction to delete.</source>
        <translation>Nessuna istruzione da eliminare.</translation>
    </message>
    <message>
        <source>Point for instruction %1</source>
        <translation>Punto per l&apos;istruzione %1</translation>
    </message>
    <message>
        <source>Instructions that now name point %1 &quot;%2&quot;: %3.</source>
        <translation>Istruzioni che ora indicano il punto %1 &quot;%2&quot;: %3.</translation>
    </message>
    <message>
        <source>Speed for instruction %1</source>
        <translation>Velocità per l&apos;istruzione %1</translation>
    </message>
    <message>
        <source>Instructions that now name speed %1 &quot;%2&quot;: %3.</source>
        <translation>Istruzioni che ora indicano la velocità %1 &quot;%2&quot;: %3.</translation>
    </message>
    <message>
        <source>Taught program</source>
        <translation>Programma appreso</translation>
    </message>
    <message>
        <source>The list is empty. Store first puts that file aside.</source>
        <translation>L&apos;elenco è vuoto. &quot;Salva&quot; mette prima da parte quel file.</translation>
    </message>
    <message>
        <source>The list is empty. Try Load.</source>
        <translation>L&apos;elenco è vuoto. Provare &quot;Carica&quot;.</translation>
    </message>
    <message>
        <source>%1 is not there.</source>
        <translation>%1 non c&apos;è.</translation>
    </message>
    <message>
        <source>%1, %2, instructions: %3</source>
        <translation>%1, %2, istruzioni: %3</translation>
    </message>
    <message>
        <source>Not stored. %1</source>
        <translation>Non salvato. %1</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
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
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Disfa</translation>
    </message>
    <message>
        <source>Taught programs are in %1 now, copied: %2. The old files stay.</source>
        <translation>I programmi appresi ora sono in %1, copiati: %2. I vecchi file restano.</translation>
    </message>
    <message>
        <source>Store as</source>
        <translation>Salva n.</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>%1 is there already, instructions: %2. Write over it?</source>
        <translation>%1 esiste già, istruzioni: %2. Sovrascrivere?</translation>
    </message>
    <message>
        <source>%1 is there already and cannot be read. Put it aside and store?</source>
        <translation>%1 esiste già e non è leggibile. Metterlo da parte e salvare?</translation>
    </message>
    <message>
        <source>Instructions removed: %1. Undo brings them back.</source>
        <translation>Istruzioni eliminate: %1. &quot;Disfa&quot; le riporta.</translation>
    </message>
    <message>
        <source>There is no instruction to copy.</source>
        <translation>Nessuna istruzione da copiare.</translation>
    </message>
    <message>
        <source>Instructions copied: %1. Paste puts them below a row.</source>
        <translation>Istruzioni copiate: %1. &quot;Incolla&quot; le mette sotto una riga.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: taught programs of %1 may be missing.</source>
        <translation>La memoria del pannello non risponde: possono mancare programmi appresi di %1.</translation>
    </message>
    <message>
        <source>No instruction is chosen. Touch one.</source>
        <translation>Nessuna istruzione scelta. Toccarne una.</translation>
    </message>
    <message>
        <source>No instruction yet. MoveJ, MoveL and Text make one.</source>
        <translation>Ancora nessuna istruzione. MoveJ, MoveL e Testo ne creano una.</translation>
    </message>
</context>
<context>
    <name>TitleStrip</name>
    <message>
        <source>Panel and stick</source>
        <translation>Pannello e chiavetta</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Attendere</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>Tour</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Impossibile creare la cartella %1.</translation>
    </message>
    <message>
        <source>What step %1 touches is not on the screen.</source>
        <translation>Ciò che il passo %1 tocca non è sullo schermo.</translation>
    </message>
    <message>
        <source>Step %1 expects a dialog, and none is open.</source>
        <translation>Il passo %1 attende una finestra di dialogo, e nessuna è aperta.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be written.</source>
        <translation>Impossibile scrivere l&apos;immagine %1.</translation>
    </message>
    <message>
        <source>What step %1 waits for does not come.</source>
        <translation>Ciò che il passo %1 attende non arriva.</translation>
    </message>
</context>
<context>
    <name>ValueRule</name>
    <message>
        <source>not a number</source>
        <translation>non è un numero</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>sotto %1</translation>
    </message>
    <message>
        <source>above %1</source>
        <translation>sopra %1</translation>
    </message>
    <message>
        <source>not whole</source>
        <translation>non intero</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>troppo lungo</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>illeggibile</translation>
    </message>
    <message>
        <source>not on or off</source>
        <translation>né on né off</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on o off</translation>
    </message>
    <message>
        <source>at most %1 letters</source>
        <translation>al massimo %1 lettere</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>%1, whole</source>
        <translation>%1, intero</translation>
    </message>
</context>
<context>
    <name>VariableDetails</name>
    <message>
        <source>whole number</source>
        <translation>numero intero</translation>
    </message>
    <message>
        <source>number</source>
        <translation>numero</translation>
    </message>
    <message>
        <source>text</source>
        <translation>testo</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on o off</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>Nel file</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niente</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lunghezza</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuna</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimo</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Massimo</translation>
    </message>
</context>
<context>
    <name>VariableTable</name>
    <message>
        <source>limit not a number</source>
        <translation>limite non numerico</translation>
    </message>
    <message>
        <source>minimum above maximum</source>
        <translation>minimo sopra il massimo</translation>
    </message>
    <message>
        <source>limit too large</source>
        <translation>limite troppo grande</translation>
    </message>
    <message>
        <source>no whole number between the limits</source>
        <translation>nessun intero tra i limiti</translation>
    </message>
    <message>
        <source>name empty, too long or not readable</source>
        <translation>nome vuoto, troppo lungo o illeggibile</translation>
    </message>
    <message>
        <source>type unknown</source>
        <translation>tipo sconosciuto</translation>
    </message>
    <message>
        <source>unit too long or not readable</source>
        <translation>unità troppo lunga o illeggibile</translation>
    </message>
    <message>
        <source>there twice</source>
        <translation>presente due volte</translation>
    </message>
    <message>
        <source>too many variables</source>
        <translation>troppe variabili</translation>
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
        <translation>Variabili macchina</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>The variables have changes that are not stored.</source>
        <translation>Le variabili hanno modifiche non salvate.</translation>
    </message>
    <message>
        <source>Variables stored: %1.</source>
        <translation>Variabili salvate: %1.</translation>
    </message>
    <message>
        <source>The values are empty. Store first puts that file aside.</source>
        <translation>I valori sono vuoti. &quot;Salva&quot; mette prima da parte quel file.</translation>
    </message>
    <message>
        <source>The values are empty. Switch the panel off and on.</source>
        <translation>I valori sono vuoti. Spegnere e riaccendere il pannello.</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variabili</translation>
    </message>
    <message>
        <source>%1, %2, values: %3</source>
        <translation>%1, %2, valori: %3</translation>
    </message>
    <message>
        <source>Not stored. %1 must be %2.</source>
        <translation>Non salvato. %1: ammesso %2.</translation>
    </message>
    <message>
        <source>Variables stored: %1, changed ones: %2.</source>
        <translation>Variabili salvate: %1, modificate: %2.</translation>
    </message>
    <message>
        <source>%1, lines not used: %2. %3.</source>
        <translation>%1, righe non usate: %2. %3.</translation>
    </message>
    <message>
        <source>Variables out of limits: %1. Touch the red ones.</source>
        <translation>Variabili fuori dai limiti: %1. Toccare le rosse.</translation>
    </message>
    <message>
        <source>%1 is %2. It must be %3.</source>
        <translation>%1 è %2. Ammesso: %3.</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vuoto</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modificato</translation>
    </message>
    <message>
        <source>stored</source>
        <translation>salvato</translation>
    </message>
    <message>
        <source>Values that are no variable&apos;s now, not brought back: %1.</source>
        <translation>Valori senza variabile, non ripristinati: %1.</translation>
    </message>
    <message>
        <source>No variable is chosen. Touch one.</source>
        <translation>Nessuna variabile scelta. Toccarne una.</translation>
    </message>
</context>
<context>
    <name>WalkKeys</name>
    <message>
        <source>First</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>First line</source>
        <translation>Prima riga</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Go to a line</source>
        <translation>Vai a una riga</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Last line</source>
        <translation>Ultima riga</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Stopping ...</source>
        <translation>Arresto in corso ...</translation>
    </message>
    <message>
        <source>%1 (more work: %2)</source>
        <translation>%1 (altri lavori: %2)</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>ancora %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>ancora %1 min</translation>
    </message>
</context>
</TS>
