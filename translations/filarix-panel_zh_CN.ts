<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BarPager</name>
    <message>
        <source>More</source>
        <translation>更多</translation>
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
        <source>The addresses are not stored: %1 cannot be written.</source>
        <translation>地址未保存: 无法写入 %1。</translation>
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
</context>
<context>
    <name>DownloadQuestion</name>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Send this program to the PLC?</source>
        <translation>将此程序下载到 PLC?</translation>
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
        <source>Send</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <source>Pick</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>U 盘</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
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
        <source>In. Files: %1, </source>
        <translation>已插入。文件: %1, </translation>
    </message>
    <message>
        <source>Out. </source>
        <translation>未插入。</translation>
    </message>
    <message>
        <source>All are safe for the transfer</source>
        <translation>均可安全传输</translation>
    </message>
    <message>
        <source>Names that are not safe: %1</source>
        <translation>不安全的文件名: %1</translation>
    </message>
    <message>
        <source>Files: %1, </source>
        <translation>文件: %1, </translation>
    </message>
    <message>
        <source>%1 KB of %2 MB</source>
        <translation>%1 KB, 共 %2 MB</translation>
    </message>
    <message>
        <source>None picked yet</source>
        <translation>尚未选择</translation>
    </message>
    <message>
        <source>simulated: %1</source>
        <translation>模拟:%1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
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
    <name>HistoryGuard</name>
    <message>
        <source>One moment: the history still takes in the programs. Touch once more.</source>
        <translation>请稍候: 历史正在保存程序。请再按一次。</translation>
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
</context>
<context>
    <name>ImportGuard</name>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>The transfer would not take these file names for what they are. Rename?</source>
        <translation>传输无法正确识别这些文件名。是否重命名?</translation>
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
</context>
<context>
    <name>LanguagePicker</name>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Light colours</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark colours</source>
        <translation>深色</translation>
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
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
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
        <source>The translation is not installed.</source>
        <translation>未安装该语言的翻译。</translation>
    </message>
</context>
<context>
    <name>PlcTransfer</name>
    <message>
        <source>The download was stopped. The PLC keeps what it had.</source>
        <translation>下载已停止。PLC 保持原有内容。</translation>
    </message>
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
        <source>The program %1 cannot be read: %2.</source>
        <translation>无法读取程序 %1: %2。</translation>
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
        <source>The PLC stopped answering in the middle of the download. Check the PLC and its cable, then download once more.</source>
        <translation>下载途中 PLC 停止响应。请检查 PLC 和电缆, 然后重新下载。</translation>
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
        <source>%1 cannot be replaced in the program directory.</source>
        <translation>无法替换程序目录中的 %1。</translation>
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
</context>
<context>
    <name>ProgramScreen</name>
    <message>
        <source>%1 is in the PLC: %2 bytes, compared.</source>
        <translation>%1 已在 PLC 中: %2 字节, 校验一致。</translation>
    </message>
    <message>
        <source>New program</source>
        <translation>新程序</translation>
    </message>
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
        <source>%1 goes to the PLC: %2 %</source>
        <translation>正在将 %1 下载到 PLC: %2 %</translation>
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
        <source>Nothing was sent. The PLC keeps what it had.</source>
        <translation>未下载。PLC 保持原有内容。</translation>
    </message>
    <message>
        <source>The program is made ready: %1 %</source>
        <translation>正在准备程序: %1 %</translation>
    </message>
    <message>
        <source>%1 is in the PLC as it was shown, %2. On the panel it has changed since then: download it again to send the new one.</source>
        <translation>%1 已按显示的内容下载到 PLC, %2。面板上的程序此后已更改: 如需新程序请重新下载。</translation>
    </message>
    <message>
        <source>%1 is in the PLC as it was shown, %2. On the panel it is gone.</source>
        <translation>%1 已按显示的内容下载到 PLC, %2。面板上已没有此程序。</translation>
    </message>
</context>
<context>
    <name>ProgramSnapshot</name>
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
        <source>The program %1 cannot be held for the download: %2.</source>
        <translation>无法为下载准备程序 %1: %2。</translation>
    </message>
    <message>
        <source>The program %1 is being written. Download it when that is over.</source>
        <translation>程序 %1 正在写入。请稍后下载。</translation>
    </message>
    <message>
        <source>The download was stopped. The PLC keeps what it had.</source>
        <translation>下载已停止。PLC 保持原有内容。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering. Switch the panel off and on, then download once more.</source>
        <translation>面板存储器停止响应。请关闭面板后重新打开, 再重新下载。</translation>
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
        <source>The mount point %1 is not this program&apos;s to change. Start it by &quot;./run --stick DIR&quot; to try a stick.</source>
        <translation>挂载点 %1 不归本程序更改。要试用 U 盘, 请用“./run --stick DIR”启动。</translation>
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
</context>
<context>
    <name>TeachScreen</name>
    <message>
        <source>Joint</source>
        <translation>关节</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>直线</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
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
        <source>Instructions removed: %1. Load brings the stored ones back.</source>
        <translation>已删除指令: %1。“加载”可恢复已保存的指令。</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
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
</context>
</TS>
