<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>KeypadCheck</name>
    <message>
        <source>Nothing entered</source>
        <translation>Nichts eingegeben</translation>
    </message>
    <message>
        <source>Not complete</source>
        <translation>Nicht vollständig</translation>
    </message>
    <message>
        <source>Not allowed</source>
        <translation>Nicht zulässig</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Keine Zahl</translation>
    </message>
    <message>
        <source>Outside the limits</source>
        <translation>Außerhalb der Grenzen</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>Keine ganze Zahl</translation>
    </message>
    <message>
        <source>Too many decimals</source>
        <translation>Zu viele Nachkommastellen</translation>
    </message>
</context>
<context>
    <name>KeypadFrame</name>
    <message>
        <source>Backspace</source>
        <translation>Zeichen zurück</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Cursor links</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Cursor rechts</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>+/-</source>
        <translation>+/-</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>#+=</source>
        <translation>#+=</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbruch</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>abc</source>
        <translation>abc</translation>
    </message>
    <message>
        <source>Was empty</source>
        <translation>War leer</translation>
    </message>
    <message>
        <source>Was: %1</source>
        <translation>War: %1</translation>
    </message>
    <message>
        <source>ABC</source>
        <translation>ABC</translation>
    </message>
    <message>
        <source>OK, next line</source>
        <translation>OK, nächste Zeile</translation>
    </message>
    <message>
        <source>GXY</source>
        <translation>GXY</translation>
    </message>
</context>
</TS>
