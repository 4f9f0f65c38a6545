<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CheckedDownload</name>
    <message>
        <source>The program is made ready: %1 %</source>
        <translation>正在准备程序: %1 %</translation>
    </message>
    <message>
        <source>The download was stopped. The PLC keeps what it had.</source>
        <translation>下载已停止。PLC 保持原有内容。</translation>
    </message>
    <message>
        <source>Nothing was sent. The PLC keeps what it had.</source>
        <translation>未下载。PLC 保持原有内容。</translation>
    </message>
    <message>
        <source>%1 goes to the PLC: %2 %</source>
        <translation>正在将 %1 下载到 PLC: %2 %</translation>
    </message>
    <message>
        <source>%1 is in the PLC: %2 bytes, compared.</source>
        <translation>%1 已在 PLC 中: %2 字节, 校验一致。</translation>
    </message>
    <message>
        <source>%1 is in the PLC as it was shown, %2. On the panel it is gone.</source>
        <translation>%1 已按显示的内容下载到 PLC, %2。面板上已没有此程序。</translation>
    </message>
    <message>
        <source>%1 is in the PLC as shown, %2. On the panel it has changed since: download it once more.</source>
        <translation>%1 已按显示的内容下载到 PLC, %2。面板上的程序此后已更改: 请重新下载。</translation>
    </message>
</context>
<context>
    <name>CoilFigures</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1:%2 min</source>
        <translation>%1:%2 min</translation>
    </message>
    <message>
        <source>%1:%2:%3 h</source>
        <translation>%1:%2:%3 h</translation>
    </message>
    <message>
        <source>Turns</source>
        <translation>匝数</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>层数</translation>
    </message>
    <message>
        <source>Coils</source>
        <translation>线圈数</translation>
    </message>
    <message>
        <source>Wire length</source>
        <translation>线长</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>电阻</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>填充率</translation>
    </message>
    <message>
        <source>Outer diameter</source>
        <translation>外径</translation>
    </message>
    <message>
        <source>Wire diameter</source>
        <translation>线径</translation>
    </message>
</context>
<context>
    <name>CoilPicture</name>
    <message>
        <source>Tension %1</source>
        <translation>张力 %1</translation>
    </message>
    <message>
        <source>Layer 1</source>
        <translation>第1层</translation>
    </message>
    <message>
        <source>Coil %1 of %2</source>
        <translation>线圈 %1/%2</translation>
    </message>
    <message>
        <source>winding</source>
        <translation>绕线</translation>
    </message>
    <message>
        <source>moving</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>rapid</source>
        <translation>快移</translation>
    </message>
    <message>
        <source>Traverse</source>
        <translation>横移</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Tension</source>
        <translation>张力</translation>
    </message>
    <message>
        <source>turns</source>
        <translation>匝</translation>
    </message>
</context>
<context>
    <name>ConnectionFile</name>
    <message>
        <source>%1 cannot be made: %2.</source>
        <translation>无法建立 %1: %2。</translation>
    </message>
    <message>
        <source>the panel&apos;s temporary storage is full</source>
        <translation>面板的临时存储已满</translation>
    </message>
    <message>
        <source>the file was changed meanwhile. Edit them once more</source>
        <translation>文件在此期间已被更改。请重新编辑</translation>
    </message>
    <message>
        <source>the disk holds something else</source>
        <translation>磁盘上的内容不同</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 太大。</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 不是文件。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>无法读取 %1: %2。</translation>
    </message>
    <message>
        <source>The connections cannot be read: the panel&apos;s temporary storage is full.</source>
        <translation>无法读取连接: 面板的临时存储已满。</translation>
    </message>
    <message>
        <source>The addresses are not stored: %1.</source>
        <translation>地址未保存: %1。</translation>
    </message>
</context>
<context>
    <name>DownloadFacts</name>
    <message>
        <source>%1 in the file, %2 shown</source>
        <translation>文件中 %1, 显示 %2</translation>
    </message>
    <message>
        <source>%1 in the file, comments not shown</source>
        <translation>文件中 %1, 未显示注释</translation>
    </message>
    <message>
        <source>%1 in the file, others shown</source>
        <translation>文件中 %1, 显示的是其他行</translation>
    </message>
    <message>
        <source>%1 in the file, not compared</source>
        <translation>文件中 %1, 未比较</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Send this program to the PLC?</source>
        <translation>将此程序下载到 PLC?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>行数</translation>
    </message>
    <message>
        <source>Checksum</source>
        <translation>校验码</translation>
    </message>
    <message>
        <source>This machine takes no program with errors. Mend them, then send it.</source>
        <translation>本机不接受有错误的程序。请先改正，再发送。</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>The check found errors: %1. The machine may stop or wind something else.</source>
        <translation>检查发现错误：%1。机器可能停止或绕错。</translation>
    </message>
    <message>
        <source>The program could not be checked to the end. Errors may be in it.</source>
        <translation>程序未能检查完毕，可能有错误。</translation>
    </message>
    <message>
        <source>Send it all the same?</source>
        <translation>仍要发送吗？</translation>
    </message>
