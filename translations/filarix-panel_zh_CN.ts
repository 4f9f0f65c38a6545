<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutPage</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Program: %1 %2</source>
        <translation>程序:%1 %2</translation>
    </message>
    <message>
        <source>Toolkit: Qt %1</source>
        <translation>工具包:Qt %1</translation>
    </message>
    <message>
        <source>Licences: MIT; toolkit LGPL 3</source>
        <translation>许可证:MIT;工具包 LGPL 3</translation>
    </message>
    <message>
        <source>Data: %1</source>
        <translation>数据:%1</translation>
    </message>
    <message>
        <source>Room left: %1</source>
        <translation>剩余空间:%1</translation>
    </message>
</context>
<context>
    <name>BarPager</name>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
</context>
<context>
    <name>ClockPage</name>
    <message>
        <source>Clock</source>
        <translation>时钟</translation>
    </message>
    <message>
        <source>The system keeps the clock, and it is set there, not here.</source>
        <translation>时钟由系统管理,在系统中设置,不在此处。</translation>
    </message>
    <message>
        <source>Time zone: %1</source>
        <translation>时区:%1</translation>
    </message>
</context>
<context>
    <name>CoilExport</name>
    <message>
        <source>Writing the picture to the stick</source>
        <translation>正在将图片写入U 盘</translation>
    </message>
    <message>
        <source>Picture and totals are on the stick, in the folder %1.</source>
        <translation>图片和数值已在U 盘的文件夹 %1 中。</translation>
    </message>
    <message>
        <source>There is no stick. Plug one in, then export once more.</source>
        <translation>没有U 盘。请插入U 盘后再次导出。</translation>
    </message>
    <message>
        <source>The stick was pulled out: the picture is not on it. Plug it in, then export once more.</source>
        <translation>U 盘已拔出，图片不在其中。请插入后再次导出。</translation>
    </message>
    <message>
        <source>The picture is not on the stick: %1.</source>
        <translation>图片未写入U 盘：%1。</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>导出已停止。</translation>
    </message>
    <message>
        <source>The stick does not answer: whether the picture is on it is not known.</source>
        <translation>U 盘没有响应，无法确定图片是否已写入。</translation>
    </message>
</context>
<context>
    <name>CoilPreview</name>
    <message>
        <source>The panel&apos;s storage does not answer: the machine is not known.</source>
        <translation>面板存储没有响应，机器未知。</translation>
    </message>
</context>
<context>
    <name>ConnectionsScreen</name>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Cid</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Baud</source>
        <translation>波特率</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Edit the addresses</source>
        <translation>编辑地址</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>No address was changed.</source>
        <translation>没有更改地址。</translation>
    </message>
    <message>
        <source>Stored: %1.</source>
        <translation>已保存: %1。</translation>
    </message>
    <message>
        <source>not set yet</source>
        <translation>尚未设置</translation>
    </message>
    <message>
        <source>%1 says that it holds %2 connections. The first %3 are shown.</source>
        <translation>%1 声明有 %2 个连接。显示前 %3 个。</translation>
    </message>
    <message>
        <source>%1 cannot be read: the panel&apos;s storage does not answer.</source>
        <translation>无法读取 %1: 面板存储器无应答。</translation>
    </message>
    <message>
        <source>The addresses cannot be edited: the panel&apos;s temporary storage is full.</source>
        <translation>无法编辑地址: 面板的临时存储已满。</translation>
    </message>
    <message>
        <source>The addresses are not stored: the panel&apos;s storage does not answer.</source>
        <translation>地址未保存: 面板存储器无应答。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: nobody knows whether the addresses are stored.</source>
        <translation>面板存储器无应答: 地址是否已保存尚不清楚。</translation>
    </message>
    <message>
        <source>Loading ...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>TCP port</source>
        <translation>TCP 端口</translation>
    </message>
</context>
<context>
    <name>DownloadQuestion</name>
    <message>
        <source>Send</source>
        <translation>下载</translation>
    </message>
