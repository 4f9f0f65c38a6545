<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>bilinmiyor</translation>
    </message>
    <message>
        <source>Program: %1 %2</source>
        <translation>Program: %1 %2</translation>
    </message>
    <message>
        <source>Toolkit: Qt %1</source>
        <translation>Araç takımı: Qt %1</translation>
    </message>
    <message>
        <source>Licences: MIT; toolkit LGPL 3</source>
        <translation>Lisanslar: MIT; araç takımı LGPL 3</translation>
    </message>
    <message>
        <source>Data: %1</source>
        <translation>Veriler: %1</translation>
    </message>
    <message>
        <source>Room left: %1</source>
        <translation>Boş yer: %1</translation>
    </message>
</context>
<context>
    <name>BarPager</name>
    <message>
        <source>More</source>
        <translation>Daha</translation>
    </message>
</context>
<context>
    <name>ClockPage</name>
    <message>
        <source>Clock</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>The system keeps the clock, and it is set there, not here.</source>
        <translation>Saati sistem tutar; burada değil, orada ayarlanır.</translation>
    </message>
    <message>
        <source>Time zone: %1</source>
        <translation>Saat dilimi: %1</translation>
    </message>
</context>
<context>
    <name>CoilExport</name>
    <message>
        <source>Writing the picture to the stick</source>
        <translation>Resim belleğe yazılıyor</translation>
    </message>
    <message>
        <source>Picture and totals are on the stick, in the folder %1.</source>
        <translation>Resim ve değerler bellekte, %1 klasöründe.</translation>
    </message>
    <message>
        <source>There is no stick. Plug one in, then export once more.</source>
        <translation>Bellek yok. Bir bellek takıp yeniden aktarın.</translation>
    </message>
    <message>
        <source>The stick was pulled out: the picture is not on it. Plug it in, then export once more.</source>
        <translation>Bellek çıkarıldı: resim üzerinde değil. Takıp yeniden aktarın.</translation>
    </message>
    <message>
        <source>The picture is not on the stick: %1.</source>
        <translation>Resim bellekte değil: %1.</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>Aktarma durduruldu.</translation>
    </message>
    <message>
        <source>The stick does not answer: whether the picture is on it is not known.</source>
        <translation>Bellek yanıt vermiyor: resmin üzerinde olup olmadığı bilinmiyor.</translation>
    </message>
</context>
<context>
    <name>CoilPreview</name>
    <message>
        <source>The panel&apos;s storage does not answer: the machine is not known.</source>
        <translation>Panelin belleği yanıt vermiyor: makine bilinmiyor.</translation>
    </message>
</context>
<context>
    <name>ConnectionsScreen</name>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
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
        <translation>Adres</translation>
    </message>
    <message>
        <source>Edit the addresses</source>
        <translation>Adresleri düzenle</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Bağlantılar</translation>
    </message>
    <message>
        <source>No address was changed.</source>
        <translation>Hiçbir adres değişmedi.</translation>
    </message>
    <message>
        <source>Stored: %1.</source>
        <translation>Kaydedildi: %1.</translation>
    </message>
    <message>
        <source>not set yet</source>
        <translation>henüz ayarlanmadı</translation>
    </message>
    <message>
        <source>%1 says that it holds %2 connections. The first %3 are shown.</source>
        <translation>%1 dosyasına göre %2 bağlantı var. İlk %3 tanesi gösteriliyor.</translation>
    </message>
    <message>
        <source>%1 cannot be read: the panel&apos;s storage does not answer.</source>
        <translation>%1 okunamıyor: panelin belleği yanıt vermiyor.</translation>
    </message>
    <message>
        <source>The addresses cannot be edited: the panel&apos;s temporary storage is full.</source>
        <translation>Adresler düzenlenemiyor: panelin geçici belleği dolu.</translation>
    </message>
    <message>
        <source>The addresses are not stored: the panel&apos;s storage does not answer.</source>
        <translation>Adresler kaydedilmedi: panelin belleği yanıt vermiyor.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: nobody knows whether the addresses are stored.</source>
        <translation>Panelin belleği yanıt vermiyor: adreslerin kaydedilip kaydedilmediği bilinmiyor.</translation>
    </message>
    <message>
        <source>Loading ...</source>
        <translation>Yükleniyor ...</translation>
    </message>
    <message>
        <source>TCP port</source>
        <translation>TCP portu</translation>
    </message>
