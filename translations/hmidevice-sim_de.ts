<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>KeyNames</name>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Semikolon</translation>
    </message>
    <message>
        <source>Colon</source>
        <translation>Doppelpunkt</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Minus</translation>
    </message>
    <message>
        <source>Underscore</source>
        <translation>Unterstrich</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Equals</source>
        <translation>Gleich</translation>
    </message>
    <message>
        <source>Asterisk</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>Slash</source>
        <translation>Schrägstrich</translation>
    </message>
    <message>
        <source>Backslash</source>
        <translation>Umgekehrter Schrägstrich</translation>
    </message>
    <message>
        <source>Left parenthesis</source>
        <translation>Runde Klammer auf</translation>
    </message>
    <message>
        <source>Right parenthesis</source>
        <translation>Runde Klammer zu</translation>
    </message>
    <message>
        <source>Left bracket</source>
        <translation>Eckige Klammer auf</translation>
    </message>
    <message>
        <source>Right bracket</source>
        <translation>Eckige Klammer zu</translation>
    </message>
    <message>
        <source>Left brace</source>
        <translation>Geschweifte Klammer auf</translation>
    </message>
    <message>
        <source>Right brace</source>
        <translation>Geschweifte Klammer zu</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Kleiner als</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Größer als</translation>
    </message>
    <message>
        <source>Exclamation mark</source>
        <translation>Ausrufezeichen</translation>
    </message>
    <message>
        <source>Question mark</source>
        <translation>Fragezeichen</translation>
    </message>
    <message>
        <source>Number sign</source>
        <translation>Raute</translation>
    </message>
    <message>
        <source>Dollar</source>
        <translation>Dollar</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Ampersand</source>
        <translation>Und-Zeichen</translation>
    </message>
    <message>
        <source>At sign</source>
        <translation>At-Zeichen</translation>
    </message>
    <message>
        <source>Tilde</source>
        <translation>Tilde</translation>
    </message>
    <message>
        <source>Caret</source>
        <translation>Zirkumflex</translation>
    </message>
    <message>
        <source>Apostrophe</source>
        <translation>Apostroph</translation>
    </message>
    <message>
        <source>Shift, locked</source>
        <translation>Umschalt, gesperrt</translation>
    </message>
    <message>
        <source>Shift, for one letter</source>
        <translation>Umschalt, für einen Buchstaben</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Vorzeichen wechseln</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Words of a line</source>
        <translation>Wörter einer Zeile</translation>
    </message>
    <message>
        <source>Capitals</source>
        <translation>Großbuchstaben</translation>
    </message>
    <message>
        <source>Small letters</source>
        <translation>Kleinbuchstaben</translation>
    </message>
    <message>
        <source>Digits and signs</source>
        <translation>Ziffern und Zeichen</translation>
    </message>
</context>
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
        <source>Not a whole number</source>
        <translation>Keine ganze Zahl</translation>
    </message>
    <message>
        <source>Too many decimals</source>
        <translation>Zu viele Nachkommastellen</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Mindestens %1</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>Höchstens %1</translation>
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
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
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
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
</context>
</TS>
