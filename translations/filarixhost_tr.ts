<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>CheckedDownload</name>
    <message>
        <source>The program is made ready: %1 %</source>
        <translation>Program hazırlanıyor: %1 %</translation>
    </message>
    <message>
        <source>The download was stopped. The PLC keeps what it had.</source>
        <translation>Yükleme durduruldu. PLC eski içeriğini korur.</translation>
    </message>
    <message>
        <source>Nothing was sent. The PLC keeps what it had.</source>
        <translation>Hiçbir şey yüklenmedi. PLC eski içeriğini korur.</translation>
    </message>
    <message>
        <source>%1 goes to the PLC: %2 %</source>
        <translation>%1 PLC&apos;ye yükleniyor: %2 %</translation>
    </message>
    <message>
        <source>%1 is in the PLC: %2 bytes, compared.</source>
        <translation>%1 PLC&apos;de: %2 bayt, karşılaştırıldı.</translation>
    </message>
    <message>
        <source>%1 is in the PLC as it was shown, %2. On the panel it is gone.</source>
        <translation>%1 gösterildiği gibi PLC&apos;de, %2. Panelde artık yok.</translation>
    </message>
    <message>
        <source>%1 is in the PLC as shown, %2. On the panel it has changed since: download it once more.</source>
        <translation>%1 gösterildiği gibi PLC&apos;de, %2. Panelde o zamandan beri değişti: yeniden yükleyin.</translation>
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
        <translation>%1:%2 dk</translation>
    </message>
    <message>
        <source>%1:%2:%3 h</source>
        <translation>%1:%2:%3 sa</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>Sarım</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Kat</translation>
    </message>
    <message>
        <source>Coils</source>
        <translation>Bobinler</translation>
    </message>
    <message>
        <source>Wire length</source>
        <translation>Tel boyu</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Kütle</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>Direnç</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Doluluk</translation>
    </message>
    <message>
        <source>Outer diameter</source>
        <translation>Dış çap</translation>
    </message>
    <message>
        <source>Wire diameter</source>
        <translation>Tel çapı</translation>
    </message>
</context>
<context>
    <name>CoilPicture</name>
    <message>
        <source>Tension %1</source>
        <translation>Gergi %1</translation>
    </message>
    <message>
        <source>Layer 1</source>
        <translation>Kat 1</translation>
    </message>
    <message>
        <source>Coil %1 of %2</source>
        <translation>Bobin %1 / %2</translation>
    </message>
    <message>
        <source>winding</source>
        <translation>sarma</translation>
    </message>
    <message>
        <source>moving</source>
        <translation>gitme</translation>
    </message>
    <message>
        <source>rapid</source>
        <translation>hızlı</translation>
    </message>
    <message>
        <source>Traverse</source>
        <translation>Gezdirme</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Devir</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>Gergi</translation>
    </message>
    <message>
        <source>turns</source>
        <translation>sarım</translation>
    </message>
</context>
<context>
    <name>ConnectionFile</name>
    <message>
        <source>%1 cannot be made: %2.</source>
        <translation>%1 oluşturulamıyor: %2.</translation>
    </message>
    <message>
        <source>the panel&apos;s temporary storage is full</source>
        <translation>panelin geçici belleği dolu</translation>
    </message>
    <message>
        <source>the file was changed meanwhile. Edit them once more</source>
        <translation>dosya bu arada değişti. Yeniden düzenleyin</translation>
    </message>
    <message>
        <source>the disk holds something else</source>
        <translation>diskteki içerik farklı</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 çok büyük.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 bir dosya değil.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 okunamıyor: %2.</translation>
    </message>
    <message>
        <source>The connections cannot be read: the panel&apos;s temporary storage is full.</source>
        <translation>Bağlantılar okunamıyor: panelin geçici belleği dolu.</translation>
    </message>
    <message>
        <source>The addresses are not stored: %1.</source>
        <translation>Adresler kaydedilmedi: %1.</translation>
    </message>
</context>
<context>
    <name>DownloadFacts</name>
    <message>
        <source>%1 in the file, %2 shown</source>
        <translation>Dosyada %1, ekranda %2</translation>
    </message>
    <message>
        <source>%1 in the file, comments not shown</source>
        <translation>Dosyada %1, yorumlar gösterilmiyor</translation>
    </message>
    <message>
        <source>%1 in the file, others shown</source>
        <translation>Dosyada %1, ekranda başkaları</translation>
    </message>
    <message>
        <source>%1 in the file, not compared</source>
        <translation>Dosyada %1, karşılaştırılmadı</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Yükleme</translation>
    </message>
    <message>
        <source>Send this program to the PLC?</source>
        <translation>Bu program PLC&apos;ye yüklensin mi?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Yükle</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Satırlar</translation>
    </message>
    <message>
        <source>Checksum</source>
        <translation>Sağlama</translation>
    </message>
    <message>
        <source>This machine takes no program with errors. Mend them, then send it.</source>
        <translation>Bu makine hatalı program almaz. Önce düzeltin, sonra gönderin.</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Denetim</translation>
    </message>
    <message>
        <source>The check found errors: %1. The machine may stop or wind something else.</source>
        <translation>Denetimin bulduğu hatalar: %1. Makine durabilir ya da başka türlü sarabilir.</translation>
    </message>
    <message>
        <source>The program could not be checked to the end. Errors may be in it.</source>
        <translation>Program sonuna kadar denetlenemedi. Hatalar olabilir.</translation>
    </message>
    <message>
        <source>Send it all the same?</source>
        <translation>Yine de gönderilsin mi?</translation>
    </message>