</context>
<context>
    <name>DownloadSource</name>
    <message>
        <source>There is no program to download yet. Save it under a name first.</source>
        <translation>还没有可下载的程序。请先命名保存。</translation>
    </message>
    <message>
        <source>The program %1 is gone from the panel. Save it again, then download.</source>
        <translation>面板上已没有程序 %1。请重新保存后下载。</translation>
    </message>
    <message>
        <source>%1 is not a program file.</source>
        <translation>%1 不是程序文件。</translation>
    </message>
    <message>
        <source>The program %1 cannot be read: %2.</source>
        <translation>无法读取程序 %1: %2。</translation>
    </message>
    <message>
        <source>The download was stopped. The PLC keeps what it had.</source>
        <translation>下载已停止。PLC 保持原有内容。</translation>
    </message>
</context>
<context>
    <name>FindDialogGuide</name>
    <message>
        <source>Start reached, went on at the end: line %1.</source>
        <translation>已到开头，从末尾继续：第 %1 行。</translation>
    </message>
    <message>
        <source>End reached, went on at the top: line %1.</source>
        <translation>已到末尾，从开头继续：第 %1 行。</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>A control character stands here, which nobody sees.</source>
        <translation>此处有一个看不见的控制字符。</translation>
    </message>
    <message>
        <source>Delete it, or write the line anew.</source>
        <translation>请删除它, 或重写此行。</translation>
    </message>
    <message>
        <source>A character stands here that machines don&apos;t know.</source>
        <translation>此处有机床不认识的字符。</translation>
    </message>
    <message>
        <source>Write it anew: it may look like another one.</source>
        <translation>请重新输入: 它可能与别的字符相似。</translation>
    </message>
    <message>
        <source>The comment has a character that is not ASCII.</source>
        <translation>注释中有非 ASCII 字符。</translation>
    </message>
    <message>
        <source>Another panel may show another one in its place.</source>
        <translation>别的面板可能显示成另一个字符。</translation>
    </message>
    <message>
        <source>What stands here is no word.</source>
        <translation>此处的内容不是指令字。</translation>
    </message>
    <message>
        <source>Delete it, or put a &quot;;&quot; before a comment.</source>
        <translation>请删除, 或在注释前加 &quot;;&quot;。</translation>
    </message>
    <message>
        <source>The letter here has no number.</source>
        <translation>此处的字母没有数值。</translation>
    </message>
    <message>
        <source>Add the number, or delete the letter.</source>
        <translation>请补上数值, 或删除字母。</translation>
    </message>
    <message>
        <source>The number here cannot be read.</source>
        <translation>此处的数值无法读取。</translation>
    </message>
    <message>
        <source>Write it with one point and one sign at most.</source>
        <translation>最多只写一个小数点和一个符号。</translation>
    </message>
    <message>
        <source>The number here is too large for any machine.</source>
        <translation>此处的数值对任何机床都太大。</translation>
    </message>
    <message>
        <source>Correct the number.</source>
        <translation>请更正数值。</translation>
    </message>
    <message>
        <source>The comment that begins here has no end.</source>
        <translation>此处开始的注释没有结尾。</translation>
    </message>
    <message>
        <source>Add a &quot;)&quot;, or begin it with &quot;;&quot;.</source>
        <translation>请加 &quot;)&quot;, 或用 &quot;;&quot; 开头。</translation>
    </message>
    <message>
        <source>The line has too many words: the rest is not read.</source>
        <translation>此行指令字过多: 其余不读取。</translation>
    </message>
    <message>
        <source>Use several lines.</source>
        <translation>请分成多行。</translation>
    </message>
    <message>
        <source>The line is too long: the rest is not read.</source>
        <translation>此行太长: 其余不读取。</translation>
    </message>
    <message>
        <source>%1 is unknown to this profile.</source>
        <translation>此配置中没有 %1。</translation>
    </message>
    <message>
        <source>Correct it, or check with the profile of the machine.</source>
        <translation>请更正, 或用该机床的配置检查。</translation>
    </message>
    <message>
        <source>%1: the machine has no such guide tube.</source>
        <translation>%1: 机床没有这个导线管。</translation>
    </message>
    <message>
        <source>Correct the number, or add the tube to the profile.</source>
        <translation>请更正数值, 或把导线管加入配置。</translation>
    </message>
    <message>
        <source>%1 does not count: another one stands in the line.</source>
        <translation>%1 无效: 此行中还有一个。</translation>
    </message>
    <message>
        <source>Keep one of them.</source>
        <translation>请只保留一个。</translation>
    </message>
    <message>
        <source>%1 and %2 in one line contradict each other.</source>
        <translation>同一行中的 %1 和 %2 互相矛盾。</translation>
    </message>
    <message>
        <source>Keep one of them, or use two lines.</source>
        <translation>请保留一个, 或分成两行。</translation>
    </message>
    <message>
        <source>%1 has no effect in this line.</source>
        <translation>%1 在此行中不起作用。</translation>
    </message>
    <message>
        <source>Delete it, or add what it belongs to.</source>
        <translation>请删除, 或补上它所属的指令。</translation>
    </message>
    <message>
        <source>%1 must not be negative.</source>
        <translation>%1 不能为负。</translation>
    </message>
    <message>
        <source>%1 moves, but no motion is in force.</source>
        <translation>%1 要移动, 但没有生效的运动指令。</translation>
    </message>
    <message>
        <source>Put a motion before it, such as %2.</source>
        <translation>请在前面加运动指令, 如 %2。</translation>
    </message>
    <message>
        <source>%1 moves without a feed.</source>
        <translation>%1 移动时没有进给。</translation>
    </message>
    <message>
        <source>Add %2 with the feed.</source>
        <translation>请用 %2 给出进给。</translation>
    </message>
    <message>
        <source>%1 winds without a pitch.</source>
        <translation>%1 绕线时没有线距。</translation>
    </message>
    <message>
        <source>Add %2 with the pitch.</source>
        <translation>请用 %2 给出线距。</translation>
    </message>
    <message>
        <source>%1 waits without a time.</source>
        <translation>%1 等待时没有时间。</translation>
    </message>
    <message>
        <source>Add %2 with the time.</source>
        <translation>请用 %2 给出时间。</translation>
    </message>
    <message>
        <source>%1 waits for the spindle, which stands.</source>
        <translation>%1 等待主轴, 但主轴停着。</translation>
    </message>
    <message>
        <source>Start the spindle before, by %2 and a speed.</source>
        <translation>请先用 %2 和转速启动主轴。</translation>
    </message>
    <message>
        <source>%1 goes to %2, beyond the axis: its end is %3.</source>
        <translation>%1 到 %2, 超出轴的极限 %3。</translation>
    </message>
    <message>
        <source>Correct the number or the position before.</source>
        <translation>请更正数值或之前的位置。</translation>
    </message>
    <message>
        <source>%1 is faster than the spindle may turn: %2.</source>
        <translation>%1 超过主轴允许的转速 %2。</translation>
    </message>
    <message>
        <source>Use a lower speed.</source>
        <translation>请降低转速。</translation>
    </message>
    <message>
        <source>The pitch %1 is above the limit of %2.</source>
        <translation>线距 %1 超过极限 %2。</translation>
    </message>
    <message>
        <source>Use a smaller pitch.</source>
        <translation>请减小线距。</translation>
    </message>
    <message>
        <source>The spindle turns at a tension of %1; the limit is %2.</source>
        <translation>主轴在张力 %1 下转动; 极限为 %2。</translation>
    </message>
    <message>
        <source>Use less tension: the wire may break.</source>
        <translation>请减小张力: 线可能断。</translation>
    </message>
    <message>
        <source>The tension jumps by %1; the limit is %2.</source>
        <translation>张力突变 %1; 极限为 %2。</translation>
    </message>
    <message>
        <source>Use several steps.</source>
        <translation>请分几步进行。</translation>
    </message>
    <message>
        <source>The wire is laid at %1; the bobbin is from %2 to %3.</source>
        <translation>线绕在 %1; 线轴从 %2 到 %3。</translation>
    </message>
    <message>
        <source>Stay between the flanges, or stop the spindle.</source>
        <translation>请保持在法兰之间, 或停止主轴。</translation>
    </message>
    <message>
        <source>The coil grows over the flange, which has %1.</source>
        <translation>线圈超出直径 %1 的法兰。</translation>
    </message>
    <message>
        <source>Use fewer turns, a thinner wire or another bobbin.</source>
        <translation>请减少匝数, 或用更细的线或别的线轴。</translation>
    </message>
    <message>
        <source>The winding begins before the wire is clamped.</source>
        <translation>线未夹紧就开始绕线。</translation>
    </message>
    <message>
        <source>Clamp the wire first, by %2.</source>
        <translation>请先用 %2 夹紧线。</translation>
    </message>
    <message>
        <source>The program ends before the wire is cut.</source>
        <translation>线未剪断程序就结束。</translation>
    </message>
    <message>
        <source>Cut the wire first, by %1.</source>
        <translation>请先用 %1 剪断线。</translation>
    </message>
    <message>
        <source>The program has no end.</source>
        <translation>程序没有结束。</translation>
    </message>
    <message>
        <source>Add %1 as the last line.</source>
        <translation>请在最后一行加 %1。</translation>
    </message>
    <message>
        <source>The program has ended: this is never performed.</source>
        <translation>程序已结束: 此处不会执行。</translation>
    </message>
    <message>
        <source>Delete it, or put the end behind it.</source>
        <translation>请删除, 或把结束放在其后。</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has no place: the folder %1 cannot be made.</source>
        <translation>无法保存历史: 不能建立文件夹 %1。</translation>
    </message>
    <message>
        <source>%1 is too large for the history.</source>
        <translation>%1 太大, 无法存入历史。</translation>
    </message>
    <message>
        <source>The history cannot read %1: %2.</source>
        <translation>历史无法读取 %1: %2。</translation>
    </message>
    <message>
        <source>The history cannot keep %1: %2.</source>
        <translation>历史无法保存 %1: %2。</translation>
    </message>
    <message>
        <source>The history has no room for %1 beside the other programs.</source>
        <translation>历史中没有空间存放 %1。</translation>
    </message>