</context>
<context>
    <name>DownloadQuestion</name>
    <message>
        <source>Send</source>
        <translation>Yükle</translation>
    </message>
</context>
<context>
    <name>FilesScreen</name>
    <message>
        <source>Plug</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>Çıkar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Adlandır</translation>
    </message>
    <message>
        <source>I/E</source>
        <translation>Aktar</translation>
    </message>
    <message>
        <source>Files and stick</source>
        <translation>Dosyalar ve bellek</translation>
    </message>
    <message>
        <source>The stick is in; all file names are safe.</source>
        <translation>Bellek takıldı; tüm dosya adları güvenli.</translation>
    </message>
    <message>
        <source>The stick is out.</source>
        <translation>Bellek çıkarıldı.</translation>
    </message>
    <message>
        <source>Pick a path</source>
        <translation>Yol seç</translation>
    </message>
    <message>
        <source>simulated: %1</source>
        <translation>taklit: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>The stick does not answer.</source>
        <translation>Bellek yanıt vermiyor.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>Panelin belleği yanıt vermiyor.</translation>
    </message>
    <message>
        <source>To try a stick, start the panel by &quot;./run --stick DIR&quot;.</source>
        <translation>Bellek denemek için paneli &quot;./run --stick DIR&quot; ile başlatın.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Denetim</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Gözat</translation>
    </message>
    <message>
        <source>%1 is checked: %2 %</source>
        <translation>%1 denetleniyor: %2 %</translation>
    </message>
    <message>
        <source>The check of %1 was stopped.</source>
        <translation>%1 denetimi durduruldu.</translation>
    </message>
    <message>
        <source>%1 was not checked: its storage does not answer.</source>
        <translation>%1 denetlenmedi: bulunduğu bellek yanıt vermiyor.</translation>
    </message>
    <message>
        <source>Touch a program: its facts and its coil are shown here.</source>
        <translation>Bir programa dokunun: bilgileri ve bobini burada görünür.</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>%1 okunuyor ...</translation>
    </message>
    <message>
        <source>%1 is read: %2 %</source>
        <translation>%1 okunuyor: %2 %</translation>
    </message>
    <message>
        <source>Too long for a picture here. Open it to see its coil.</source>
        <translation>Burada resim için çok uzun. Bobini görmek için açın.</translation>
    </message>
    <message>
        <source>This program winds no wire.</source>
        <translation>Bu program tel sarmıyor.</translation>
    </message>
    <message>
        <source>%1 could not be checked to its end.</source>
        <translation>%1 sonuna kadar denetlenemedi.</translation>
    </message>
    <message>
        <source>%1: nothing found.</source>
        <translation>%1: hiçbir şey bulunmadı.</translation>
    </message>
    <message>
        <source>%1: %2. Open it to see where.</source>
        <translation>%1: %2. Yerini görmek için açın.</translation>
    </message>
    <message>
        <source>Unsafe names: %1</source>
        <translation>Güvenli olmayan ad: %1</translation>
    </message>
    <message>
        <source>Stick: looking ...</source>
        <translation>Bellek: bakılıyor ...</translation>
    </message>
    <message>
        <source>Stick: in, files: %1</source>
        <translation>Bellek: takılı, dosya: %1</translation>
    </message>
    <message>
        <source>Stick: out</source>
        <translation>Bellek: takılı değil</translation>
    </message>
    <message>
        <source>Programs: looking ...</source>
        <translation>Programlar: bakılıyor ...</translation>
    </message>
    <message>
        <source>Programs: %1, %2 KB of %3 MB</source>
        <translation>Program: %1, %2 KB / %3 MB</translation>
    </message>
    <message>
        <source>All names are safe for the transfer.</source>
        <translation>Tüm adlar aktarım için güvenli.</translation>
    </message>
    <message>
        <source>Names that are not safe: %1. Rename them by the key Rename.</source>
        <translation>Güvenli olmayan ad: %1. Adlandır tuşuyla yeniden adlandırın.</translation>
    </message>
