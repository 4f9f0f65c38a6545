<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>KeyNames</name>
    <message>
        <source>Point</source>
        <translation>Nokta</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgül</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Noktalı virgül</translation>
    </message>
    <message>
        <source>Colon</source>
        <translation>İki nokta</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Eksi</translation>
    </message>
    <message>
        <source>Underscore</source>
        <translation>Alt çizgi</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Artı</translation>
    </message>
    <message>
        <source>Equals</source>
        <translation>Eşittir</translation>
    </message>
    <message>
        <source>Asterisk</source>
        <translation>Yıldız</translation>
    </message>
    <message>
        <source>Slash</source>
        <translation>Eğik çizgi</translation>
    </message>
    <message>
        <source>Backslash</source>
        <translation>Ters eğik çizgi</translation>
    </message>
    <message>
        <source>Left parenthesis</source>
        <translation>Sol parantez</translation>
    </message>
    <message>
        <source>Right parenthesis</source>
        <translation>Sağ parantez</translation>
    </message>
    <message>
        <source>Left bracket</source>
        <translation>Sol köşeli parantez</translation>
    </message>
    <message>
        <source>Right bracket</source>
        <translation>Sağ köşeli parantez</translation>
    </message>
    <message>
        <source>Left brace</source>
        <translation>Sol süslü parantez</translation>
    </message>
    <message>
        <source>Right brace</source>
        <translation>Sağ süslü parantez</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Küçüktür</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Büyüktür</translation>
    </message>
    <message>
        <source>Exclamation mark</source>
        <translation>Ünlem işareti</translation>
    </message>
    <message>
        <source>Question mark</source>
        <translation>Soru işareti</translation>
    </message>
    <message>
        <source>Number sign</source>
        <translation>Diyez</translation>
    </message>
    <message>
        <source>Dollar</source>
        <translation>Dolar</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Yüzde</translation>
    </message>
    <message>
        <source>Ampersand</source>
        <translation>Ve işareti</translation>
    </message>
    <message>
        <source>At sign</source>
        <translation>Et işareti</translation>
    </message>
    <message>
        <source>Tilde</source>
        <translation>Tilde</translation>
    </message>
    <message>
        <source>Caret</source>
        <translation>Şapka işareti</translation>
    </message>
    <message>
        <source>Apostrophe</source>
        <translation>Kesme işareti</translation>
    </message>
    <message>
        <source>Shift, locked</source>
        <translation>Shift, kilitli</translation>
    </message>
    <message>
        <source>Shift, for one letter</source>
        <translation>Shift, bir harf için</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>İşareti değiştir</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Harfler</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Simgeler</translation>
    </message>
    <message>
        <source>Words of a line</source>
        <translation>Satırın kelimeleri</translation>
    </message>
    <message>
        <source>Capitals</source>
        <translation>Büyük harfler</translation>
    </message>
    <message>
        <source>Small letters</source>
        <translation>Küçük harfler</translation>
    </message>
    <message>
        <source>Digits and signs</source>
        <translation>Rakamlar ve işaretler</translation>
    </message>
</context>
<context>
    <name>KeypadCheck</name>
    <message>
        <source>Nothing entered</source>
        <translation>Giriş yok</translation>
    </message>
    <message>
        <source>Not complete</source>
        <translation>Eksik</translation>
    </message>
    <message>
        <source>Not allowed</source>
        <translation>İzin verilmiyor</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Sayı değil</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>Tam sayı değil</translation>
    </message>
    <message>
        <source>Too many decimals</source>
        <translation>Çok fazla ondalık</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>En az %1</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>En çok %1</translation>
    </message>
</context>
<context>
    <name>KeypadFrame</name>
    <message>
        <source>Backspace</source>
        <translation>Geri sil</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>İmleç sola</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>İmleç sağa</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Boşluk</translation>
    </message>
    <message>
        <source>+/-</source>
        <translation>+/-</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>#+=</source>
        <translation>#+=</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Onay</translation>
    </message>
    <message>
        <source>abc</source>
        <translation>abc</translation>
    </message>
    <message>
        <source>Was empty</source>
        <translation>Boştu</translation>
    </message>
    <message>
        <source>Was: %1</source>
        <translation>Eski: %1</translation>
    </message>
    <message>
        <source>ABC</source>
        <translation>ABC</translation>
    </message>
    <message>
        <source>OK, next line</source>
        <translation>Onay, sonraki satır</translation>
    </message>
    <message>
        <source>GXY</source>
        <translation>GXY</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Satır</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Sayı</translation>
    </message>
    <message>
        <source>123</source>
        <translation>123</translation>
    </message>
</context>
<context>
    <name>KeypadLimits</name>
    <message>
        <source>at least %1</source>
        <translation>en az %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>en çok %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ile %2 arası</translation>
    </message>
</context>
</TS>