</context>
<context>
    <name>ImportGuard</name>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>File names</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Not renamed. Import and export stay closed until the names are safe.</source>
        <translation>未重命名。文件名安全之前, 导入和导出保持关闭。</translation>
    </message>
    <message>
        <source>Files that could not be renamed: %1. Is the stick write-protected?</source>
        <translation>无法重命名的文件: %1。U 盘是否写保护?</translation>
    </message>
    <message>
        <source>Files renamed: %1.</source>
        <translation>已重命名文件: %1。</translation>
    </message>
    <message>
        <source>No transfer: the path %1 holds characters that the transfer would not take for what they are.</source>
        <translation>无法传输: 路径 %1 含有传输无法正确识别的字符。</translation>
    </message>
    <message>
        <source>One moment: the panel looks at the programs and the stick.</source>
        <translation>请稍候: 面板正在检查程序和 U 盘。</translation>
    </message>
    <message>
        <source>No stick is in: nothing was copied or deleted.</source>
        <translation>未插入 U 盘: 没有复制或删除任何内容。</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>The stick does not answer: nothing was copied, deleted or renamed. Pull it and plug it in again.</source>
        <translation>U 盘无应答: 没有复制、删除或重命名任何内容。请拔出后重新插入。</translation>
    </message>
    <message>
        <source>%1 is copied to the stick, and compared.</source>
        <translation>%1 已复制到 U 盘, 校验一致。</translation>
    </message>
    <message>
        <source>%1 is copied to the panel, and compared.</source>
        <translation>%1 已复制到面板, 校验一致。</translation>
    </message>
    <message>
        <source>%1 is deleted from the stick.</source>
        <translation>%1 已从 U 盘删除。</translation>
    </message>
    <message>
        <source>%1 is deleted from the panel.</source>
        <translation>%1 已从面板删除。</translation>
    </message>
    <message>
        <source>%1 was not copied.</source>
        <translation>%1 未复制。</translation>
    </message>
    <message>
        <source>%1 was not copied, and the one on the stick is gone.</source>
        <translation>%1 未复制, 且 U 盘上的已不存在。</translation>
    </message>
    <message>
        <source>%1 was not copied, and the panel&apos;s own is gone: bring it back from the history.</source>
        <translation>%1 未复制, 且面板上的已不存在: 请从历史恢复。</translation>
    </message>
    <message>
        <source>The copy of %1 is not what was to be copied. Is there space left? Copy it once more.</source>
        <translation>%1 的副本与原文件不同。空间是否足够? 请重新复制。</translation>
    </message>
    <message>
        <source>Leave them</source>
        <translation>保持不变</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>仍然继续</translation>
    </message>
    <message>
        <source>The transfer cannot take these file names. Nothing is copied or deleted until they are renamed.</source>
        <translation>传输无法处理这些文件名。重命名之前不会复制或删除任何文件。</translation>
    </message>
    <message>
        <source>What %1 is now would be lost.</source>
        <translation>%1 的现有内容将丢失。</translation>
    </message>