</context>
<context>
    <name>FindingsBar</name>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>%1 of %2, line %3: %4 %5</source>
        <translation>%1 / %2, satır %3: %4 %5</translation>
    </message>
</context>
<context>
    <name>FindingsDialog</name>
    <message>
        <source>Check</source>
        <translation>Denetim</translation>
    </message>
    <message>
        <source>%1. The first %2 are listed.</source>
        <translation>%1. İlk %2 tanesi listede.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Kept on</source>
        <translation>Saklandı</translation>
    </message>
    <message>
        <source>Checksum</source>
        <translation>Sağlama</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Only this</source>
        <translation>Yalnız bu</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Geri getir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
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
        <translation>%1 başkası tarafından değiştirildi.</translation>
    </message>
</context>
<context>
    <name>ListScreen</name>
    <message>
        <source>First</source>
        <translation>Baş</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Sayfa</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Loading ...</source>
        <translation>Yükleniyor ...</translation>
    </message>
    <message>
        <source>What stood there is %1 now.</source>
        <translation>Önceki dosyanın adı artık %1.</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Daha</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>Messages</source>
        <translation>İletiler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>There was nothing to tell yet.</source>
        <translation>Henüz ileti yok.</translation>
    </message>
</context>
<context>
    <name>MovementLimits</name>
    <message>
        <source>Instruction %1: %2 is %3. It must be %4.</source>
        <translation>Komut %1: %2 = %3. İzin verilen: %4.</translation>
    </message>
    <message>
        <source>Instruction %1, %2</source>
        <translation>Komut %1, %2</translation>
    </message>
    <message>
        <source>text</source>
        <translation>metin</translation>
    </message>
    <message>
        <source>remark</source>
        <translation>not</translation>
    </message>
</context>
<context>
    <name>PageKeys</name>
    <message>
        <source>Page up</source>
        <translation>Sayfa yukarı</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Sayfa aşağı</translation>
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
        <translation>Başka bir panel aynı programlarla çalışıyor. Bu panel başlamaz.</translation>
    </message>
    <message>
        <source>%1 is read and checked: %2 %</source>
        <translation>%1 okunup denetleniyor: %2 %</translation>
    </message>
</context>
<context>
    <name>PanelScreen</name>
    <message>
        <source>changed</source>
        <translation>değişti</translation>
    </message>
</context>
<context>
    <name>PanelWindow</name>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Teach</source>
        <translation>Öğretme</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Değişken</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>Bağlantılar</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>%1[*] - Winding panel</source>
        <translation>%1[*] - Sarım paneli</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Önizleme</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Coil</source>
        <translation>Bobin</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Yol</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Eğriler</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Sayılar</translation>
    </message>
    <message>
        <source>To line</source>
        <translation>Buraya</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Aktar</translation>
    </message>
    <message>
        <source>Zoom +</source>
        <translation>Yakın +</translation>
    </message>
    <message>
        <source>Zoom -</source>
        <translation>Uzak -</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Sığdır</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>Gergi</translation>
    </message>
    <message>
        <source>Read: %1 %</source>
        <translation>Okunan: %1 %</translation>
    </message>
    <message>
        <source>Reading the program ...</source>
        <translation>Program okunuyor ...</translation>
    </message>
    <message>
        <source>There is no program yet. Open or write one, and its coil is shown here.</source>
        <translation>Henüz program yok. Açın ya da yazın; bobini burada görünür.</translation>
    </message>
    <message>
        <source>This program winds no wire: no line moves the guide while the spindle turns.</source>
        <translation>Bu program tel sarmıyor: mil dönerken hiçbir satır kılavuzu oynatmıyor.</translation>
    </message>
    <message>
        <source>The machine is not known, so no coil can be reckoned. %1</source>
        <translation>Makine bilinmiyor, bobin hesaplanamaz. %1</translation>
    </message>
    <message>
        <source>Lines not understood in full: %1. First: %2</source>
        <translation>Tam anlaşılmayan satır: %1. İlki: %2</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Satır %1</translation>
    </message>
    <message>
        <source>Stopped at %1 %</source>
        <translation>%1 % iken durduruldu</translation>
    </message>
    <message>
        <source>The reading was stopped. The next change begins it anew.</source>
        <translation>Okuma durduruldu. Sonraki değişiklik onu yeniden başlatır.</translation>
    </message>