</context>
<context>
    <name>FilesScreen</name>
    <message>
        <source>Plug</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>拔出</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>I/E</source>
        <translation>导入导出</translation>
    </message>
    <message>
        <source>Files and stick</source>
        <translation>文件和 U 盘</translation>
    </message>
    <message>
        <source>The stick is in; all file names are safe.</source>
        <translation>U 盘已插入; 所有文件名都安全。</translation>
    </message>
    <message>
        <source>The stick is out.</source>
        <translation>U 盘已拔出。</translation>
    </message>
    <message>
        <source>Pick a path</source>
        <translation>选择路径</translation>
    </message>
    <message>
        <source>simulated: %1</source>
        <translation>模拟:%1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>The stick does not answer.</source>
        <translation>U 盘无应答。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>面板存储器无应答。</translation>
    </message>
    <message>
        <source>To try a stick, start the panel by &quot;./run --stick DIR&quot;.</source>
        <translation>要试用 U 盘, 请用“./run --stick DIR”启动面板。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>%1 is checked: %2 %</source>
        <translation>正在检查 %1: %2 %</translation>
    </message>
    <message>
        <source>The check of %1 was stopped.</source>
        <translation>%1 的检查已停止。</translation>
    </message>
    <message>
        <source>%1 was not checked: its storage does not answer.</source>
        <translation>%1 未检查: 其存储器无应答。</translation>
    </message>
    <message>
        <source>Touch a program: its facts and its coil are shown here.</source>
        <translation>点按一个程序, 此处显示其信息和线圈。</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>正在读取 %1 ...</translation>
    </message>
    <message>
        <source>%1 is read: %2 %</source>
        <translation>正在读取 %1: %2 %</translation>
    </message>
    <message>
        <source>Too long for a picture here. Open it to see its coil.</source>
        <translation>太长, 此处无法绘图。打开后可查看线圈。</translation>
    </message>
    <message>
        <source>This program winds no wire.</source>
        <translation>此程序不绕线。</translation>
    </message>
    <message>
        <source>%1 could not be checked to its end.</source>
        <translation>%1 未能检查到结尾。</translation>
    </message>
    <message>
        <source>%1: nothing found.</source>
        <translation>%1: 未发现问题。</translation>
    </message>
    <message>
        <source>%1: %2. Open it to see where.</source>
        <translation>%1: %2。打开后可查看位置。</translation>
    </message>
    <message>
        <source>Unsafe names: %1</source>
        <translation>不安全的文件名: %1</translation>
    </message>
    <message>
        <source>Stick: looking ...</source>
        <translation>U盘: 正在查看 ...</translation>
    </message>
    <message>
        <source>Stick: in, files: %1</source>
        <translation>U盘: 已插入, 文件: %1</translation>
    </message>
    <message>
        <source>Stick: out</source>
        <translation>U盘:未插入</translation>
    </message>
    <message>
        <source>Programs: looking ...</source>
        <translation>程序: 正在查看 ...</translation>
    </message>
    <message>
        <source>Programs: %1, %2 KB of %3 MB</source>
        <translation>程序: %1, %2 KB / %3 MB</translation>
    </message>
    <message>
        <source>All names are safe for the transfer.</source>
        <translation>所有文件名均可安全传输。</translation>
    </message>
    <message>
        <source>Names that are not safe: %1. Rename them by the key Rename.</source>
        <translation>不安全的文件名: %1。请用重命名键重命名。</translation>
    </message>
</context>
<context>
    <name>FindingsBar</name>
    <message>
        <source>Back</source>
        <translation>上一个</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一个</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>%1 of %2, line %3: %4 %5</source>
        <translation>%1/%2，第 %3 行：%4 %5</translation>
    </message>
</context>
<context>
    <name>FindingsDialog</name>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>%1. The first %2 are listed.</source>
        <translation>%1。列出前 %2 项。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Kept on</source>
        <translation>保存时间</translation>
    </message>
    <message>
        <source>Checksum</source>
        <translation>校验码</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Only this</source>
        <translation>仅此程序</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