</context>
<context>
    <name>DownloadSource</name>
    <message>
        <source>There is no program to download yet. Save it under a name first.</source>
        <translation>Henüz yüklenecek program yok. Önce bir adla kaydedin.</translation>
    </message>
    <message>
        <source>The program %1 is gone from the panel. Save it again, then download.</source>
        <translation>%1 programı panelde yok. Yeniden kaydedip yükleyin.</translation>
    </message>
    <message>
        <source>%1 is not a program file.</source>
        <translation>%1 bir program dosyası değil.</translation>
    </message>
    <message>
        <source>The program %1 cannot be read: %2.</source>
        <translation>%1 programı okunamıyor: %2.</translation>
    </message>
    <message>
        <source>The download was stopped. The PLC keeps what it had.</source>
        <translation>Yükleme durduruldu. PLC eski içeriğini korur.</translation>
    </message>
</context>
<context>
    <name>FindDialogGuide</name>
    <message>
        <source>Start reached, went on at the end: line %1.</source>
        <translation>Başa gelindi, sondan devam edildi: satır %1.</translation>
    </message>
    <message>
        <source>End reached, went on at the top: line %1.</source>
        <translation>Sona gelindi, baştan devam edildi: satır %1.</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>A control character stands here, which nobody sees.</source>
        <translation>Burada kimsenin görmediği bir denetim karakteri var.</translation>
    </message>
    <message>
        <source>Delete it, or write the line anew.</source>
        <translation>Silin ya da satırı yeniden yazın.</translation>
    </message>
    <message>
        <source>A character stands here that machines don&apos;t know.</source>
        <translation>Burada makinelerin bilmediği bir karakter var.</translation>
    </message>
    <message>
        <source>Write it anew: it may look like another one.</source>
        <translation>Yeniden yazın: başka bir karaktere benzeyebilir.</translation>
    </message>
    <message>
        <source>The comment has a character that is not ASCII.</source>
        <translation>Yorumda ASCII olmayan bir karakter var.</translation>
    </message>
    <message>
        <source>Another panel may show another one in its place.</source>
        <translation>Başka bir panel yerine başkasını gösterebilir.</translation>
    </message>
    <message>
        <source>What stands here is no word.</source>
        <translation>Burada yazılan bir komut sözcüğü değil.</translation>
    </message>
    <message>
        <source>Delete it, or put a &quot;;&quot; before a comment.</source>
        <translation>Silin ya da yorumdan önce &quot;;&quot; koyun.</translation>
    </message>
    <message>
        <source>The letter here has no number.</source>
        <translation>Buradaki harfin sayısı yok.</translation>
    </message>
    <message>
        <source>Add the number, or delete the letter.</source>
        <translation>Sayıyı ekleyin ya da harfi silin.</translation>
    </message>
    <message>
        <source>The number here cannot be read.</source>
        <translation>Buradaki sayı okunamıyor.</translation>
    </message>
    <message>
        <source>Write it with one point and one sign at most.</source>
        <translation>En çok bir nokta ve bir işaretle yazın.</translation>
    </message>
    <message>
        <source>The number here is too large for any machine.</source>
        <translation>Buradaki sayı her makine için çok büyük.</translation>
    </message>
    <message>
        <source>Correct the number.</source>
        <translation>Sayıyı düzeltin.</translation>
    </message>
    <message>
        <source>The comment that begins here has no end.</source>
        <translation>Burada başlayan yorumun sonu yok.</translation>
    </message>
    <message>
        <source>Add a &quot;)&quot;, or begin it with &quot;;&quot;.</source>
        <translation>&quot;)&quot; ekleyin ya da &quot;;&quot; ile başlatın.</translation>
    </message>
    <message>
        <source>The line has too many words: the rest is not read.</source>
        <translation>Satırda çok fazla sözcük var: kalanı okunmaz.</translation>
    </message>
    <message>
        <source>Use several lines.</source>
        <translation>Birden çok satır kullanın.</translation>
    </message>
    <message>
        <source>The line is too long: the rest is not read.</source>
        <translation>Satır çok uzun: kalanı okunmaz.</translation>
    </message>
    <message>
        <source>%1 is unknown to this profile.</source>
        <translation>%1 bu profilde bilinmiyor.</translation>
    </message>
    <message>
        <source>Correct it, or check with the profile of the machine.</source>
        <translation>Düzeltin ya da makinenin profiliyle denetleyin.</translation>
    </message>
    <message>
        <source>%1: the machine has no such guide tube.</source>
        <translation>%1: makinede böyle bir kılavuz boru yok.</translation>
    </message>
    <message>
        <source>Correct the number, or add the tube to the profile.</source>
        <translation>Sayıyı düzeltin ya da boruyu profile ekleyin.</translation>
    </message>
    <message>
        <source>%1 does not count: another one stands in the line.</source>
        <translation>%1 sayılmaz: satırda bir tane daha var.</translation>
    </message>
    <message>
        <source>Keep one of them.</source>
        <translation>Yalnız birini bırakın.</translation>
    </message>
    <message>
        <source>%1 and %2 in one line contradict each other.</source>
        <translation>Aynı satırda %1 ile %2 çelişiyor.</translation>
    </message>
    <message>
        <source>Keep one of them, or use two lines.</source>
        <translation>Birini bırakın ya da iki satır kullanın.</translation>
    </message>
    <message>
        <source>%1 has no effect in this line.</source>
        <translation>%1 bu satırda etkisiz.</translation>
    </message>
    <message>
        <source>Delete it, or add what it belongs to.</source>
        <translation>Silin ya da ait olduğu sözcüğü ekleyin.</translation>
    </message>
    <message>
        <source>%1 must not be negative.</source>
        <translation>%1 negatif olamaz.</translation>
    </message>
    <message>
        <source>%1 moves, but no motion is in force.</source>
        <translation>%1 hareket ediyor ama etkin bir hareket yok.</translation>
    </message>
    <message>
        <source>Put a motion before it, such as %2.</source>
        <translation>Önüne bir hareket koyun, örneğin %2.</translation>
    </message>
    <message>
        <source>%1 moves without a feed.</source>
        <translation>%1 ilerleme olmadan hareket ediyor.</translation>
    </message>
    <message>
        <source>Add %2 with the feed.</source>
        <translation>%2 ile ilerlemeyi ekleyin.</translation>
    </message>
    <message>
        <source>%1 winds without a pitch.</source>
        <translation>%1 adım olmadan sarıyor.</translation>
    </message>
    <message>
        <source>Add %2 with the pitch.</source>
        <translation>%2 ile adımı ekleyin.</translation>
    </message>
    <message>
        <source>%1 waits without a time.</source>
        <translation>%1 süre olmadan bekliyor.</translation>
    </message>
    <message>
        <source>Add %2 with the time.</source>
        <translation>%2 ile süreyi ekleyin.</translation>
    </message>
    <message>
        <source>%1 waits for the spindle, which stands.</source>
        <translation>%1 duran iş milini bekliyor.</translation>
    </message>
    <message>
        <source>Start the spindle before, by %2 and a speed.</source>
        <translation>Önce iş milini %2 ve bir hızla çalıştırın.</translation>
    </message>
    <message>
        <source>%1 goes to %2, beyond the axis: its end is %3.</source>
        <translation>%1, %2 konumuna gidiyor, eksenin sonu %3.</translation>
    </message>
    <message>
        <source>Correct the number or the position before.</source>
        <translation>Sayıyı ya da önceki konumu düzeltin.</translation>
    </message>
    <message>
        <source>%1 is faster than the spindle may turn: %2.</source>
        <translation>%1, iş milinin izin verilen hızından yüksek: %2.</translation>
    </message>
    <message>
        <source>Use a lower speed.</source>
        <translation>Daha düşük bir hız kullanın.</translation>
    </message>
    <message>
        <source>The pitch %1 is above the limit of %2.</source>
        <translation>%1 adımı %2 sınırının üstünde.</translation>
    </message>
    <message>
        <source>Use a smaller pitch.</source>
        <translation>Daha küçük bir adım kullanın.</translation>
    </message>
    <message>
        <source>The spindle turns at a tension of %1; the limit is %2.</source>
        <translation>İş mili %1 gerginlikle dönüyor; sınır %2.</translation>
    </message>
    <message>
        <source>Use less tension: the wire may break.</source>
        <translation>Gerginliği azaltın: tel kopabilir.</translation>
    </message>
    <message>
        <source>The tension jumps by %1; the limit is %2.</source>
        <translation>Gerginlik %1 atlıyor; sınır %2.</translation>
    </message>
    <message>
        <source>Use several steps.</source>
        <translation>Birden çok adımla gidin.</translation>
    </message>
    <message>
        <source>The wire is laid at %1; the bobbin is from %2 to %3.</source>
        <translation>Tel %1 konumuna seriliyor; makara %2 ile %3 arasında.</translation>
    </message>
    <message>
        <source>Stay between the flanges, or stop the spindle.</source>
        <translation>Flanşların arasında kalın ya da iş milini durdurun.</translation>
    </message>
    <message>
        <source>The coil grows over the flange, which has %1.</source>
        <translation>Sargı %1 çaplı flanşı aşıyor.</translation>
    </message>
    <message>
        <source>Use fewer turns, a thinner wire or another bobbin.</source>
        <translation>Daha az sarım, daha ince tel ya da başka makara kullanın.</translation>
    </message>
    <message>
        <source>The winding begins before the wire is clamped.</source>
        <translation>Sarma, tel sıkıştırılmadan başlıyor.</translation>
    </message>
    <message>
        <source>Clamp the wire first, by %2.</source>
        <translation>Önce teli %2 ile sıkıştırın.</translation>
    </message>
    <message>
        <source>The program ends before the wire is cut.</source>
        <translation>Program, tel kesilmeden bitiyor.</translation>
    </message>
    <message>
        <source>Cut the wire first, by %1.</source>
        <translation>Önce teli %1 ile kesin.</translation>
    </message>
    <message>
        <source>The program has no end.</source>
        <translation>Programın sonu yok.</translation>
    </message>
    <message>
        <source>Add %1 as the last line.</source>
        <translation>Son satır olarak %1 ekleyin.</translation>
    </message>
    <message>
        <source>The program has ended: this is never performed.</source>
        <translation>Program bitti: bu hiç yürütülmez.</translation>
    </message>
    <message>
        <source>Delete it, or put the end behind it.</source>
        <translation>Silin ya da sonu bunun arkasına koyun.</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has no place: the folder %1 cannot be made.</source>
        <translation>Geçmişe yer yok: %1 klasörü oluşturulamıyor.</translation>
    </message>
    <message>
        <source>%1 is too large for the history.</source>
        <translation>%1 geçmiş için çok büyük.</translation>
    </message>
    <message>
        <source>The history cannot read %1: %2.</source>
        <translation>Geçmiş %1 dosyasını okuyamıyor: %2.</translation>
    </message>
    <message>
        <source>The history cannot keep %1: %2.</source>
        <translation>Geçmiş %1 dosyasını saklayamıyor: %2.</translation>
    </message>
    <message>
        <source>The history has no room for %1 beside the other programs.</source>
        <translation>Geçmişte diğer programların yanında %1 için yer yok.</translation>
    </message>
