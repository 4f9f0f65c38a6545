<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>ConnEditor</name>
    <message>
        <source>Connect Table</source>
        <translation>Bağlantı tablosu</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
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
        <translation>CPU adr.</translation>
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
        <translation>Yol: </translation>
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
        <translation>Seç</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
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
        <translation>&gt;Sil</translation>
    </message>
    <message>
        <source>Del&lt;</source>
        <translation>Sil&lt;</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>Used Space </source>
        <translation>Kullanılan </translation>
    </message>
    <message>
        <source>Left Space </source>
        <translation> Boş </translation>
    </message>
    <message>
        <source> Usb not found!</source>
        <translation> USB bellek yok!</translation>
    </message>
    <message>
        <source>Hmi Delete</source>
        <translation>Panelden sil</translation>
    </message>
    <message>
        <source>Usb Delete</source>
        <translation>USB bellekten sil</translation>
    </message>
    <message>
        <source>Copy to Usb</source>
        <translation>USB belleğe kopyala</translation>
    </message>
    <message>
        <source>No file Selected!</source>
        <translation>Dosya seçilmedi!</translation>
    </message>
    <message>
        <source>Usb not found!</source>
        <translation>USB bellek bulunamadı!</translation>
    </message>
    <message>
        <source> existed in Usb,
 do you want to cover it?</source>
        <translation> USB bellekte zaten var.
Üzerine yazılsın mı?</translation>
    </message>
    <message>
        <source>Copy to Hmi</source>
        <translation>Panele kopyala</translation>
    </message>
    <message>
        <source>No file Selected.</source>
        <translation>Dosya seçilmedi.</translation>
    </message>
    <message>
        <source>Usb not found.</source>
        <translation>USB bellek bulunamadı.</translation>
    </message>
    <message>
        <source> existed in Hmi,
 do you want to cover it?</source>
        <translation> panelde zaten var.
Üzerine yazılsın mı?</translation>
    </message>
    <message>
        <source>Copy file failed!</source>
        <translation>Dosya kopyalanamadı!</translation>
    </message>
    <message>
        <source>Can&apos;t cover this file!</source>
        <translation>Bu dosyanın üzerine yazılamıyor!</translation>
    </message>
    <message>
        <source>Are you sure to delete </source>
        <translation>Silinecek dosya, emin misiniz: </translation>
    </message>
    <message>
        <source>Can&apos;t delete this file.</source>
        <translation>Bu dosya silinemiyor.</translation>
    </message>
    <message>
        <source>Font file can not be a Dir!</source>
        <translation>Klasör kopyalanamaz!</translation>
    </message>
    <message>
        <source>Not enough Space!</source>
        <translation>Yeterli alan yok!</translation>
    </message>
    <message>
        <source>Unexpected error!</source>
        <translation>Beklenmeyen hata!</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>İşleniyor...</translation>
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
        <translation>Corvane hakkında</translation>
    </message>
</context>
<context>
    <name>WCopyDialog</name>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Current line:</source>
        <translation>Geçerli satır:</translation>
    </message>
    <message>
        <source>Copy count:</source>
        <translation>Satır sayısı:</translation>
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
    <name>WFileDialog</name>
    <message>
        <source>Name:</source>
        <translation>Ad:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
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
        <translation>A&amp;ranan:</translation>
    </message>
    <message>
        <source>Replace &amp;what:</source>
        <translation>&amp;Yeni metin:</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>Büyük/küçük &amp;harf ayrımı</translation>
    </message>
    <message>
        <source>Search &amp;backward</source>
        <translation>&amp;Geriye doğru ara</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Bul</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Değiştir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Bul</translation>
    </message>
</context>
<context>
    <name>WMMainWindow</name>
    <message>
        <source>Row:</source>
        <translation>Satır:</translation>
    </message>
    <message>
        <source>Col:</source>
        <translation>Sütun:</translation>
    </message>
    <message>
        <source>Count:</source>
        <translation>Toplam:</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Dosya aç</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Uygulama</translation>
    </message>
    <message>
        <source>The document has been existed.
Do you want to open it again?</source>
        <translation>Bu program zaten açık.
Yeniden açılsın mı?</translation>
    </message>
    <message>
        <source>Remove file</source>
        <translation>Dosya sil</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>Dosya yok!</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>%1 silinsin mi?</translation>
    </message>
    <message>
        <source>Success to remove file.</source>
        <translation>Dosya silindi.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Farklı kaydet</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Yeni</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>RM</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>SaveAs</source>
        <translation>Farklı</translation>
    </message>
    <message>
        <source>I/E</source>
        <translation>Aktar</translation>
    </message>
    <message>
        <source>Morphology</source>
        <translation>Sözcükler</translation>
    </message>
    <message>
        <source>Syntax</source>
        <translation>Sözdizimi</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Derle</translation>
    </message>
    <message>
        <source>D/L</source>
        <translation>Yükle</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Göster</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
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
        <source>Ins</source>
        <translation>Satır +</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Satır −</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Etiket</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Yapıştır</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Bul</translation>
    </message>
    <message>
        <source>Remove G File!</source>
        <translation>G kodu dosyasını sil</translation>
    </message>
    <message>
        <source>Import/Export G File.</source>
        <translation>G kodu dosyalarını al/ver</translation>
    </message>
    <message>
        <source>Preproccess</source>
        <translation>Ön işlem</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Hazır</translation>
    </message>
    <message>
        <source>The document has been modified.
Do you want to save your changes?</source>
        <translation>Program değiştirildi.
Değişiklikler kaydedilsin mi?</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>%1 dosyası okunamıyor:
%2.</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>%1 dosyasına yazılamıyor:
%2.</translation>
    </message>
    <message>
        <source>%1[*] - %2</source>
        <translation>%1[*] - %2</translation>
    </message>
    <message>
        <source>It is a device or a pipe, not a file</source>
        <translation>Bu bir aygıt ya da boru, dosya değil</translation>
    </message>
</context>
</TS>