</context>
<context>
    <name>KnownRows</name>
    <message>
        <source>%1 was changed by somebody else.</source>
        <translation>%1 已被他人更改。</translation>
    </message>
</context>
<context>
    <name>ListScreen</name>
    <message>
        <source>First</source>
        <translation>首行</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>翻页</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>末行</translation>
    </message>
    <message>
        <source>Loading ...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>What stood there is %1 now.</source>
        <translation>原文件现名为 %1。</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>There was nothing to tell yet.</source>
        <translation>还没有消息。</translation>
    </message>
</context>
<context>
    <name>MovementLimits</name>
    <message>
        <source>Instruction %1: %2 is %3. It must be %4.</source>
        <translation>指令 %1: %2 为 %3。允许: %4。</translation>
    </message>
    <message>
        <source>Instruction %1, %2</source>
        <translation>指令 %1, %2</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>remark</source>
        <translation>备注</translation>
    </message>
</context>
<context>
    <name>PageKeys</name>
    <message>
        <source>Page up</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>下一页</translation>
    </message>
</context>
<context>
    <name>PanelProgram</name>
    <message>
        <source>Panel</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Another panel works on the same programs. This one does not start.</source>
        <translation>另一个面板正在使用相同的程序。此面板不启动。</translation>
    </message>
    <message>
        <source>%1 is read and checked: %2 %</source>
        <translation>正在读取并检查 %1: %2 %</translation>
    </message>
</context>
<context>
    <name>PanelScreen</name>
    <message>
        <source>changed</source>
        <translation>已更改</translation>
    </message>
</context>
<context>
    <name>PanelWindow</name>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Teach</source>
        <translation>示教</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>%1[*] - Winding panel</source>
        <translation>%1[*] - 绕线机面板</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Coil</source>
        <translation>线圈</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>To line</source>
        <translation>到此行</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Zoom +</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom -</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>张力</translation>
    </message>
    <message>
        <source>Read: %1 %</source>
        <translation>已读取：%1 %</translation>
    </message>
    <message>
        <source>Reading the program ...</source>
        <translation>正在读取程序 ...</translation>
    </message>
    <message>
        <source>There is no program yet. Open or write one, and its coil is shown here.</source>
        <translation>还没有程序。打开或编写程序后，线圈将显示在此。</translation>
    </message>
    <message>
        <source>This program winds no wire: no line moves the guide while the spindle turns.</source>
        <translation>此程序不绕线：主轴转动时没有任何一行移动导线器。</translation>
    </message>
    <message>
        <source>The machine is not known, so no coil can be reckoned. %1</source>
        <translation>机器未知，无法计算线圈。%1</translation>
    </message>
    <message>
        <source>Lines not understood in full: %1. First: %2</source>
        <translation>未完全识别的行：%1。首行：%2</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>第%1行</translation>
    </message>
    <message>
        <source>Stopped at %1 %</source>
        <translation>停止于 %1 %</translation>
    </message>
    <message>
        <source>The reading was stopped. The next change begins it anew.</source>
        <translation>读取已停止。下次更改时重新开始。</translation>
    </message>
</context>
<context>
    <name>PreviewScreen</name>
    <message>
        <source>Coil of %1</source>
        <translation>%1 的线圈</translation>
    </message>
</context>
<context>
    <name>ProgramList</name>
    <message>
        <source>Programs</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer. The programs come once it does.</source>
        <translation>面板存储器无应答。恢复应答后程序将出现。</translation>
    </message>
    <message>
        <source>Reading the programs ...</source>
        <translation>正在读取程序列表 ...</translation>
    </message>
    <message>
        <source>The folder of the programs cannot be read: %1.</source>
        <translation>无法读取程序文件夹: %1。</translation>
    </message>
    <message>
        <source>No programs yet. Write one on the screen Program, or bring some from the stick by I/E.</source>
        <translation>还没有程序。请在“程序”界面编写, 或用导入导出从 U盘取得。</translation>
    </message>
