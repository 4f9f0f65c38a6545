<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>KeyNames</name>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgola</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Punto e virgola</translation>
    </message>
    <message>
        <source>Colon</source>
        <translation>Due punti</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>Meno</translation>
    </message>
    <message>
        <source>Underscore</source>
        <translation>Trattino basso</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>Più</translation>
    </message>
    <message>
        <source>Equals</source>
        <translation>Uguale</translation>
    </message>
    <message>
        <source>Asterisk</source>
        <translation>Asterisco</translation>
    </message>
    <message>
        <source>Slash</source>
        <translation>Barra</translation>
    </message>
    <message>
        <source>Backslash</source>
        <translation>Barra rovesciata</translation>
    </message>
    <message>
        <source>Left parenthesis</source>
        <translation>Parentesi tonda aperta</translation>
    </message>
    <message>
        <source>Right parenthesis</source>
        <translation>Parentesi tonda chiusa</translation>
    </message>
    <message>
        <source>Left bracket</source>
        <translation>Parentesi quadra aperta</translation>
    </message>
    <message>
        <source>Right bracket</source>
        <translation>Parentesi quadra chiusa</translation>
    </message>
    <message>
        <source>Left brace</source>
        <translation>Parentesi graffa aperta</translation>
    </message>
    <message>
        <source>Right brace</source>
        <translation>Parentesi graffa chiusa</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>Minore di</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>Maggiore di</translation>
    </message>
    <message>
        <source>Exclamation mark</source>
        <translation>Punto esclamativo</translation>
    </message>
    <message>
        <source>Question mark</source>
        <translation>Punto interrogativo</translation>
    </message>
    <message>
        <source>Number sign</source>
        <translation>Cancelletto</translation>
    </message>
    <message>
        <source>Dollar</source>
        <translation>Dollaro</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Percento</translation>
    </message>
    <message>
        <source>Ampersand</source>
        <translation>E commerciale</translation>
    </message>
    <message>
        <source>At sign</source>
        <translation>Chiocciola</translation>
    </message>
    <message>
        <source>Tilde</source>
        <translation>Tilde</translation>
    </message>
    <message>
        <source>Caret</source>
        <translation>Accento circonflesso</translation>
    </message>
    <message>
        <source>Apostrophe</source>
        <translation>Apostrofo</translation>
    </message>
    <message>
        <source>Shift, locked</source>
        <translation>Maiusc, bloccato</translation>
    </message>
    <message>
        <source>Shift, for one letter</source>
        <translation>Maiusc, per una lettera</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Cambia il segno</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Lettere</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Simboli</translation>
    </message>
    <message>
        <source>Words of a line</source>
        <translation>Parole di una riga</translation>
    </message>
    <message>
        <source>Capitals</source>
        <translation>Maiuscole</translation>
    </message>
    <message>
        <source>Small letters</source>
        <translation>Minuscole</translation>
    </message>
    <message>
        <source>Digits and signs</source>
        <translation>Cifre e segni</translation>
    </message>
</context>
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
        <source>Not a whole number</source>
        <translation>Non è un intero</translation>
    </message>
    <message>
        <source>Too many decimals</source>
        <translation>Troppi decimali</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Almeno %1</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>Al massimo %1</translation>
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
    <message>
        <source>Line</source>
        <translation>Riga</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
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
        <translation>almeno %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>al massimo %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
</context>
</TS>