</context>
<context>
    <name>PreviewScreen</name>
    <message>
        <source>Coil of %1</source>
        <translation>Bobin: %1</translation>
    </message>
</context>
<context>
    <name>ProgramList</name>
    <message>
        <source>Programs</source>
        <translation>Programlar</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer. The programs come once it does.</source>
        <translation>Panelin belleği yanıt vermiyor. Yanıt verince programlar gelir.</translation>
    </message>
    <message>
        <source>Reading the programs ...</source>
        <translation>Programlar okunuyor ...</translation>
    </message>
    <message>
        <source>The folder of the programs cannot be read: %1.</source>
        <translation>Program klasörü okunamıyor: %1.</translation>
    </message>
    <message>
        <source>No programs yet. Write one on the screen Program, or bring some from the stick by I/E.</source>
        <translation>Henüz program yok. Program ekranında yazın ya da Aktar ile bellekten alın.</translation>
    </message>
</context>
<context>
    <name>ProgramPicture</name>
    <message>
        <source>Coil</source>
        <translation>Bobin</translation>
    </message>
</context>
<context>
    <name>ProgramReview</name>
    <message>
        <source>No check: the machine&apos;s profile has a fault.</source>
        <translation>Denetim yok: makine profilinde hata var.</translation>
    </message>
    <message>
        <source>The program is being checked.</source>
        <translation>Program denetleniyor.</translation>
    </message>
    <message>
        <source>Nothing found, by the rules of &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; kurallarına göre hiçbir şey bulunmadı.</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Hatalar: %1, uyarılar: %2</translation>
    </message>
    <message>
        <source>The check was stopped. The next change, or the screen Preview, begins it anew.</source>
        <translation>Denetim durduruldu. Sonraki değişiklik ya da Önizleme onu yeniden başlatır.</translation>
    </message>