</context>
<context>
    <name>LineEntry</name>
    <message>
        <source>Line %1</source>
        <translation>第%1行</translation>
    </message>
</context>
<context>
    <name>MachineProfile</name>
    <message>
        <source>%1 is too large for a machine profile.</source>
        <translation>%1 太大, 不能作为机器配置。</translation>
    </message>
    <message>
        <source>%1 is no text, and so no machine profile.</source>
        <translation>%1 不是文本, 不能作为机器配置。</translation>
    </message>
    <message>
        <source>A line is a [section] or a key = value.</source>
        <translation>每行应为 [节] 或 键 = 值。</translation>
    </message>
    <message>
        <source>There is no section [%1].</source>
        <translation>没有 [%1] 节。</translation>
    </message>
    <message>
        <source>A key stands before the first section.</source>
        <translation>第一节之前有键。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands there twice.</source>
        <translation>“%1”出现了两次。</translation>
    </message>
    <message>
        <source>An axis is: letter = role, unit, minimum, maximum.</source>
        <translation>轴的写法: 字母 = 用途, 单位, 最小值, 最大值。</translation>
    </message>
    <message>
        <source>Another axis is the %1 already.</source>
        <translation>已有另一个轴是 %1。</translation>
    </message>
    <message>
        <source>The unit of this axis is mm.</source>
        <translation>该轴的单位是 mm。</translation>
    </message>
    <message>
        <source>The unit of this axis is N.</source>
        <translation>该轴的单位是 N。</translation>
    </message>
    <message>
        <source>There are too many axes.</source>
        <translation>轴太多。</translation>
    </message>
    <message>
        <source>A function is: G or M with a number = action, modal group.</source>
        <translation>功能的写法: G 或 M 加数字 = 动作, 模态组。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no letter.</source>
        <translation>“%1”不是字母。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of a tool, or stands there twice.</source>
        <translation>“%1”不是刀具号, 或出现了两次。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size of IEC 60317, as &quot;0.250 grade 1&quot; is.</source>
        <translation>“%1”不是 IEC 60317 的规格, 例如“0.250 grade 1”。</translation>
    </message>
    <message>
        <source>The letter %1 means something already.</source>
        <translation>字母 %1 已有含义。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number from %2 to %3.</source>
        <translation>“%1”不是 %2 到 %3 之间的数。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of: %2.</source>
        <translation>“%1”不属于: %2。</translation>
    </message>
    <message>
        <source>%1: no axis is the traverse.</source>
        <translation>%1: 没有排线轴 (traverse)。</translation>
    </message>
    <message>
        <source>%1: the bobbin needs a core and a width.</source>
        <translation>%1: 线轴缺少芯径和宽度。</translation>
    </message>
    <message>
        <source>%1: the flange is narrower than the core.</source>
        <translation>%1: 法兰小于芯径。</translation>
    </message>
    <message>
        <source>%1: the conductor is wider than the wire.</source>
        <translation>%1: 导体比导线粗。</translation>
    </message>
    <message>
        <source>%1: a dwell needs &quot;dwell = letter&quot; in [words].</source>
        <translation>%1: 停留需要在 [words] 中写 &quot;dwell = 字母&quot;。</translation>
    </message>
    <message>
        <source>%1: the letter of the dwell means something already.</source>
        <translation>%1: 停留的字母已有含义。</translation>
    </message>
    <message>
        <source>There is no key &quot;%1&quot; in [%2].</source>
        <translation>[%2] 中没有键“%1”。</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, 第 %2 行: %3</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 不是文件。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>无法读取 %1: %2。</translation>
    </message>