</context>
<context>
    <name>ImportGuard</name>
    <message>
        <source>and %1 more</source>
        <translation>ve %1 tane daha</translation>
    </message>
    <message>
        <source>File names</source>
        <translation>Dosya adları</translation>
    </message>
    <message>
        <source>Not renamed. Import and export stay closed until the names are safe.</source>
        <translation>Yeniden adlandırılmadı. Adlar güvenli olana kadar içe ve dışa aktarma kapalı kalır.</translation>
    </message>
    <message>
        <source>Files that could not be renamed: %1. Is the stick write-protected?</source>
        <translation>Yeniden adlandırılamayan dosya: %1. Bellek yazmaya karşı korumalı mı?</translation>
    </message>
    <message>
        <source>Files renamed: %1.</source>
        <translation>Yeniden adlandırılan dosya: %1.</translation>
    </message>
    <message>
        <source>No transfer: the path %1 holds characters that the transfer would not take for what they are.</source>
        <translation>Aktarım yok: %1 yolunda aktarımın yanlış anlayacağı karakterler var.</translation>
    </message>
    <message>
        <source>One moment: the panel looks at the programs and the stick.</source>
        <translation>Bir saniye: panel programlara ve belleğe bakıyor.</translation>
    </message>
    <message>
        <source>No stick is in: nothing was copied or deleted.</source>
        <translation>Bellek takılı değil: hiçbir şey kopyalanmadı ya da silinmedi.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>The stick does not answer: nothing was copied, deleted or renamed. Pull it and plug it in again.</source>
        <translation>Bellek yanıt vermiyor: hiçbir şey kopyalanmadı, silinmedi ya da yeniden adlandırılmadı. Çıkarıp yeniden takın.</translation>
    </message>
    <message>
        <source>%1 is copied to the stick, and compared.</source>
        <translation>%1 belleğe kopyalandı ve karşılaştırıldı.</translation>
    </message>
    <message>
        <source>%1 is copied to the panel, and compared.</source>
        <translation>%1 panele kopyalandı ve karşılaştırıldı.</translation>
    </message>
    <message>
        <source>%1 is deleted from the stick.</source>
        <translation>%1 bellekten silindi.</translation>
    </message>
    <message>
        <source>%1 is deleted from the panel.</source>
        <translation>%1 panelden silindi.</translation>
    </message>
    <message>
        <source>%1 was not copied.</source>
        <translation>%1 kopyalanmadı.</translation>
    </message>
    <message>
        <source>%1 was not copied, and the one on the stick is gone.</source>
        <translation>%1 kopyalanmadı ve bellekteki de artık yok.</translation>
    </message>
    <message>
        <source>%1 was not copied, and the panel&apos;s own is gone: bring it back from the history.</source>
        <translation>%1 kopyalanmadı ve paneldeki de artık yok: geçmişten geri alın.</translation>
    </message>
    <message>
        <source>The copy of %1 is not what was to be copied. Is there space left? Copy it once more.</source>
        <translation>%1 kopyası aslından farklı. Yer var mı? Yeniden kopyalayın.</translation>
    </message>
    <message>
        <source>Leave them</source>
        <translation>Böyle kalsın</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Adlandır</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>Yine de</translation>
    </message>
    <message>
        <source>The transfer cannot take these file names. Nothing is copied or deleted until they are renamed.</source>
        <translation>Aktarım bu dosya adlarını alamaz. Adlar değişene kadar hiçbir şey kopyalanmaz veya silinmez.</translation>
    </message>
    <message>
        <source>What %1 is now would be lost.</source>
        <translation>%1 dosyasının şimdiki hâli kaybolur.</translation>
    </message>