</context>
<context>
    <name>ProgramScreen</name>
    <message>
        <source>Find</source>
        <translation>Bul</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri al</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Yinele</translation>
    </message>
    <message>
        <source>A download is running. Let it end, or stop it first.</source>
        <translation>Yükleme sürüyor. Bitmesini bekleyin ya da önce durdurun.</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation>%1 içinde kaydedilmemiş değişiklikler var.</translation>
    </message>
    <message>
        <source>The machine already stands as point %1 &quot;%2&quot; wants it: nothing to insert.</source>
        <translation>Makine zaten %1 &quot;%2&quot; noktasında: eklenecek bir şey yok.</translation>
    </message>
    <message>
        <source>Point %1 &quot;%2&quot; inserted: %3</source>
        <translation>%1 &quot;%2&quot; noktası eklendi: %3</translation>
    </message>
    <message>
        <source>The program is still being loaded or saved. Close the panel after that.</source>
        <translation>Program hâlâ açılıyor ya da kaydediliyor. Paneli sonra kapatın.</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Denetim</translation>
    </message>
    <message>
        <source>Coil</source>
        <translation>Bobin</translation>
    </message>
    <message>
        <source>The program is loaded: %1 %</source>
        <translation>Program yükleniyor: %1 %</translation>
    </message>
    <message>
        <source>downloading</source>
        <translation>yükleniyor</translation>
    </message>
    <message>
        <source>not stored</source>
        <translation>kaydedilmedi</translation>
    </message>
    <message>
        <source>stored</source>
        <translation>kaydedildi</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The settings file had errors and is now named %1. Please look over your settings.</source>
        <translation>Ayar dosyası hatalıydı, yeni adı: %1. Lütfen ayarlarınızı gözden geçirin.</translation>
    </message>
    <message>
        <source>The settings file %1 has errors and cannot be renamed. What you choose lasts until the program ends.</source>
        <translation>Ayar dosyası %1 hatalı, adı değiştirilemiyor. Seçimler program kapanana kadar geçerli.</translation>
    </message>
    <message>
        <source>The settings cannot be stored in %1. What you choose lasts until the program ends.</source>
        <translation>Ayarlar %1 dosyasına kaydedilemiyor. Seçimleriniz program kapanana kadar geçerlidir.</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Açık renk</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Koyu renk</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Yüksek karşıtlık</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Renkler</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Yazı</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Texts grow as far as each screen has room.</source>
        <translation>Yazılar ekranda yer olduğunca büyür.</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sesler</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>The display&apos;s bell at each touch of a key.</source>
        <translation>Her tuşta ekranın zili.</translation>
    </message>
    <message>
        <source>This display has no bell: nothing is heard.</source>
        <translation>Bu ekranda zil yok: hiçbir şey duyulmaz.</translation>
    </message>
    <message>
        <source>The translation is not installed.</source>
        <translation>Çeviri kurulu değil.</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>One more</source>
        <translation>Bir fazla</translation>
    </message>
    <message>
        <source>One fewer</source>
        <translation>Bir eksik</translation>
    </message>
    <message>
        <source>Copy to the stick</source>
        <translation>Belleğe kopyala</translation>
    </message>
    <message>
        <source>Copy to the panel</source>
        <translation>Panele kopyala</translation>
    </message>
    <message>
        <source>Out of the folder</source>
        <translation>Klasörden çık</translation>
    </message>
    <message>
        <source>Into the folder</source>
        <translation>Klasöre gir</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Whether another panel works on the same programs cannot be told: %1.</source>
        <translation>Başka bir panelin aynı programlarla çalışıp çalışmadığı anlaşılamıyor: %1.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer. The programs come once it does.</source>
        <translation>Panelin belleği yanıt vermiyor. Yanıt verince programlar gelir.</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>PLC: not known</source>
        <translation>PLC: bilinmiyor</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>hazır</translation>
    </message>
    <message>
        <source>PLC: ready</source>
        <translation>PLC: hazır</translation>
    </message>
    <message>
        <source>away</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>PLC: does not answer</source>
        <translation>PLC: yanıt vermiyor</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>PLC: receives a program</source>
        <translation>PLC: program alıyor</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>hata</translation>
    </message>
    <message>
        <source>PLC: the last download failed</source>
        <translation>PLC: son aktarım başarısız oldu</translation>
    </message>
    <message>
        <source>Stick: not known</source>
        <translation>Bellek: bilinmiyor</translation>
    </message>
    <message>
        <source>in</source>
        <translation>var</translation>
    </message>
    <message>
        <source>Stick: in</source>
        <translation>Bellek: takılı</translation>
    </message>
    <message>
        <source>out</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>Stick: out</source>
        <translation>Bellek: takılı değil</translation>
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
        <translation>Depolama: bilinmiyor</translation>
    </message>
    <message>
        <source>Storage: %1 free</source>
        <translation>Depolama: %1 boş</translation>
    </message>
    <message>
        <source>Storage: only %1 free</source>
        <translation>Depolama: yalnızca %1 boş</translation>
    </message>
    <message>
        <source>full</source>
        <translation>dolu</translation>
    </message>
    <message>
        <source>Storage: full</source>
        <translation>Depolama: dolu</translation>
    </message>
    <message>
        <source>PLC</source>
        <translation>PLC</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Bellek</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Depo</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Denetim</translation>
    </message>
    <message>
        <source>Check: not known</source>
        <translation>Denetim: bilinmiyor</translation>
    </message>
    <message>
        <source>Check: errors %1, warnings %2</source>
        <translation>Denetim: hata %1, uyarı %2</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>tamam</translation>
    </message>
    <message>
        <source>Check: nothing found</source>
        <translation>Denetim: sorun yok</translation>
    </message>