</context>
<context>
    <name>ProgramPicture</name>
    <message>
        <source>Coil</source>
        <translation>线圈</translation>
    </message>
</context>
<context>
    <name>ProgramReview</name>
    <message>
        <source>No check: the machine&apos;s profile has a fault.</source>
        <translation>无法检查：机器配置文件有错误。</translation>
    </message>
    <message>
        <source>The program is being checked.</source>
        <translation>正在检查程序。</translation>
    </message>
    <message>
        <source>Nothing found, by the rules of &quot;%1&quot;.</source>
        <translation>按“%1”的规则未发现问题。</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>错误：%1，警告：%2</translation>
    </message>
    <message>
        <source>The check was stopped. The next change, or the screen Preview, begins it anew.</source>
        <translation>检查已停止。下次更改或打开预览时重新开始。</translation>
    </message>
</context>
<context>
    <name>ProgramScreen</name>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>A download is running. Let it end, or stop it first.</source>
        <translation>正在下载。请等待结束或先停止。</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>%1 has changes that are not saved.</source>
        <translation>%1 有未保存的更改。</translation>
    </message>
    <message>
        <source>The machine already stands as point %1 &quot;%2&quot; wants it: nothing to insert.</source>
        <translation>机器已在点 %1“%2”处: 无需插入。</translation>
    </message>
    <message>
        <source>Point %1 &quot;%2&quot; inserted: %3</source>
        <translation>已插入点 %1“%2”: %3</translation>
    </message>
    <message>
        <source>The program is still being loaded or saved. Close the panel after that.</source>
        <translation>程序仍在加载或保存。请稍后关闭面板。</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Coil</source>
        <translation>线圈</translation>
    </message>
    <message>
        <source>The program is loaded: %1 %</source>
        <translation>正在载入程序: %1 %</translation>
    </message>
    <message>
        <source>downloading</source>
        <translation>正在下载</translation>
    </message>
    <message>
        <source>not stored</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>stored</source>
        <translation>已保存</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>The settings file had errors and is now named %1. Please look over your settings.</source>
        <translation>设置文件有错误, 现已更名为 %1。请检查您的设置。</translation>
    </message>
    <message>
        <source>The settings file %1 has errors and cannot be renamed. What you choose lasts until the program ends.</source>
        <translation>设置文件 %1 有错误且无法更名。您的选择在程序结束前有效。</translation>
    </message>
    <message>
        <source>The settings cannot be stored in %1. What you choose lasts until the program ends.</source>
        <translation>设置无法保存到 %1。您的选择在程序结束前有效。</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>高对比度</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>字号</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Texts grow as far as each screen has room.</source>
        <translation>文字按屏幕的空间放大。</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>The display&apos;s bell at each touch of a key.</source>
        <translation>每次按键时显示屏响一声。</translation>
    </message>
    <message>
        <source>This display has no bell: nothing is heard.</source>
        <translation>此显示屏没有铃声:听不到声音。</translation>
    </message>
    <message>
        <source>The translation is not installed.</source>
        <translation>未安装该语言的翻译。</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>One more</source>
        <translation>多一个</translation>
    </message>
    <message>
        <source>One fewer</source>
        <translation>少一个</translation>
    </message>
    <message>
        <source>Copy to the stick</source>
        <translation>复制到 U 盘</translation>
    </message>
    <message>
        <source>Copy to the panel</source>
        <translation>复制到面板</translation>
    </message>
    <message>
        <source>Out of the folder</source>
        <translation>退出文件夹</translation>
    </message>
    <message>
        <source>Into the folder</source>
        <translation>进入文件夹</translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Whether another panel works on the same programs cannot be told: %1.</source>
        <translation>无法确定是否有另一个面板在使用相同的程序: %1。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer. The programs come once it does.</source>
        <translation>面板存储器无应答。恢复应答后程序将出现。</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>PLC: not known</source>
        <translation>PLC:未知</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>PLC: ready</source>
        <translation>PLC:就绪</translation>
    </message>
    <message>
        <source>away</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>PLC: does not answer</source>
        <translation>PLC:无应答</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>PLC: receives a program</source>
        <translation>PLC:正在接收程序</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>PLC: the last download failed</source>
        <translation>PLC:上次下载失败</translation>
    </message>
    <message>
        <source>Stick: not known</source>
        <translation>U盘:未知</translation>
    </message>
    <message>
        <source>in</source>
        <translation>已插入</translation>
    </message>
    <message>
        <source>Stick: in</source>
        <translation>U盘:已插入</translation>
    </message>
    <message>
        <source>out</source>
        <translation>未插入</translation>
    </message>
    <message>
        <source>Stick: out</source>
        <translation>U盘:未插入</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>Storage: not known</source>
        <translation>存储:未知</translation>
    </message>
    <message>
        <source>Storage: %1 free</source>
        <translation>存储:剩余 %1</translation>
    </message>
    <message>
        <source>Storage: only %1 free</source>
        <translation>存储:仅剩 %1</translation>
    </message>
    <message>
        <source>full</source>
        <translation>已满</translation>
    </message>
    <message>
        <source>Storage: full</source>
        <translation>存储:已满</translation>
    </message>
    <message>
        <source>PLC</source>
        <translation>PLC</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>U盘</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Check: not known</source>
        <translation>检查：未知</translation>
    </message>
    <message>
        <source>Check: errors %1, warnings %2</source>
        <translation>检查：错误 %1，警告 %2</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Check: nothing found</source>
        <translation>检查：未发现问题</translation>
    </message>
