<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ConnEditor</name>
    <message>
        <source>Connect Table</source>
        <translation>连接表</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cid</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>CPU Addr</source>
        <translation>CPU 地址</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>波特率</translation>
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
        <translation>路径: </translation>
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
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ImportManage</name>
    <message>
        <source>Hmi</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Usb</source>
        <translation>U 盘</translation>
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
        <translation>&gt;删除</translation>
    </message>
    <message>
        <source>Del&lt;</source>
        <translation>删除&lt;</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Used Space </source>
        <translation>已用 </translation>
    </message>
    <message>
        <source>Left Space </source>
        <translation> 剩余 </translation>
    </message>
    <message>
        <source> Usb not found!</source>
        <translation> 未找到 U 盘!</translation>
    </message>
    <message>
        <source>Hmi Delete</source>
        <translation>从面板删除</translation>
    </message>
    <message>
        <source>Usb Delete</source>
        <translation>从 U 盘删除</translation>
    </message>
    <message>
        <source>Copy to Usb</source>
        <translation>复制到 U 盘</translation>
    </message>
    <message>
        <source>No file Selected!</source>
        <translation>未选择文件!</translation>
    </message>
    <message>
        <source>Usb not found!</source>
        <translation>未找到 U 盘!</translation>
    </message>
    <message>
        <source> existed in Usb,
 do you want to cover it?</source>
        <translation> 在 U 盘中已存在,
是否覆盖?</translation>
    </message>
    <message>
        <source>Copy to Hmi</source>
        <translation>复制到面板</translation>
    </message>
    <message>
        <source>No file Selected.</source>
        <translation>未选择文件。</translation>
    </message>
    <message>
        <source>Usb not found.</source>
        <translation>未找到 U 盘。</translation>
    </message>
    <message>
        <source> existed in Hmi,
 do you want to cover it?</source>
        <translation> 在面板中已存在,
是否覆盖?</translation>
    </message>
    <message>
        <source>Copy file failed!</source>
        <translation>复制文件失败!</translation>
    </message>
    <message>
        <source>Can&apos;t cover this file!</source>
        <translation>无法覆盖此文件!</translation>
    </message>
    <message>
        <source>Are you sure to delete </source>
        <translation>确定要删除 </translation>
    </message>
    <message>
        <source>Can&apos;t delete this file.</source>
        <translation>无法删除此文件。</translation>
    </message>
    <message>
        <source>Font file can not be a Dir!</source>
        <translation>不能复制文件夹!</translation>
    </message>
    <message>
        <source>Not enough Space!</source>
        <translation>空间不足!</translation>
    </message>
    <message>
        <source>Unexpected error!</source>
        <translation>意外错误!</translation>
    </message>
    <message>
        <source>Processing...</source>
        <translation>正在处理...</translation>
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
        <translation>关于 Corvane</translation>
    </message>
</context>
<context>
    <name>WCopyDialog</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Current line:</source>
        <translation>当前行:</translation>
    </message>
    <message>
        <source>Copy count:</source>
        <translation>复制行数:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>WFileDialog</name>
    <message>
        <source>Name:</source>
        <translation>名称:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
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
        <translation>查找内容(&amp;N):</translation>
    </message>
    <message>
        <source>Replace &amp;what:</source>
        <translation>替换为(&amp;P):</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <translation>区分大小写(&amp;C)</translation>
    </message>
    <message>
        <source>Search &amp;backward</source>
        <translation>向上查找(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>查找(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
</context>
<context>
    <name>WMMainWindow</name>
    <message>
        <source>Row:</source>
        <translation>行:</translation>
    </message>
    <message>
        <source>Col:</source>
        <translation>列:</translation>
    </message>
    <message>
        <source>Count:</source>
        <translation>总行数:</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>The document has been existed.
Do you want to open it again?</source>
        <translation>该程序已经打开。
是否重新打开?</translation>
    </message>
    <message>
        <source>Remove file</source>
        <translation>删除文件</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>文件不存在!</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>删除 %1?</translation>
    </message>
    <message>
        <source>Success to remove file.</source>
        <translation>文件已删除。</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>RM</source>
        <translation>删文件</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>SaveAs</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>I/E</source>
        <translation>导入导出</translation>
    </message>
    <message>
        <source>Morphology</source>
        <translation>词法</translation>
    </message>
    <message>
        <source>Syntax</source>
        <translation>语法</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>编译</translation>
    </message>
    <message>
        <source>D/L</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Ins</source>
        <translation>插行</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>删行</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Remove G File!</source>
        <translation>删除 G 代码文件</translation>
    </message>
    <message>
        <source>Import/Export G File.</source>
        <translation>导入/导出 G 代码文件</translation>
    </message>
    <message>
        <source>Preproccess</source>
        <translation>预处理</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>The document has been modified.
Do you want to save your changes?</source>
        <translation>程序已修改。
是否保存更改?</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>无法读取文件 %1:
%2。</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>无法写入文件 %1:
%2。</translation>
    </message>
    <message>
        <source>%1[*] - %2</source>
        <translation>%1[*] - %2</translation>
    </message>
    <message>
        <source>It is a device or a pipe, not a file</source>
        <translation>这是设备或管道，不是文件</translation>
    </message>
</context>
</TS>