</context>
<context>
    <name>StickCover</name>
    <message>
        <source>The stick is out. Plug it in: its files come by themselves.</source>
        <translation>Bellek çıkarıldı. Takın: dosyaları kendiliğinden gelir.</translation>
    </message>
</context>
<context>
    <name>TablePicker</name>
    <message>
        <source>No.</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>TapArea</name>
    <message>
        <source>Messages</source>
        <translation>İletiler</translation>
    </message>
</context>
<context>
    <name>TaughtDetails</name>
    <message>
        <source>own values</source>
        <translation>kendi değerleri</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Nokta</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hız</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Hız %1</translation>
    </message>
    <message>
        <source>Zone %1</source>
        <translation>Bölge %1</translation>
    </message>
    <message>
        <source>Tool %1</source>
        <translation>Takım %1</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Not</translation>
    </message>
    <message>
        <source>Instruction %1: %2</source>
        <translation>Komut %1: %2</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
</context>
<context>
    <name>TaughtFolder</name>
    <message>
        <source>it is too large</source>
        <translation>çok büyük</translation>
    </message>
    <message>
        <source>%1 could not be copied to %2: %3.</source>
        <translation>%1, %2 klasörüne kopyalanamadı: %3.</translation>
    </message>
</context>
<context>
    <name>TaughtProgram</name>
    <message>
        <source>Instr.</source>
        <translation>Komut</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Nokta</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hız</translation>
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
        <translation>%1 öğretilmiş bir program değil: %2. satır komut değil.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
</context>
<context>
    <name>TeachScreen</name>
    <message>
        <source>G04 F1 wait</source>
        <translation>G04 F1 bekle</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seç</translation>
    </message>
    <message>
        <source>Clearing: %1 %</source>
        <translation>Temizleniyor: %1 %</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>The taught program has changes that are not stored.</source>
        <translation>Öğretilmiş programda kaydedilmemiş değişiklikler var.</translation>
    </message>
    <message>
        <source>%1 loaded, instructions: %2.</source>
        <translation>%1 açıldı, komut: %2.</translation>
    </message>
    <message>
        <source>%1 stored, instructions: %2.</source>
        <translation>%1 kaydedildi, komut: %2.</translation>
    </message>
    <message>
        <source>Loading replaces what was changed and is not stored.</source>
        <translation>Açmak, kaydedilmemiş değişiklikleri siler.</translation>
    </message>
    <message>
        <source>Load a taught program</source>
        <translation>Öğretilmiş program aç</translation>
    </message>
    <message>
        <source>Remove all %1 instructions?</source>
        <translation>%1 komutun tümü silinsin mi?</translation>
    </message>
    <message>
        <source>There is no instruction to delete.</source>
        <translation>Silinecek komut yok.</translation>
    </message>
    <message>
        <source>Point for instruction %1</source>
        <translation>%1. komutun noktası</translation>
    </message>
    <message>
        <source>Instructions that now name point %1 &quot;%2&quot;: %3.</source>
        <translation>Artık %1 &quot;%2&quot; noktasını kullanan komut: %3.</translation>
    </message>
    <message>
        <source>Speed for instruction %1</source>
        <translation>%1. komutun hızı</translation>
    </message>
    <message>
        <source>Instructions that now name speed %1 &quot;%2&quot;: %3.</source>
        <translation>Artık %1 &quot;%2&quot; hızını kullanan komut: %3.</translation>
    </message>
    <message>
        <source>Taught program</source>
        <translation>Öğretilmiş program</translation>
    </message>
    <message>
        <source>The list is empty. Store first puts that file aside.</source>
        <translation>Liste boş. &quot;Kaydet&quot; önce o dosyayı kenara alır.</translation>
    </message>
    <message>
        <source>The list is empty. Try Load.</source>
        <translation>Liste boş. &quot;Aç&quot; ile deneyin.</translation>
    </message>
    <message>
        <source>%1 is not there.</source>
        <translation>%1 yok.</translation>
    </message>
    <message>
        <source>%1, %2, instructions: %3</source>
        <translation>%1, %2, komut: %3</translation>
    </message>
    <message>
        <source>Not stored. %1</source>
        <translation>Kaydedilmedi. %1</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopya</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Yapıştır</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Yukarı</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Aşağı</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri al</translation>
    </message>
    <message>
        <source>Taught programs are in %1 now, copied: %2. The old files stay.</source>
        <translation>Öğretilmiş programlar artık %1 içinde, kopyalanan: %2. Eski dosyalar kalır.</translation>
    </message>
    <message>
        <source>Store as</source>
        <translation>Farklı</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Ad:</translation>
    </message>
    <message>
        <source>%1 is there already, instructions: %2. Write over it?</source>
        <translation>%1 zaten var, komut: %2. Üzerine yazılsın mı?</translation>
    </message>
    <message>
        <source>%1 is there already and cannot be read. Put it aside and store?</source>
        <translation>%1 zaten var ve okunamıyor. Kenara alınıp kaydedilsin mi?</translation>
    </message>
    <message>
        <source>Instructions removed: %1. Undo brings them back.</source>
        <translation>Silinen komut: %1. &quot;Geri al&quot; onları geri getirir.</translation>
    </message>
    <message>
        <source>There is no instruction to copy.</source>
        <translation>Kopyalanacak komut yok.</translation>
    </message>
    <message>
        <source>Instructions copied: %1. Paste puts them below a row.</source>
        <translation>Kopyalanan komut: %1. &quot;Yapıştır&quot; onları satırın altına koyar.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: taught programs of %1 may be missing.</source>
        <translation>Panelin belleği yanıt vermiyor: %1 içindeki öğretilmiş programlar eksik olabilir.</translation>
    </message>
    <message>
        <source>No instruction is chosen. Touch one.</source>
        <translation>Seçili komut yok. Birine dokunun.</translation>
    </message>
    <message>
        <source>No instruction yet. MoveJ, MoveL and Text make one.</source>
        <translation>Henüz komut yok. MoveJ, MoveL ve Metin bir tane ekler.</translation>
    </message>
