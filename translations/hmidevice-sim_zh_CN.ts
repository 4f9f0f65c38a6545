<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>KeyNames</name>
    <message>
        <source>Point</source>
        <translation>小数点</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>逗号</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>分号</translation>
    </message>
    <message>
        <source>Colon</source>
        <translation>冒号</translation>
    </message>
    <message>
        <source>Minus</source>
        <translation>减号</translation>
    </message>
    <message>
        <source>Underscore</source>
        <translation>下划线</translation>
    </message>
    <message>
        <source>Plus</source>
        <translation>加号</translation>
    </message>
    <message>
        <source>Equals</source>
        <translation>等号</translation>
    </message>
    <message>
        <source>Asterisk</source>
        <translation>星号</translation>
    </message>
    <message>
        <source>Slash</source>
        <translation>斜杠</translation>
    </message>
    <message>
        <source>Backslash</source>
        <translation>反斜杠</translation>
    </message>
    <message>
        <source>Left parenthesis</source>
        <translation>左圆括号</translation>
    </message>
    <message>
        <source>Right parenthesis</source>
        <translation>右圆括号</translation>
    </message>
    <message>
        <source>Left bracket</source>
        <translation>左方括号</translation>
    </message>
    <message>
        <source>Right bracket</source>
        <translation>右方括号</translation>
    </message>
    <message>
        <source>Left brace</source>
        <translation>左花括号</translation>
    </message>
    <message>
        <source>Right brace</source>
        <translation>右花括号</translation>
    </message>
    <message>
        <source>Less than</source>
        <translation>小于号</translation>
    </message>
    <message>
        <source>Greater than</source>
        <translation>大于号</translation>
    </message>
    <message>
        <source>Exclamation mark</source>
        <translation>感叹号</translation>
    </message>
    <message>
        <source>Question mark</source>
        <translation>问号</translation>
    </message>
    <message>
        <source>Number sign</source>
        <translation>井号</translation>
    </message>
    <message>
        <source>Dollar</source>
        <translation>美元符号</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>百分号</translation>
    </message>
    <message>
        <source>Ampersand</source>
        <translation>和号</translation>
    </message>
    <message>
        <source>At sign</source>
        <translation>At 符号</translation>
    </message>
    <message>
        <source>Tilde</source>
        <translation>波浪号</translation>
    </message>
    <message>
        <source>Caret</source>
        <translation>脱字符</translation>
    </message>
    <message>
        <source>Apostrophe</source>
        <translation>撇号</translation>
    </message>
    <message>
        <source>Shift, locked</source>
        <translation>大写，已锁定</translation>
    </message>
    <message>
        <source>Shift, for one letter</source>
        <translation>大写，仅一个字母</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>大写</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>改变正负号</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>字母</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Words of a line</source>
        <translation>程序行的字</translation>
    </message>
    <message>
        <source>Capitals</source>
        <translation>大写字母</translation>
    </message>
    <message>
        <source>Small letters</source>
        <translation>小写字母</translation>
    </message>
    <message>
        <source>Digits and signs</source>
        <translation>数字和符号</translation>
    </message>
</context>
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
        <source>Not a whole number</source>
        <translation>不是整数</translation>
    </message>
    <message>
        <source>Too many decimals</source>
        <translation>小数位过多</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>至少 %1</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>最多 %1</translation>
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
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数值</translation>
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
        <translation>至少 %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>最多 %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
</context>
</TS>
