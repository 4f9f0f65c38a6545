<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
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
        <source>Outside the limits</source>
        <translation>Sınırların dışında</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>Tam sayı değil</translation>
    </message>
    <message>
        <source>Too many decimals</source>
        <translation>Çok fazla ondalık</translation>
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
</context>
</TS>