</context>
<context>
    <name>TitleStrip</name>
    <message>
        <source>Panel and stick</source>
        <translation>Panel ve bellek</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Lütfen bekleyin</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>Tour</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>%1 klasörü oluşturulamıyor.</translation>
    </message>
    <message>
        <source>What step %1 touches is not on the screen.</source>
        <translation>%1. adımın dokunduğu şey ekranda yok.</translation>
    </message>
    <message>
        <source>Step %1 expects a dialog, and none is open.</source>
        <translation>%1. adım bir iletişim kutusu bekliyor, açık olan yok.</translation>
    </message>
    <message>
        <source>The picture %1 cannot be written.</source>
        <translation>%1 resmi yazılamıyor.</translation>
    </message>
    <message>
        <source>What step %1 waits for does not come.</source>
        <translation>%1. adımın beklediği gelmiyor.</translation>
    </message>
</context>
<context>
    <name>ValueRule</name>
    <message>
        <source>not a number</source>
        <translation>sayı değil</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>%1 altında</translation>
    </message>
    <message>
        <source>above %1</source>
        <translation>%1 üstünde</translation>
    </message>
    <message>
        <source>not whole</source>
        <translation>tam değil</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>çok uzun</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>okunamıyor</translation>
    </message>
    <message>
        <source>not on or off</source>
        <translation>on/off değil</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on veya off</translation>
    </message>
    <message>
        <source>at most %1 letters</source>
        <translation>en çok %1 harf</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ile %2 arası</translation>
    </message>
    <message>
        <source>%1, whole</source>
        <translation>%1, tam sayı</translation>
    </message>
</context>
<context>
    <name>VariableDetails</name>
    <message>
        <source>whole number</source>
        <translation>tam sayı</translation>
    </message>
    <message>
        <source>number</source>
        <translation>sayı</translation>
    </message>
    <message>
        <source>text</source>
        <translation>metin</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on veya off</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>Dosyada</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>hiçbir şey</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Uzunluk</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Birim</translation>
    </message>
    <message>
        <source>none</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>En az</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>En çok</translation>
    </message>
