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
        <source>%1 is in the PLC as it was shown, %2. On the panel it has changed since then: download it again to send the new one.</source>
        <translation>%1 gösterildiği gibi PLC&apos;de, %2. Panelde o zamandan beri değişti: yenisi için yeniden yükleyin.</translation>
    </message>
    <message>
        <source>%1 is in the PLC as it was shown, %2. On the panel it is gone.</source>
        <translation>%1 gösterildiği gibi PLC&apos;de, %2. Panelde artık yok.</translation>
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
        <source>The transfer would not take these file names for what they are. Nothing is copied or deleted until they are renamed.</source>
        <translation>Aktarım bu dosya adlarını yanlış anlar. Adlar değiştirilene kadar hiçbir şey kopyalanmaz veya silinmez.</translation>
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
        <source>%1 What %2 is now would be lost.</source>
        <translation>%1 %2 dosyasının şimdiki hâli kaybolur.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>Yine de</translation>
    </message>
</context>
<context>
    <name>PickerGuard</name>
    <message>
        <source>%1 is added to the name. Press OK to take it, or take it away again.</source>
        <translation>Ada %1 eklendi. Kabul için Tamam&apos;a basın ya da silin.</translation>
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
        <source>The PLC stopped answering in the middle of the download. Check the PLC and its cable, then download once more.</source>
        <translation>PLC yükleme sırasında yanıt vermeyi kesti. PLC&apos;yi ve kablosunu denetleyip yeniden yükleyin.</translation>
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
        <source>The PLC has not said yet what became of the last download. Wait for it, or switch the PLC off and on, then download once more.</source>
        <translation>PLC son yüklemenin sonucunu henüz bildirmedi. Bekleyin ya da PLC&apos;yi kapatıp açın, sonra yeniden yükleyin.</translation>
    </message>
    <message>
        <source>The PLC stopped answering while it took %1: which of the two it holds is not known. Check the PLC, then download once more.</source>
        <translation>PLC %1 alınırken yanıt vermeyi kesti: eskisi mi yenisi mi içinde, bilinmiyor. PLC&apos;yi denetleyip yeniden yükleyin.</translation>
    </message>
    <message>
        <source>%1 is in the PLC, but the PLC stopped answering before it was compared. Check the PLC, then download once more.</source>
        <translation>%1 PLC&apos;de, ama PLC karşılaştırmadan önce yanıt vermeyi kesti. PLC&apos;yi denetleyip yeniden yükleyin.</translation>
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
        <source>%1 is there already: %2 lines, of %3. Write this program over it, %4 lines?</source>
        <translation>%1 zaten var: %2 satır, %3 tarihli. Üzerine bu program yazılsın mı, %4 satır?</translation>
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
        <source>%1 was not brought back: the panel&apos;s storage has not ended the last restore yet. Switch the panel off and on.</source>
        <translation>%1 geri alınmadı: panelin belleği son geri almayı henüz bitirmedi. Paneli kapatıp açın.</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering while %1 was brought back: which version it is now is not known. Switch the panel off and on.</source>
        <translation>%1 geri alınırken panelin belleği yanıt vermeyi kesti: şimdi hangi sürüm olduğu bilinmiyor. Paneli kapatıp açın.</translation>
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
        <source>%1 What %2 is now would be lost.</source>
        <translation>%1 %2 dosyasının şimdiki hâli kaybolur.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>Yine de</translation>
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
        <source>%1 lines in the file, %2 shown: comments and empty lines are left out</source>
        <translation>Dosyada %1 satır, ekranda %2: yorumlar ve boş satırlar atlandı</translation>
    </message>
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
        <source>%1 has %2 lines in the file, %3 are shown. Saving takes the comments and empty lines out of the file.</source>
        <translation>%1 dosyada %2 satır, ekranda %3. Kaydetmek yorumları ve boş satırları dosyadan siler.</translation>
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
        <source>Only a part of %1 is here: saving or sending it would lose the rest. Open it again, or save the part under another name.</source>
        <translation>%1 programının yalnız bir kısmı burada: kaydetmek ya da yüklemek kalanını kaybettirir. Yeniden açın ya da kısmı başka adla kaydedin.</translation>
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
        <source>%1 is not stored: %2. The whole program is only in the editor.</source>
        <translation>%1 kaydedilmedi: %2. Programın tamamı yalnız düzenleyicide.</translation>
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
        <source>New program</source>
        <translation>Adsız</translation>
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
        <translation>Geri al</translation>
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
</TS>