</context>
<context>
    <name>OwnTransfer</name>
    <message>
        <source>The machine has not ended the last download yet. Wait, then download once more.</source>
        <translation>上次向机器的下载尚未结束。请等待, 然后重新下载。</translation>
    </message>
    <message>
        <source>The machine stopped answering: whether it holds %1 is not known. Check it, then download again.</source>
        <translation>机器停止响应: 其中是否有 %1 尚不清楚。请检查机器, 然后重新下载。</translation>
    </message>
    <message>
        <source>%1 is in the machine.</source>
        <translation>%1 已在机器中。</translation>
    </message>
</context>
<context>
    <name>PickerFacts</name>
    <message>
        <source>Reading %1 ...</source>
        <translation>正在读取 %1 ...</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>面板存储器无应答。</translation>
    </message>
    <message>
        <source>A new program.</source>
        <translation>新程序。</translation>
    </message>
    <message>
        <source>There is no program of this name.</source>
        <translation>没有此名称的程序。</translation>
    </message>
    <message>
        <source>This is no program file.</source>
        <translation>这不是程序文件。</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>无法读取: %1。</translation>
    </message>
    <message>
        <source>It is there already.</source>
        <translation>已存在。</translation>
    </message>
    <message>
        <source>More than %1 lines: too long to be read here.</source>
        <translation>超过 %1 行: 太长, 此处不读取。</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>Reading: %1 %</source>
        <translation>读取: %1 %</translation>
    </message>
    <message>
        <source>%1 turns, %2 m of wire</source>
        <translation>%1 匝, 线长 %2 m</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>Not read to its end: it was stopped.</source>
        <translation>未读完: 已停止。</translation>
    </message>
    <message>
        <source>Runs for %1</source>
        <translation>运行 %1</translation>
    </message>
</context>
<context>
    <name>PickerFitting</name>
    <message>
        <source>Program name</source>
        <translation>程序名称</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>程序</translation>
    </message>
</context>
<context>
    <name>PickerGuard</name>
    <message>
        <source>%1 is now at the end of the name. Press OK once more, or change the name.</source>
        <translation>名称末尾现在是 %1。请再按“确定”, 或更改名称。</translation>
    </message>
</context>
<context>
    <name>PickerStrip</name>
    <message>
        <source>Save the program as</source>
        <translation>程序另存为</translation>
    </message>
    <message>
        <source>Remove a program</source>
        <translation>删除程序</translation>
    </message>
    <message>
        <source>Open a program</source>
        <translation>打开程序</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>最近</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>名称的一部分</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>%1 of %2 programs</source>
        <translation>%1 / %2 个程序</translation>
    </message>
    <message>
        <source>Programs: %1</source>
        <translation>程序: %1</translation>
    </message>
    <message>
        <source>The folder is read-only.</source>
        <translation>文件夹为只读。</translation>
    </message>
    <message>
        <source>Order: %1</source>
        <translation>排序: %1</translation>
    </message>
</context>
<context>
    <name>PickerTable</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
</context>
<context>
    <name>PlcTransfer</name>
    <message>
        <source>The PLC does not answer: there is no folder %1.</source>
        <translation>PLC 无应答: 文件夹 %1 不存在。</translation>
    </message>
    <message>
        <source>The PLC folder is the program directory itself. Choose another one.</source>
        <translation>PLC 文件夹就是程序目录本身。请另选一个。</translation>
    </message>
    <message>
        <source>The program %1 is larger than the PLC takes (%2 MB).</source>
        <translation>程序 %1 超过 PLC 的容量 (%2 MB)。</translation>
    </message>
    <message>
        <source>The PLC does not take the program: %1.</source>
        <translation>PLC 不接受该程序: %1。</translation>
    </message>
    <message>
        <source>What arrived in the PLC cannot be read back: %1.</source>
        <translation>无法从 PLC 回读: %1。</translation>
    </message>
    <message>
        <source>What arrived in the PLC differs from what was sent. It was taken out again; download once more.</source>
        <translation>PLC 收到的内容与发送的不同, 已被移除; 请重新下载。</translation>
    </message>
    <message>
        <source>The download was stopped before the program in the PLC was compared. Download it once more.</source>
        <translation>下载在校验之前停止。请重新下载。</translation>
    </message>
    <message>
        <source>The copy of %1 has changed since it was shown, and was not sent. Download once more.</source>
        <translation>%1 的副本在显示后已改变, 未下载。请重新下载。</translation>
    </message>
    <message>
        <source>%1 is in the PLC, but the PLC does not say that it is stored: %2. Download once more.</source>
        <translation>%1 已在 PLC 中, 但 PLC 未确认已保存: %2。请重新下载。</translation>
    </message>
    <message>
        <source>What is in the PLC as %1 differs from what was sent. Do not run it; download once more.</source>
        <translation>PLC 中的 %1 与下载的内容不同。请勿运行; 重新下载。</translation>
    </message>
    <message>
        <source>The last download has not ended yet. Wait, or switch the PLC off and on, then download once more.</source>
        <translation>上次下载尚未结束。请等待, 或将 PLC 断电重启, 然后重新下载。</translation>
    </message>
    <message>
        <source>The PLC stopped answering: whether it holds %1 is not known. Check it, then download again.</source>
        <translation>PLC 停止响应: 其中是否有 %1 尚不清楚。请检查 PLC, 然后重新下载。</translation>
    </message>
    <message>
        <source>%1 is in the PLC but not compared: the PLC stopped answering. Check the PLC, then download again.</source>
        <translation>%1 已在 PLC 中但未校验: PLC 停止响应。请检查 PLC, 然后重新下载。</translation>
    </message>
    <message>
        <source>The PLC stopped answering during the download. Check the PLC and its cable, then download once more.</source>
        <translation>下载途中 PLC 停止响应。请检查 PLC 和电缆, 然后重新下载。</translation>
    </message>