</context>
<context>
    <name>VariableTable</name>
    <message>
        <source>limit not a number</source>
        <translation>sınır sayı değil</translation>
    </message>
    <message>
        <source>minimum above maximum</source>
        <translation>en az, en çoktan büyük</translation>
    </message>
    <message>
        <source>limit too large</source>
        <translation>sınır çok büyük</translation>
    </message>
    <message>
        <source>no whole number between the limits</source>
        <translation>sınırlar arasında tam sayı yok</translation>
    </message>
    <message>
        <source>name empty, too long or not readable</source>
        <translation>ad boş, çok uzun veya okunamıyor</translation>
    </message>
    <message>
        <source>type unknown</source>
        <translation>tür bilinmiyor</translation>
    </message>
    <message>
        <source>unit too long or not readable</source>
        <translation>birim çok uzun veya okunamıyor</translation>
    </message>
    <message>
        <source>there twice</source>
        <translation>iki kez var</translation>
    </message>
    <message>
        <source>too many variables</source>
        <translation>çok fazla değişken</translation>
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
        <translation>Makine değişkenleri</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>The variables have changes that are not stored.</source>
        <translation>Değişkenlerde kaydedilmemiş değişiklikler var.</translation>
    </message>
    <message>
        <source>Variables stored: %1.</source>
        <translation>Kaydedilen değişken: %1.</translation>
    </message>
    <message>
        <source>The values are empty. Store first puts that file aside.</source>
        <translation>Değerler boş. &quot;Kaydet&quot; önce o dosyayı kenara alır.</translation>
    </message>
    <message>
        <source>The values are empty. Switch the panel off and on.</source>
        <translation>Değerler boş. Paneli kapatıp açın.</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Değişken</translation>
    </message>
    <message>
        <source>%1, %2, values: %3</source>
        <translation>%1, %2, değer: %3</translation>
    </message>
    <message>
        <source>Not stored. %1 must be %2.</source>
        <translation>Kaydedilmedi. %1: izin verilen %2.</translation>
    </message>
    <message>
        <source>Variables stored: %1, changed ones: %2.</source>
        <translation>Kaydedilen değişken: %1, değişen: %2.</translation>
    </message>
    <message>
        <source>%1, lines not used: %2. %3.</source>
        <translation>%1, kullanılmayan satır: %2. %3.</translation>
    </message>
    <message>
        <source>Variables out of limits: %1. Touch the red ones.</source>
        <translation>Sınır dışı değişken: %1. Kırmızılara dokunun.</translation>
    </message>
    <message>
        <source>%1 is %2. It must be %3.</source>
        <translation>%1 = %2. İzin verilen: %3.</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>boş</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>değişti</translation>
    </message>
    <message>
        <source>stored</source>
        <translation>kaydedildi</translation>
    </message>
    <message>
        <source>Values that are no variable&apos;s now, not brought back: %1.</source>
        <translation>Değişkeni olmayan, geri getirilmeyen değerler: %1.</translation>
    </message>
    <message>
        <source>No variable is chosen. Touch one.</source>
        <translation>Seçili değişken yok. Birine dokunun.</translation>
    </message>
</context>
<context>
    <name>WalkKeys</name>
    <message>
        <source>First</source>
        <translation>Baş</translation>
    </message>
    <message>
        <source>First line</source>
        <translation>İlk satır</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Sayfa</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Satır</translation>
    </message>
    <message>
        <source>Go to a line</source>
        <translation>Satıra git</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Last line</source>
        <translation>Son satır</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Stopping ...</source>
        <translation>Durduruluyor ...</translation>
    </message>
    <message>
        <source>%1 (more work: %2)</source>
        <translation>%1 (diğer iş: %2)</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1 sn kaldı</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>%1 dk kaldı</translation>
    </message>
</context>
</TS>