</context>
<context>
    <name>StickCover</name>
    <message>
        <source>The stick is out. Plug it in: its files come by themselves.</source>
        <translation>U 盘已拔出。插入后文件会自动显示。</translation>
    </message>
</context>
<context>
    <name>TablePicker</name>
    <message>
        <source>No.</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
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
    <name>TapArea</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>TaughtDetails</name>
    <message>
        <source>own values</source>
        <translation>自有数值</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>速度 %1</translation>
    </message>
    <message>
        <source>Zone %1</source>
        <translation>区域 %1</translation>
    </message>
    <message>
        <source>Tool %1</source>
        <translation>工具 %1</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Instruction %1: %2</source>
        <translation>指令 %1: %2</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
</context>
<context>
    <name>TaughtFolder</name>
    <message>
        <source>it is too large</source>
        <translation>文件太大</translation>
    </message>
    <message>
        <source>%1 could not be copied to %2: %3.</source>
        <translation>无法将 %1 复制到 %2: %3。</translation>
    </message>
</context>
<context>
    <name>TaughtProgram</name>
    <message>
        <source>Instr.</source>
        <translation>指令</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>T</source>
        <translation>T</translation>
    </message>
    <message>
        <source>%1 is no taught program: row %2 is not an instruction.</source>
        <translation>%1 不是示教程序: 第 %2 行不是指令。</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