</context>
<context>
    <name>LineEntry</name>
    <message>
        <source>Line %1</source>
        <translation>Satır %1</translation>
    </message>
</context>
<context>
    <name>MachineProfile</name>
    <message>
        <source>%1 is too large for a machine profile.</source>
        <translation>%1 bir makine profili için çok büyük.</translation>
    </message>
    <message>
        <source>%1 is no text, and so no machine profile.</source>
        <translation>%1 metin değil; makine profili olamaz.</translation>
    </message>
    <message>
        <source>A line is a [section] or a key = value.</source>
        <translation>Bir satır [bölüm] ya da anahtar = değer olur.</translation>
    </message>
    <message>
        <source>There is no section [%1].</source>
        <translation>[%1] bölümü yok.</translation>
    </message>
    <message>
        <source>A key stands before the first section.</source>
        <translation>İlk bölümden önce bir anahtar var.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands there twice.</source>
        <translation>&quot;%1&quot; iki kez yazılmış.</translation>
    </message>
    <message>
        <source>An axis is: letter = role, unit, minimum, maximum.</source>
        <translation>Bir eksen: harf = görev, birim, en az, en çok.</translation>
    </message>
    <message>
        <source>Another axis is the %1 already.</source>
        <translation>Başka bir eksen zaten %1.</translation>
    </message>
    <message>
        <source>The unit of this axis is mm.</source>
        <translation>Bu eksenin birimi mm&apos;dir.</translation>
    </message>
    <message>
        <source>The unit of this axis is N.</source>
        <translation>Bu eksenin birimi N&apos;dir.</translation>
    </message>
    <message>
        <source>There are too many axes.</source>
        <translation>Çok fazla eksen var.</translation>
    </message>
    <message>
        <source>A function is: G or M with a number = action, modal group.</source>
        <translation>Bir işlev: sayılı G ya da M = eylem, modal grup.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no letter.</source>
        <translation>&quot;%1&quot; bir harf değil.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of a tool, or stands there twice.</source>
        <translation>&quot;%1&quot; takım numarası değil ya da iki kez yazılmış.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size of IEC 60317, as &quot;0.250 grade 1&quot; is.</source>
        <translation>&quot;%1&quot;, &quot;0.250 grade 1&quot; gibi bir IEC 60317 ölçüsü değil.</translation>
    </message>
    <message>
        <source>The letter %1 means something already.</source>
        <translation>%1 harfinin zaten bir anlamı var.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number from %2 to %3.</source>
        <translation>&quot;%1&quot;, %2 ile %3 arasında bir sayı değil.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of: %2.</source>
        <translation>&quot;%1&quot; şunlardan biri değil: %2.</translation>
    </message>
    <message>
        <source>%1: no axis is the traverse.</source>
        <translation>%1: hiçbir eksen tel dizme (traverse) değil.</translation>
    </message>
    <message>
        <source>%1: the bobbin needs a core and a width.</source>
        <translation>%1: makaranın göbeği ve genişliği eksik.</translation>
    </message>
    <message>
        <source>%1: the flange is narrower than the core.</source>
        <translation>%1: flanş göbekten küçük.</translation>
    </message>
    <message>
        <source>%1: the conductor is wider than the wire.</source>
        <translation>%1: iletken telden kalın.</translation>
    </message>
    <message>
        <source>%1: a dwell needs &quot;dwell = letter&quot; in [words].</source>
        <translation>%1: bekleme için [words] içinde &quot;dwell = harf&quot; gerekir.</translation>
    </message>
    <message>
        <source>%1: the letter of the dwell means something already.</source>
        <translation>%1: bekleme harfinin zaten bir anlamı var.</translation>
    </message>
    <message>
        <source>There is no key &quot;%1&quot; in [%2].</source>
        <translation>[%2] içinde &quot;%1&quot; anahtarı yok.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, satır %2: %3</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 bir dosya değil.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 okunamıyor: %2.</translation>
    </message>
