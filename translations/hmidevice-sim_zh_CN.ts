<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>KeypadCheck</name>
    <message>
        <source>Nothing entered</source>
        <translation>未输入</translation>
    </message>
    <message>
        <source>Not complete</source>
        <translation>不完整</translation>
    </message>
    <message>
        <source>Not allowed</source>
        <translation>不允许</translation>
    </message>
    <message>
        <source>Not a number</source>
        <translation>不是数字</translation>
    </message>
    <message>
        <source>Outside the limits</source>
        <translation>超出范围</translation>
    </message>
    <message>
        <source>Not a whole number</source>
        <translation>不是整数</translation>
    </message>
    <message>
        <source>Too many decimals</source>
        <translation>小数位过多</translation>
    </message>
</context>
<context>
    <name>KeypadFrame</name>
    <message>
        <source>Backspace</source>
        <translation>退格</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>光标左移</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>光标右移</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>+/-</source>
        <translation>+/-</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>大写</translation>
    </message>
    <message>
        <source>#+=</source>
        <translation>#+=</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>abc</source>
        <translation>abc</translation>
    </message>
    <message>
        <source>Was empty</source>
        <translation>原值为空</translation>
    </message>
    <message>
        <source>Was: %1</source>
        <translation>原值: %1</translation>
    </message>
    <message>
        <source>ABC</source>
        <translation>ABC</translation>
    </message>
    <message>
        <source>OK, next line</source>
        <translation>确定，下一行</translation>
    </message>
    <message>
        <source>GXY</source>
        <translation>GXY</translation>
    </message>
</context>
</TS>