</context>
<context>
    <name>TeachScreen</name>
    <message>
        <source>G04 F1 wait</source>
        <translation>G04 F1 等待</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Clearing: %1 %</source>
        <translation>正在清空: %1 %</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>The taught program has changes that are not stored.</source>
        <translation>示教程序有未保存的更改。</translation>
    </message>
    <message>
        <source>%1 loaded, instructions: %2.</source>
        <translation>已加载 %1, 指令数: %2。</translation>
    </message>
    <message>
        <source>%1 stored, instructions: %2.</source>
        <translation>已保存 %1, 指令数: %2。</translation>
    </message>
    <message>
        <source>Loading replaces what was changed and is not stored.</source>
        <translation>加载将覆盖未保存的更改。</translation>
    </message>
    <message>
        <source>Load a taught program</source>
        <translation>加载示教程序</translation>
    </message>
    <message>
        <source>Remove all %1 instructions?</source>
        <translation>删除全部 %1 条指令?</translation>
    </message>
    <message>
        <source>There is no instruction to delete.</source>
        <translation>没有可删除的指令。</translation>
    </message>
    <message>
        <source>Point for instruction %1</source>
        <translation>指令 %1 的点</translation>
    </message>
    <message>
        <source>Instructions that now name point %1 &quot;%2&quot;: %3.</source>
        <translation>现在使用点 %1“%2”的指令: %3。</translation>
    </message>
    <message>
        <source>Speed for instruction %1</source>
        <translation>指令 %1 的速度</translation>
    </message>
    <message>
        <source>Instructions that now name speed %1 &quot;%2&quot;: %3.</source>
        <translation>现在使用速度 %1“%2”的指令: %3。</translation>
    </message>
    <message>
        <source>Taught program</source>
        <translation>示教程序</translation>
    </message>
    <message>
        <source>The list is empty. Store first puts that file aside.</source>
        <translation>列表为空。“保存”会先将该文件改名留存。</translation>
    </message>
    <message>
        <source>The list is empty. Try Load.</source>
        <translation>列表为空。请试“加载”。</translation>
    </message>
    <message>
        <source>%1 is not there.</source>
        <translation>%1 不存在。</translation>
    </message>
    <message>
        <source>%1, %2, instructions: %3</source>
        <translation>%1, %2, 指令数: %3</translation>
    </message>
    <message>
        <source>Not stored. %1</source>
        <translation>未保存。%1</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
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
        <source>Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Taught programs are in %1 now, copied: %2. The old files stay.</source>
        <translation>示教程序现位于 %1, 已复制: %2。旧文件保留。</translation>
    </message>
    <message>
        <source>Store as</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称:</translation>
    </message>
    <message>
        <source>%1 is there already, instructions: %2. Write over it?</source>
        <translation>%1 已存在, 指令数: %2。要覆盖吗?</translation>
    </message>
    <message>
        <source>%1 is there already and cannot be read. Put it aside and store?</source>
        <translation>%1 已存在且无法读取。改名留存后保存吗?</translation>
    </message>
    <message>
        <source>Instructions removed: %1. Undo brings them back.</source>
        <translation>已删除指令: %1。“撤销”可恢复。</translation>
    </message>
    <message>
        <source>There is no instruction to copy.</source>
        <translation>没有可复制的指令。</translation>
    </message>
    <message>
        <source>Instructions copied: %1. Paste puts them below a row.</source>
        <translation>已复制指令: %1。“粘贴”将其放在行下。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: taught programs of %1 may be missing.</source>
        <translation>面板存储器无应答: %1 的示教程序可能缺失。</translation>
    </message>
    <message>
        <source>No instruction is chosen. Touch one.</source>
        <translation>未选择指令。请点按一条。</translation>
    </message>
    <message>
        <source>No instruction yet. MoveJ, MoveL and Text make one.</source>
        <translation>还没有指令。MoveJ、MoveL 和文本可添加。</translation>
    </message>
</context>
<context>
    <name>TitleStrip</name>
    <message>
        <source>Panel and stick</source>
        <translation>面板和 U 盘</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>请稍候</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Tour</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>What step %1 touches is not on the screen.</source>
        <translation>第 %1 步要触摸的内容不在屏幕上。</translation>
    </message>
    <message>
        <source>Step %1 expects a dialog, and none is open.</source>
        <translation>第 %1 步需要对话框, 但没有打开。</translation>
    </message>
    <message>
        <source>The picture %1 cannot be written.</source>
        <translation>无法写入图片 %1。</translation>
    </message>
    <message>
        <source>What step %1 waits for does not come.</source>
        <translation>步骤 %1 等待的内容没有出现。</translation>
    </message>