</context>
<context>
    <name>ProgramGuard</name>
    <message>
        <source>A program is being loaded. Wait until all of it is here.</source>
        <translation>正在加载程序。请等待加载完成。</translation>
    </message>
    <message>
        <source>the panel&apos;s storage does not answer</source>
        <translation>面板存储器无应答</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save without them</source>
        <translation>去掉后保存</translation>
    </message>
    <message>
        <source>Save as shown</source>
        <translation>按显示保存</translation>
    </message>
    <message>
        <source>Other name</source>
        <translation>换名保存</translation>
    </message>
    <message>
        <source>%1 is not stored: %2. Do not switch off: the whole program is only in the editor.</source>
        <translation>%1 未保存: %2。请勿关机: 完整程序只在编辑器中。</translation>
    </message>
    <message>
        <source>%1 saved, %2 lines.</source>
        <translation>%1 已保存, %2 行。</translation>
    </message>
    <message>
        <source>%1 has characters that the file cannot hold; they were replaced.</source>
        <translation>%1 含有文件无法保存的字符; 已被替换。</translation>
    </message>
    <message>
        <source>%1 is on the stick as %2. On the panel it is not stored: %3.</source>
        <translation>%1 已作为 %2 存到 U 盘。面板上未保存: %3。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer.</source>
        <translation>面板存储器无应答。</translation>
    </message>
    <message>
        <source>%1 is not a program file. Take another name.</source>
        <translation>%1 不是程序文件。请换一个名称。</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Write over it</source>
        <translation>覆盖</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>%1 is open, with changes that are not saved. They are lost with it.</source>
        <translation>%1 已打开, 有未保存的更改。删除后更改也会丢失。</translation>
    </message>
    <message>
        <source>Remove it</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>%1 could not be removed: it is still there.</source>
        <translation>无法删除 %1: 它仍然存在。</translation>
    </message>
    <message>
        <source>%1 is there already: %2 lines, of %3. Write this program over it?</source>
        <translation>%1 已存在: %2 行, %3。用此程序覆盖吗?</translation>
    </message>
    <message>
        <source>This program: %1 lines</source>
        <translation>此程序: %1 行</translation>
    </message>
</context>
<context>
    <name>ProgramHistory</name>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1: %2。</translation>
    </message>
    <message>
        <source>This version of %1 is not in the history any more.</source>
        <translation>历史中已没有 %1 的这个版本。</translation>
    </message>
    <message>
        <source>This version of %1 is damaged and was not brought back. Try the one before it.</source>
        <translation>%1 的这个版本已损坏, 未恢复。请试前一个版本。</translation>
    </message>
    <message>
        <source>%1 is brought back: %2 %</source>
        <translation>正在恢复 %1: %2 %</translation>
    </message>
    <message>
        <source>Stopped. %1 is as it was.</source>
        <translation>已停止。%1 保持不变。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering; %1 was not brought back.</source>
        <translation>面板存储器停止响应; %1 未恢复。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering: nothing goes into the history any more. Switch the panel off and on.</source>
        <translation>面板存储器停止响应: 历史不再保存。请关闭面板后重新打开。</translation>
    </message>
    <message>
        <source>%1 was not brought back.</source>
        <translation>%1 未恢复。</translation>
    </message>
    <message>
        <source>%1 was not brought back: what it is now cannot be kept in the history first.</source>
        <translation>%1 未恢复: 无法先保存其现有内容。</translation>
    </message>
    <message>
        <source>%1 is back as of %2. Open it to see it.</source>
        <translation>%1 已恢复到 %2 的版本。打开即可查看。</translation>
    </message>
    <message>
        <source>%1 is back, but it is not certain that it is stored: %2.</source>
        <translation>%1 已恢复, 但不能确定已保存: %2。</translation>
    </message>
    <message>
        <source>%1 was not brought back: it is being written. Try again when that is over.</source>
        <translation>%1 未恢复: 正在写入。请稍后重试。</translation>
    </message>
    <message>
        <source>The history has not taken in %1 yet.</source>
        <translation>历史尚未保存 %1。</translation>
    </message>
    <message>
        <source>%1 was not brought back: the last restore has not ended yet. Switch the panel off and on.</source>
        <translation>%1 未恢复: 上次恢复尚未完成。请关闭面板后重新打开。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering: the version of %1 is not known. Switch the panel off and on.</source>
        <translation>面板存储器停止响应: %1 的版本尚不清楚。请关闭面板后重新打开。</translation>
    </message>