</context>
<context>
    <name>OwnTransfer</name>
    <message>
        <source>The machine has not ended the last download yet. Wait, then download once more.</source>
        <translation>Makineye son yükleme henüz bitmedi. Bekleyip yeniden yükleyin.</translation>
    </message>
    <message>
        <source>The machine stopped answering: whether it holds %1 is not known. Check it, then download again.</source>
        <translation>Makine yanıt vermeyi kesti: %1 içinde mi, bilinmiyor. Makineyi denetleyip yeniden yükleyin.</translation>
    </message>
    <message>
        <source>%1 is in the machine.</source>
        <translation>%1 makinede.</translation>
    </message>
</context>
<context>
    <name>PickerFacts</name>
    <message>
        <source>Reading %1 ...</source>
        <translation>%1 okunuyor ...</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>Panelin belleği yanıt vermiyor.</translation>
    </message>
    <message>
        <source>A new program.</source>
        <translation>Yeni bir program.</translation>
    </message>
    <message>
        <source>There is no program of this name.</source>
        <translation>Bu adda bir program yok.</translation>
    </message>
    <message>
        <source>This is no program file.</source>
        <translation>Bu bir program dosyası değil.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Okunamıyor: %1.</translation>
    </message>
    <message>
        <source>It is there already.</source>
        <translation>Zaten var.</translation>
    </message>
    <message>
        <source>More than %1 lines: too long to be read here.</source>
        <translation>%1 satırdan fazla: burada okunmak için çok uzun.</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 satır</translation>
    </message>
    <message>
        <source>Reading: %1 %</source>
        <translation>Okunuyor: %1 %</translation>
    </message>
    <message>
        <source>%1 turns, %2 m of wire</source>
        <translation>%1 sarım, %2 m tel</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>Not read to its end: it was stopped.</source>
        <translation>Sonuna kadar okunmadı: durduruldu.</translation>
    </message>
    <message>
        <source>Runs for %1</source>
        <translation>Süre: %1</translation>
    </message>
</context>
<context>
    <name>PickerFitting</name>
    <message>
        <source>Program name</source>
        <translation>Program adı</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programlar</translation>
    </message>
</context>
<context>
    <name>PickerGuard</name>
    <message>
        <source>%1 is now at the end of the name. Press OK once more, or change the name.</source>
        <translation>Adın sonunda artık %1 var. Yeniden Tamam&apos;a basın ya da adı değiştirin.</translation>
    </message>
</context>
<context>
    <name>PickerStrip</name>
    <message>
        <source>Save the program as</source>
        <translation>Programı farklı kaydet</translation>
    </message>
    <message>
        <source>Remove a program</source>
        <translation>Program sil</translation>
    </message>
    <message>
        <source>Open a program</source>
        <translation>Program aç</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Son kullan.</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Bul</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>Adın bir parçası</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Sayfa yukarı</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Sayfa aşağı</translation>
    </message>
    <message>
        <source>%1 of %2 programs</source>
        <translation>%2 programdan %1</translation>
    </message>
    <message>
        <source>Programs: %1</source>
        <translation>Program: %1</translation>
    </message>
    <message>
        <source>The folder is read-only.</source>
        <translation>Klasör salt okunur.</translation>
    </message>
    <message>
        <source>Order: %1</source>
        <translation>Sıra: %1</translation>
    </message>
</context>
<context>
    <name>PickerTable</name>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Değişme</translation>
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
        <translation>PLC yanıt vermiyor: %1 klasörü yok.</translation>
    </message>
    <message>
        <source>The PLC folder is the program directory itself. Choose another one.</source>
        <translation>PLC klasörü program dizininin kendisi. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>The program %1 is larger than the PLC takes (%2 MB).</source>
        <translation>%1 programı PLC&apos;nin alabileceğinden büyük (%2 MB).</translation>
    </message>
    <message>
        <source>The PLC does not take the program: %1.</source>
        <translation>PLC programı almıyor: %1.</translation>
    </message>
    <message>
        <source>What arrived in the PLC cannot be read back: %1.</source>
        <translation>PLC&apos;ye ulaşan geri okunamıyor: %1.</translation>
    </message>
    <message>
        <source>What arrived in the PLC differs from what was sent. It was taken out again; download once more.</source>
        <translation>PLC&apos;ye ulaşan, gönderilenden farklı. Geri alındı; yeniden yükleyin.</translation>
    </message>
    <message>
        <source>The download was stopped before the program in the PLC was compared. Download it once more.</source>
        <translation>Yükleme, PLC&apos;deki program karşılaştırılmadan durduruldu. Yeniden yükleyin.</translation>
    </message>
    <message>
        <source>The copy of %1 has changed since it was shown, and was not sent. Download once more.</source>
        <translation>%1 kopyası gösterildikten sonra değişti, yüklenmedi. Yeniden yükleyin.</translation>
    </message>
    <message>
        <source>%1 is in the PLC, but the PLC does not say that it is stored: %2. Download once more.</source>
        <translation>%1 PLC&apos;de, ama PLC kaydettiğini doğrulamıyor: %2. Yeniden yükleyin.</translation>
    </message>
    <message>
        <source>What is in the PLC as %1 differs from what was sent. Do not run it; download once more.</source>
        <translation>PLC&apos;deki %1 gönderilenden farklı. Çalıştırmayın; yeniden yükleyin.</translation>
    </message>
    <message>
        <source>The last download has not ended yet. Wait, or switch the PLC off and on, then download once more.</source>
        <translation>Son yükleme henüz bitmedi. Bekleyin ya da PLC&apos;yi kapatıp açın, sonra yeniden yükleyin.</translation>
    </message>
    <message>
        <source>The PLC stopped answering: whether it holds %1 is not known. Check it, then download again.</source>
        <translation>PLC yanıt vermeyi kesti: %1 içinde mi, bilinmiyor. PLC&apos;yi denetleyip yeniden yükleyin.</translation>
    </message>
    <message>
        <source>%1 is in the PLC but not compared: the PLC stopped answering. Check the PLC, then download again.</source>
        <translation>%1 PLC&apos;de ama karşılaştırılmadı: PLC yanıt vermeyi kesti. PLC&apos;yi denetleyip yeniden yükleyin.</translation>
    </message>
    <message>
        <source>The PLC stopped answering during the download. Check the PLC and its cable, then download once more.</source>
        <translation>PLC yükleme sırasında yanıt vermeyi kesti. PLC&apos;yi ve kablosunu denetleyip yeniden yükleyin.</translation>
    </message>