</context>
<context>
    <name>ValueRule</name>
    <message>
        <source>not a number</source>
        <translation>不是数字</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>低于 %1</translation>
    </message>
    <message>
        <source>above %1</source>
        <translation>高于 %1</translation>
    </message>
    <message>
        <source>not whole</source>
        <translation>不是整数</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>过长</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>not on or off</source>
        <translation>不是 on/off</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on 或 off</translation>
    </message>
    <message>
        <source>at most %1 letters</source>
        <translation>最多 %1 个字</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>%1, whole</source>
        <translation>%1, 整数</translation>
    </message>
</context>
<context>
    <name>VariableDetails</name>
    <message>
        <source>whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on 或 off</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>文件中</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
</context>
<context>
    <name>VariableTable</name>
    <message>
        <source>limit not a number</source>
        <translation>限值不是数字</translation>
    </message>
    <message>
        <source>minimum above maximum</source>
        <translation>最小值大于最大值</translation>
    </message>
    <message>
        <source>limit too large</source>
        <translation>限值过大</translation>
    </message>
    <message>
        <source>no whole number between the limits</source>
        <translation>限值之间没有整数</translation>
    </message>
    <message>
        <source>name empty, too long or not readable</source>
        <translation>名称为空、过长或无法读取</translation>
    </message>
    <message>
        <source>type unknown</source>
        <translation>类型未知</translation>
    </message>
    <message>
        <source>unit too long or not readable</source>
        <translation>单位过长或无法读取</translation>
    </message>
    <message>
        <source>there twice</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>too many variables</source>
        <translation>变量过多</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>VariablesScreen</name>
    <message>
        <source>Machine variables</source>
        <translation>机器变量</translation>
    </message>
    <message>
        <source>Store</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>The variables have changes that are not stored.</source>
        <translation>变量有未保存的更改。</translation>
    </message>
    <message>
        <source>Variables stored: %1.</source>
        <translation>已保存变量: %1。</translation>
    </message>
    <message>
        <source>The values are empty. Store first puts that file aside.</source>
        <translation>数值为空。“保存”会先将该文件改名留存。</translation>
    </message>
    <message>
        <source>The values are empty. Switch the panel off and on.</source>
        <translation>数值为空。请关闭面板后重新打开。</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>%1, %2, values: %3</source>
        <translation>%1, %2, 数值: %3</translation>
    </message>
    <message>
        <source>Not stored. %1 must be %2.</source>
        <translation>未保存。%1 允许: %2。</translation>
    </message>
    <message>
        <source>Variables stored: %1, changed ones: %2.</source>
        <translation>已保存变量: %1, 已更改: %2。</translation>
    </message>
    <message>
        <source>%1, lines not used: %2. %3.</source>
        <translation>%1, 未使用的行: %2。%3。</translation>
    </message>
    <message>
        <source>Variables out of limits: %1. Touch the red ones.</source>
        <translation>超限变量: %1。请触摸红色项。</translation>
    </message>
    <message>
        <source>%1 is %2. It must be %3.</source>
        <translation>%1 为 %2。允许: %3。</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>已更改</translation>
    </message>
    <message>
        <source>stored</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Values that are no variable&apos;s now, not brought back: %1.</source>
        <translation>没有对应变量、未恢复的数值: %1。</translation>
    </message>
    <message>
        <source>No variable is chosen. Touch one.</source>
        <translation>未选择变量。请点按一个。</translation>
    </message>
</context>
<context>
    <name>WalkKeys</name>
    <message>
        <source>First</source>
        <translation>首行</translation>
    </message>
    <message>
        <source>First line</source>
        <translation>第一行</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>翻页</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Go to a line</source>
        <translation>转到某行</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>末行</translation>
    </message>
    <message>
        <source>Last line</source>
        <translation>最后一行</translation>
    </message>
</context>
<context>
    <name>WorkProgress</name>
    <message>
        <source>Stopping ...</source>
        <translation>正在停止 ...</translation>
    </message>
    <message>
        <source>%1 (more work: %2)</source>
        <translation>%1 (其他任务: %2)</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>剩余 %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>剩余 %1 分钟</translation>
    </message>
</context>
</TS>