</context>
<context>
    <name>ProgramKeeper</name>
    <message>
        <source>One moment: the history takes in the program first.</source>
        <translation>请稍候: 历史先保存该程序。</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>仍然继续</translation>
    </message>
    <message>
        <source>What %1 is now would be lost.</source>
        <translation>%1 的现有内容将丢失。</translation>
    </message>
</context>
<context>
    <name>ProgramName</name>
    <message>
        <source>Give the program a name.</source>
        <translation>请给程序命名。</translation>
    </message>
    <message>
        <source>A name holds no &quot;/&quot;: programs lie in one folder.</source>
        <translation>名称不能含“/”: 程序都在同一个文件夹中。</translation>
    </message>
    <message>
        <source>A name that begins with a dot is hidden from the lists. Take another one.</source>
        <translation>以点开头的名称不会出现在列表中。请换一个。</translation>
    </message>
    <message>
        <source>New program</source>
        <translation>新程序</translation>
    </message>
</context>
<context>
    <name>ProgramSnapshot</name>
    <message>
        <source>The program %1 cannot be held for the download: %2.</source>
        <translation>无法为下载准备程序 %1: %2。</translation>
    </message>
    <message>
        <source>The program %1 is being written. Download it when that is over.</source>
        <translation>程序 %1 正在写入。请稍后下载。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering. Switch the panel off and on, then download once more.</source>
        <translation>面板存储器停止响应。请关闭面板后重新打开, 再重新下载。</translation>
    </message>
</context>
<context>
    <name>ProgramState</name>
    <message>
        <source>Not compared with the file: %1</source>
        <translation>未与文件比较: %1</translation>
    </message>
    <message>
        <source>Not as in the file: it has characters that cannot be shown, or has changed</source>
        <translation>与文件不同: 文件含有无法显示的字符, 或已更改</translation>
    </message>
    <message>
        <source>Not as in the file: %1 lines there, %2 shown</source>
        <translation>与文件不同: 文件 %1 行, 显示 %2 行</translation>
    </message>
    <message>
        <source>Incomplete: %1 lines in the file, %2 shown</source>
        <translation>不完整: 文件中 %1 行, 显示 %2 行</translation>
    </message>
    <message>
        <source>%1 is not stored: %2</source>
        <translation>%1 未保存: %2</translation>
    </message>
    <message>
        <source>%1 is shown otherwise than the file has it. Saving replaces the file by what is shown.</source>
        <translation>%1 的显示与文件不同。保存会用显示的内容替换文件。</translation>
    </message>
    <message>
        <source>%1 is not stored: %2. Save it first.</source>
        <translation>%1 未保存: %2。请先保存。</translation>
    </message>
    <message>
        <source>%1 lines in the file, %2 shown: no comments, no empty lines</source>
        <translation>文件中 %1 行, 显示 %2 行: 省略了注释和空行</translation>
    </message>
    <message>
        <source>%1 has %2 lines, %3 are shown. Saving takes out its comments and empty lines.</source>
        <translation>%1 有 %2 行, 显示 %3 行。保存会删去注释和空行。</translation>
    </message>
    <message>
        <source>Only a part of %1 is here: saving or sending loses the rest. Open it again, or take another name.</source>
        <translation>只有 %1 的一部分: 保存或下载会丢失其余部分。请重新打开, 或另存为其他名称。</translation>
    </message>
</context>
<context>
    <name>ProgramVerdict</name>
    <message>
        <source>Nothing found</source>
        <translation>未发现问题</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>错误：%1，警告：%2</translation>
    </message>
    <message>
        <source>Not checked to the end</source>
        <translation>未检查完毕</translation>
    </message>
</context>
<context>
    <name>ProgramWalk</name>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
</context>
<context>
    <name>RowFile</name>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>无法写入 %1: %2。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>无法读取 %1: %2。</translation>
    </message>
    <message>
        <source>%1 is not a text file.</source>
        <translation>%1 不是文本文件。</translation>
    </message>
</context>
<context>
    <name>RowKeeper</name>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 不是文件。</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 太大。</translation>
    </message>
    <message>
        <source>%1 is missing; what could not be read is %2.</source>
        <translation>%1 不存在; 无法读取的内容在 %2 中。</translation>
    </message>
    <message>
        <source>%1 is not stored: %2.</source>
        <translation>%1 未保存: %2。</translation>
    </message>
    <message>
        <source>%1 is not stored: the file that stands there cannot be put aside: %2.</source>
        <translation>%1 未保存: 无法将现有文件改名留存: %2。</translation>
    </message>
    <message>
        <source>%1 cannot be read: the panel&apos;s storage does not answer.</source>
        <translation>无法读取 %1: 面板存储器无应答。</translation>
    </message>
    <message>
        <source>%1 is not stored: the panel&apos;s storage does not answer.</source>
        <translation>%1 未保存: 面板存储器无应答。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage does not answer: nobody knows whether %1 is stored.</source>
        <translation>面板存储器无应答: %1 是否已保存尚不清楚。</translation>
    </message>
