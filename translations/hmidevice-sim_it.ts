<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>KeypadCheck</name>
    <message>
        <source>Nothing entered</source>
        <translation>Nessun valore</translation>
    </message>
    <message>
        <source>Not complete</source>
        <translation>Incompleto</translation>
    </message>
    <message>
        <source>Not allowed</source>
        <translation>Non ammesso</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>Non è un numero</translation>
    </message>
    <message>
        <source>Outside the limits</source>
        <translation>Fuori dai limiti</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>Non è un intero</translation>
    </message>
    <message>
        <source>Too many decimals</source>
        <translation>Troppi decimali</translation>
    </message>
</context>
<context>
    <name>KeypadFrame</name>
    <message>
        <source>Backspace</source>
        <translation>Cancella indietro</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Azzera</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Cursore a sinistra</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Cursore a destra</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>+/-</source>
        <translation>+/-</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>#+=</source>
        <translation>#+=</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
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
        <translation>Era vuoto</translation>
    </message>
    <message>
        <source>Was: %1</source>
        <translation>Era: %1</translation>
    </message>
    <message>
        <source>ABC</source>
        <translation>ABC</translation>
    </message>
    <message>
        <source>OK, next line</source>
        <translation>OK, riga seguente</translation>
    </message>
    <message>
        <source>GXY</source>
        <translation>GXY</translation>
    </message>
</context>
</TS>