</context>
<context>
    <name>ProgramGuard</name>
    <message>
        <source>A program is being loaded. Wait until all of it is here.</source>
        <translation>Bir program açılıyor. Tamamı gelene kadar bekleyin.</translation>
    </message>
    <message>
        <source>the panel&apos;s storage does not answer</source>
        <translation>panelin belleği yanıt vermiyor</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Save without them</source>
        <translation>Bunlarsız kaydet</translation>
    </message>
    <message>
        <source>Save as shown</source>
        <translation>Göründüğü gibi</translation>
    </message>
    <message>
        <source>Other name</source>
        <translation>Başka ad</translation>
    </message>
    <message>
        <source>%1 is not stored: %2. Do not switch off: the whole program is only in the editor.</source>
        <translation>%1 kaydedilmedi: %2. Kapatmayın: programın tamamı yalnız düzenleyicide.</translation>
    </message>
    <message>
        <source>%1 saved, %2 lines.</source>
        <translation>%1 kaydedildi, %2 satır.</translation>
    </message>
    <message>
        <source>%1 has characters that the file cannot hold; they were replaced.</source>
        <translation>%1 içinde dosyanın tutamadığı karakterler var; değiştirildiler.</translation>
    </message>
    <message>
        <source>%1 is on the stick as %2. On the panel it is not stored: %3.</source>
        <translation>%1 bellekte %2 adıyla. Panelde kaydedilmedi: %3.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>Panelin belleği yanıt vermiyor.</translation>
    </message>
    <message>
        <source>%1 is not a program file. Take another name.</source>
        <translation>%1 bir program dosyası değil. Başka bir ad seçin.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Farklı kaydet</translation>
    </message>
    <message>
        <source>Write over it</source>
        <translation>Üzerine yaz</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>%1 is open, with changes that are not saved. They are lost with it.</source>
        <translation>%1 açık ve kaydedilmemiş değişiklikleri var. Onlar da silinir.</translation>
    </message>
    <message>
        <source>Remove it</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>%1 could not be removed: it is still there.</source>
        <translation>%1 silinemedi: hâlâ duruyor.</translation>
    </message>
    <message>
        <source>%1 is there already: %2 lines, of %3. Write this program over it?</source>
        <translation>%1 zaten var: %2 satır, %3 tarihli. Üzerine bu program yazılsın mı?</translation>
    </message>
    <message>
        <source>This program: %1 lines</source>
        <translation>Bu program: %1 satır</translation>
    </message>
</context>
<context>
    <name>ProgramHistory</name>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 yazılamıyor: %2.</translation>
    </message>
    <message>
        <source>This version of %1 is not in the history any more.</source>
        <translation>%1 programının bu sürümü artık geçmişte yok.</translation>
    </message>
    <message>
        <source>This version of %1 is damaged and was not brought back. Try the one before it.</source>
        <translation>%1 programının bu sürümü bozuk, geri alınmadı. Bir öncekini deneyin.</translation>
    </message>
    <message>
        <source>%1 is brought back: %2 %</source>
        <translation>%1 geri alınıyor: %2 %</translation>
    </message>
    <message>
        <source>Stopped. %1 is as it was.</source>
        <translation>Durduruldu. %1 eskisi gibi.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering; %1 was not brought back.</source>
        <translation>Panelin belleği yanıt vermiyor; %1 geri alınmadı.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering: nothing goes into the history any more. Switch the panel off and on.</source>
        <translation>Panelin belleği yanıt vermiyor: geçmişe artık bir şey yazılmıyor. Paneli kapatıp açın.</translation>
    </message>
    <message>
        <source>%1 was not brought back.</source>
        <translation>%1 geri alınmadı.</translation>
    </message>
    <message>
        <source>%1 was not brought back: what it is now cannot be kept in the history first.</source>
        <translation>%1 geri alınmadı: şimdiki hâli önce geçmişe saklanamıyor.</translation>
    </message>
    <message>
        <source>%1 is back as of %2. Open it to see it.</source>
        <translation>%1 geri alındı, %2 tarihli. Görmek için açın.</translation>
    </message>
    <message>
        <source>%1 is back, but it is not certain that it is stored: %2.</source>
        <translation>%1 geri alındı, ama kaydedildiği kesin değil: %2.</translation>
    </message>
    <message>
        <source>%1 was not brought back: it is being written. Try again when that is over.</source>
        <translation>%1 geri alınmadı: şu anda yazılıyor. Bitince yeniden deneyin.</translation>
    </message>
    <message>
        <source>The history has not taken in %1 yet.</source>
        <translation>Geçmiş %1 dosyasını henüz saklamadı.</translation>
    </message>
    <message>
        <source>%1 was not brought back: the last restore has not ended yet. Switch the panel off and on.</source>
        <translation>%1 geri alınmadı: son geri alma henüz bitmedi. Paneli kapatıp açın.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering: the version of %1 is not known. Switch the panel off and on.</source>
        <translation>Panelin belleği yanıt vermeyi kesti: %1 dosyasının sürümü bilinmiyor. Paneli kapatıp açın.</translation>
    </message>