</context>
<context>
    <name>RowText</name>
    <message>
        <source>This is not a text file.</source>
        <translation>这不是文本文件。</translation>
    </message>
    <message>
        <source>Line %1 is not written as CSV.</source>
        <translation>第 %1 行不是 CSV 格式。</translation>
    </message>
    <message>
        <source>Line %1 is not written as JSON of rows.</source>
        <translation>第 %1 行不是行数据的 JSON 格式。</translation>
    </message>
</context>
<context>
    <name>Stick</name>
    <message>
        <source>The stick is the panel&apos;s own: plug it into the panel.</source>
        <translation>这是面板自己的 U 盘: 请插入面板。</translation>
    </message>
    <message>
        <source>Another stick is plugged: %1 is there already.</source>
        <translation>已插入另一个 U 盘: %1 已存在。</translation>
    </message>
    <message>
        <source>The folder %1, which stands for the stick, cannot be made.</source>
        <translation>无法创建代表 U 盘的文件夹 %1。</translation>
    </message>
    <message>
        <source>The marker %1 cannot be made: %2.</source>
        <translation>无法创建标记 %1: %2。</translation>
    </message>
    <message>
        <source>The stick stays out: the mount point %1 is not this program&apos;s to change.</source>
        <translation>U 盘未插入: 挂载点 %1 不归本程序更改。</translation>
    </message>
</context>
<context>
    <name>StoreCheck</name>
    <message>
        <source>the panel&apos;s storage stopped answering</source>
        <translation>面板存储器停止响应</translation>
    </message>
    <message>
        <source>the file holds something else than the editor</source>
        <translation>文件内容与编辑器不同</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Save to the stick</source>
        <translation>存到 U 盘</translation>
    </message>
    <message>
        <source>the stick stopped answering</source>
        <translation>U 盘停止响应</translation>
    </message>
    <message>
        <source>neither here nor on the stick (%1)</source>
        <translation>面板和 U 盘上都没有 (%1)</translation>
    </message>
    <message>
        <source>neither here nor on the stick, which is out</source>
        <translation>此处和已拔出的 U 盘都未保存</translation>
    </message>
    <message>
        <source>neither here nor on the stick, whose file differs</source>
        <translation>面板和 U 盘上都没有, U 盘上的文件不同</translation>
    </message>
    <message>
        <source>%1 is not stored. The whole program is only in the editor.</source>
        <translation>%1 未保存。完整程序只在编辑器中。</translation>
    </message>
</context>
<context>
    <name>UnsavedList</name>
    <message>
        <source>%1, %2, rows: %3</source>
        <translation>%1, %2, 行数: %3</translation>
    </message>
</context>
<context>
    <name>UnsavedOffer</name>
    <message>
        <source>Unsaved work of an earlier run cannot be read. It was put aside: %1.</source>
        <translation>无法读取上次运行中未保存的工作。已改名留存: %1。</translation>
    </message>
    <message>
        <source>%1 was not brought back. It is offered again at the next start.</source>
        <translation>%1 未恢复。下次启动时会再次提供。</translation>
    </message>
    <message>
        <source>%1: brought back, not stored yet.</source>
        <translation>%1: 已恢复, 尚未保存。</translation>
    </message>
    <message>
        <source>%1 had not been loaded whole. What was not saved of it is a new program now.</source>
        <translation>%1 未完整加载。其未保存的内容现为新程序。</translation>
    </message>
    <message>
        <source>%1 is not there any more. What was not saved of it is a new program now.</source>
        <translation>%1 已不存在。其未保存的内容现为新程序。</translation>
    </message>
    <message>
        <source>%1: brought back, not saved yet. The file has changed since then: Save covers that.</source>
        <translation>%1: 已恢复, 尚未保存。文件此后已更改: “保存”会将其覆盖。</translation>
    </message>
    <message>
        <source>%1: brought back, not saved yet.</source>
        <translation>%1: 已恢复, 尚未保存。</translation>
    </message>
    <message>
        <source>%1, %2, lines: %3</source>
        <translation>%1, %2, 行数: %3</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>未保存的工作</translation>
    </message>
    <message>
        <source>Throw the unsaved work away for good?</source>
        <translation>永久丢弃未保存的工作吗?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Throw away</source>
        <translation>丢弃</translation>
    </message>
    <message>
        <source>This was not saved when the panel ended. Bring it back?</source>
        <translation>面板结束时以下内容未保存。要恢复吗?</translation>
    </message>
    <message>
        <source>Keep for later</source>
        <translation>留待以后</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>恢复</translation>
    </message>
</context>
<context>
    <name>UnsavedWork</name>
    <message>
        <source>the storage does not answer</source>
        <translation>存储器无应答</translation>
    </message>
    <message>
        <source>What is not saved cannot be kept for a power cut: %1. Save soon.</source>
        <translation>未保存的内容无法防止断电丢失: %1。请尽快保存。</translation>
    </message>
</context>
<context>
    <name>WindingReview</name>
    <message>
        <source>%1 is not a program file.</source>
        <translation>%1 不是程序文件。</translation>
    </message>
    <message>
        <source>The program %1 cannot be read: %2.</source>
        <translation>无法读取程序 %1: %2。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering. Switch the panel off and on, then try once more.</source>
        <translation>面板存储器停止响应。请关闭面板后重新打开, 再重试。</translation>
    </message>
</context>
</TS>