</context>
<context>
    <name>ProgramKeeper</name>
    <message>
        <source>One moment: the history takes in the program first.</source>
        <translation>Bir saniye: geçmiş önce programı saklıyor.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>Yine de</translation>
    </message>
    <message>
        <source>What %1 is now would be lost.</source>
        <translation>%1 dosyasının şimdiki hâli kaybolur.</translation>
    </message>
</context>
<context>
    <name>ProgramName</name>
    <message>
        <source>Give the program a name.</source>
        <translation>Programa bir ad verin.</translation>
    </message>
    <message>
        <source>A name holds no &quot;/&quot;: programs lie in one folder.</source>
        <translation>Adda &quot;/&quot; olmaz: programlar tek bir klasörde durur.</translation>
    </message>
    <message>
        <source>A name that begins with a dot is hidden from the lists. Take another one.</source>
        <translation>Noktayla başlayan ad listelerde görünmez. Başka bir ad seçin.</translation>
    </message>
    <message>
        <source>New program</source>
        <translation>Adsız</translation>
    </message>
</context>
<context>
    <name>ProgramSnapshot</name>
    <message>
        <source>The program %1 cannot be held for the download: %2.</source>
        <translation>%1 programı yükleme için hazır tutulamıyor: %2.</translation>
    </message>
    <message>
        <source>The program %1 is being written. Download it when that is over.</source>
        <translation>%1 programı şu anda yazılıyor. Bitince yükleyin.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering. Switch the panel off and on, then download once more.</source>
        <translation>Panelin belleği yanıt vermiyor. Paneli kapatıp açın, sonra yeniden yükleyin.</translation>
    </message>
</context>
<context>
    <name>ProgramState</name>
    <message>
        <source>Not compared with the file: %1</source>
        <translation>Dosyayla karşılaştırılmadı: %1</translation>
    </message>
    <message>
        <source>Not as in the file: it has characters that cannot be shown, or has changed</source>
        <translation>Dosyadan farklı: gösterilemeyen karakterler var ya da dosya değişti</translation>
    </message>
    <message>
        <source>Not as in the file: %1 lines there, %2 shown</source>
        <translation>Dosyadan farklı: dosyada %1 satır, ekranda %2</translation>
    </message>
    <message>
        <source>Incomplete: %1 lines in the file, %2 shown</source>
        <translation>Eksik: dosyada %1 satır, ekranda %2</translation>
    </message>
    <message>
        <source>%1 is not stored: %2</source>
        <translation>%1 kaydedilmedi: %2</translation>
    </message>
    <message>
        <source>%1 is shown otherwise than the file has it. Saving replaces the file by what is shown.</source>
        <translation>%1 dosyadakinden farklı gösteriliyor. Kaydetmek dosyayı gösterilenle değiştirir.</translation>
    </message>
    <message>
        <source>%1 is not stored: %2. Save it first.</source>
        <translation>%1 kaydedilmedi: %2. Önce kaydedin.</translation>
    </message>
    <message>
        <source>%1 lines in the file, %2 shown: no comments, no empty lines</source>
        <translation>Dosyada %1 satır, ekranda %2: yorumlar, boş satırlar yok</translation>
    </message>
    <message>
        <source>%1 has %2 lines, %3 are shown. Saving takes out its comments and empty lines.</source>
        <translation>%1 dosyasında %2 satır, ekranda %3. Kaydetmek yorumları ve boş satırları siler.</translation>
    </message>
    <message>
        <source>Only a part of %1 is here: saving or sending loses the rest. Open it again, or take another name.</source>
        <translation>%1 yalnız kısmen burada: kaydetmek ya da yüklemek kalanı siler. Yeniden açın ya da başka ad verin.</translation>
    </message>
</context>
<context>
    <name>ProgramVerdict</name>
    <message>
        <source>Nothing found</source>
        <translation>Hiçbir şey bulunmadı</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Hatalar: %1, uyarılar: %2</translation>
    </message>
    <message>
        <source>Not checked to the end</source>
        <translation>Sonuna kadar denetlenmedi</translation>
    </message>
</context>
<context>
    <name>ProgramWalk</name>
    <message>
        <source>Line</source>
        <translation>Satır</translation>
    </message>
</context>
<context>
    <name>RowFile</name>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 yazılamıyor: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 okunamıyor: %2.</translation>
    </message>
    <message>
        <source>%1 is not a text file.</source>
        <translation>%1 bir metin dosyası değil.</translation>
    </message>
</context>
<context>
    <name>RowKeeper</name>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 bir dosya değil.</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 çok büyük.</translation>
    </message>
    <message>
        <source>%1 is missing; what could not be read is %2.</source>
        <translation>%1 yok; okunamayan içerik %2 dosyasında.</translation>
    </message>
    <message>
        <source>%1 is not stored: %2.</source>
        <translation>%1 kaydedilmedi: %2.</translation>
    </message>
    <message>
        <source>%1 is not stored: the file that stands there cannot be put aside: %2.</source>
        <translation>%1 kaydedilmedi: oradaki dosya kenara alınamıyor: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be read: the panel&apos;s storage does not answer.</source>
        <translation>%1 okunamıyor: panelin belleği yanıt vermiyor.</translation>
    </message>
    <message>
        <source>%1 is not stored: the panel&apos;s storage does not answer.</source>
        <translation>%1 kaydedilmedi: panelin belleği yanıt vermiyor.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: nobody knows whether %1 is stored.</source>
        <translation>Panelin belleği yanıt vermiyor: %1 kaydedildi mi, bilinmiyor.</translation>
    </message>
</context>
<context>
    <name>RowText</name>
    <message>
        <source>This is not a text file.</source>
        <translation>Bu bir metin dosyası değil.</translation>
    </message>
    <message>
        <source>Line %1 is not written as CSV.</source>
        <translation>Satır %1 CSV olarak yazılmamış.</translation>
    </message>
    <message>
        <source>Line %1 is not written as JSON of rows.</source>
        <translation>Satır %1 satırlardan oluşan JSON olarak yazılmamış.</translation>
    </message>
</context>
<context>
    <name>Stick</name>
    <message>
        <source>The stick is the panel&apos;s own: plug it into the panel.</source>
        <translation>Bellek panelin kendisinin: panele takın.</translation>
    </message>
    <message>
        <source>Another stick is plugged: %1 is there already.</source>
        <translation>Başka bir bellek takılı: %1 zaten var.</translation>
    </message>
    <message>
        <source>The folder %1, which stands for the stick, cannot be made.</source>
        <translation>Belleğin yerine geçen %1 klasörü oluşturulamıyor.</translation>
    </message>
    <message>
        <source>The marker %1 cannot be made: %2.</source>
        <translation>%1 işareti oluşturulamıyor: %2.</translation>
    </message>
    <message>
        <source>The stick stays out: the mount point %1 is not this program&apos;s to change.</source>
        <translation>Bellek takılmadı: %1 bağlama noktası bu programın değiştirebileceği bir yer değil.</translation>
    </message>
</context>
<context>
    <name>StoreCheck</name>
    <message>
        <source>the panel&apos;s storage stopped answering</source>
        <translation>panelin belleği artık yanıt vermiyor</translation>
    </message>
    <message>
        <source>the file holds something else than the editor</source>
        <translation>dosyadaki, düzenleyicidekinden farklı</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Sonra</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>Save to the stick</source>
        <translation>Belleğe kaydet</translation>
    </message>
    <message>
        <source>the stick stopped answering</source>
        <translation>bellek artık yanıt vermiyor</translation>
    </message>
    <message>
        <source>neither here nor on the stick (%1)</source>
        <translation>ne burada ne bellekte (%1)</translation>
    </message>
    <message>
        <source>neither here nor on the stick, which is out</source>
        <translation>ne burada ne de takılı olmayan bellekte</translation>
    </message>
    <message>
        <source>neither here nor on the stick, whose file differs</source>
        <translation>ne burada ne de dosyası farklı olan bellekte</translation>
    </message>
    <message>
        <source>%1 is not stored. The whole program is only in the editor.</source>
        <translation>%1 kaydedilmedi. Programın tamamı yalnız düzenleyicide.</translation>
    </message>
</context>
<context>
    <name>UnsavedList</name>
    <message>
        <source>%1, %2, rows: %3</source>
        <translation>%1, %2, satır: %3</translation>
    </message>
</context>
<context>
    <name>UnsavedOffer</name>
    <message>
        <source>Unsaved work of an earlier run cannot be read. It was put aside: %1.</source>
        <translation>Önceki çalışmanın kaydedilmemiş işi okunamıyor. Kenara alındı: %1.</translation>
    </message>
    <message>
        <source>%1 was not brought back. It is offered again at the next start.</source>
        <translation>%1 geri alınmadı. Sonraki açılışta yeniden sunulur.</translation>
    </message>
    <message>
        <source>%1: brought back, not stored yet.</source>
        <translation>%1: geri alındı, henüz kaydedilmedi.</translation>
    </message>
    <message>
        <source>%1 had not been loaded whole. What was not saved of it is a new program now.</source>
        <translation>%1 tam açılmamıştı. Kaydedilmemiş kısmı artık yeni bir program.</translation>
    </message>
    <message>
        <source>%1 is not there any more. What was not saved of it is a new program now.</source>
        <translation>%1 artık yok. Kaydedilmemiş içeriği artık yeni bir program.</translation>
    </message>
    <message>
        <source>%1: brought back, not saved yet. The file has changed since then: Save covers that.</source>
        <translation>%1: geri alındı, henüz kaydedilmedi. Dosya o zamandan beri değişti: &quot;Kaydet&quot; üzerine yazar.</translation>
    </message>
    <message>
        <source>%1: brought back, not saved yet.</source>
        <translation>%1: geri alındı, henüz kaydedilmedi.</translation>
    </message>
    <message>
        <source>%1, %2, lines: %3</source>
        <translation>%1, %2, satır: %3</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>Kaydedilmemiş iş</translation>
    </message>
    <message>
        <source>Throw the unsaved work away for good?</source>
        <translation>Kaydedilmemiş iş tümüyle atılsın mı?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Throw away</source>
        <translation>At</translation>
    </message>
    <message>
        <source>This was not saved when the panel ended. Bring it back?</source>
        <translation>Panel kapandığında bunlar kaydedilmemişti. Geri alınsın mı?</translation>
    </message>
    <message>
        <source>Keep for later</source>
        <translation>Sonraya sakla</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Geri getir</translation>
    </message>
</context>
<context>
    <name>UnsavedWork</name>
    <message>
        <source>the storage does not answer</source>
        <translation>panelin belleği yanıt vermiyor</translation>
    </message>
    <message>
        <source>What is not saved cannot be kept for a power cut: %1. Save soon.</source>
        <translation>Kaydedilmeyenler elektrik kesintisine karşı saklanamıyor: %1. Kısa sürede kaydedin.</translation>
    </message>
</context>
<context>
    <name>WindingReview</name>
    <message>
        <source>%1 is not a program file.</source>
        <translation>%1 bir program dosyası değil.</translation>
    </message>
    <message>
        <source>The program %1 cannot be read: %2.</source>
        <translation>%1 programı okunamıyor: %2.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering. Switch the panel off and on, then try once more.</source>
        <translation>Panelin belleği yanıt vermiyor. Paneli kapatıp açın, sonra yeniden deneyin.</translation>
    </message>
</context>
</TS>
