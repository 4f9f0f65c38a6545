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
        <source>%1 is in the PLC as it was shown, %2. On the panel it has changed since then: download it again to send the new one.</source>
        <translation>%1 已按显示的内容下载到 PLC, %2。面板上的程序此后已更改: 如需新程序请重新下载。</translation>
    </message>
    <message>
        <source>%1 is in the PLC as it was shown, %2. On the panel it is gone.</source>
        <translation>%1 已按显示的内容下载到 PLC, %2。面板上已没有此程序。</translation>
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
        <source>The transfer would not take these file names for what they are. Nothing is copied or deleted until they are renamed.</source>
        <translation>传输会误解这些文件名。重命名之前不会复制或删除任何文件。</translation>
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
        <source>%1 What %2 is now would be lost.</source>
        <translation>%1 %2 的现有内容将丢失。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>仍然继续</translation>
    </message>
</context>
<context>
    <name>PickerGuard</name>
    <message>
        <source>%1 is added to the name. Press OK to take it, or take it away again.</source>
        <translation>名称已加上 %1。按“确定”采用, 或将其删去。</translation>
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
        <source>The PLC stopped answering in the middle of the download. Check the PLC and its cable, then download once more.</source>
        <translation>下载途中 PLC 停止响应。请检查 PLC 和电缆, 然后重新下载。</translation>
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
        <source>The PLC has not said yet what became of the last download. Wait for it, or switch the PLC off and on, then download once more.</source>
        <translation>PLC 尚未报告上次下载的结果。请等待, 或将 PLC 断电重启, 然后重新下载。</translation>
    </message>
    <message>
        <source>The PLC stopped answering while it took %1: which of the two it holds is not known. Check the PLC, then download once more.</source>
        <translation>PLC 在接收 %1 时停止响应: 其中是旧程序还是新程序尚不清楚。请检查 PLC, 然后重新下载。</translation>
    </message>
    <message>
        <source>%1 is in the PLC, but the PLC stopped answering before it was compared. Check the PLC, then download once more.</source>
        <translation>%1 已在 PLC 中, 但 PLC 在校验之前停止响应。请检查 PLC, 然后重新下载。</translation>
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
        <source>%1 is there already: %2 lines, of %3. Write this program over it, %4 lines?</source>
        <translation>%1 已存在: %2 行, %3。用此程序 (%4 行) 覆盖吗?</translation>
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
        <source>%1 was not brought back: the panel&apos;s storage has not ended the last restore yet. Switch the panel off and on.</source>
        <translation>%1 未恢复: 面板存储器尚未完成上次恢复。请关闭面板后重新打开。</translation>
    </message>
    <message>
        <source>The panel&apos;s storage stopped answering while %1 was brought back: which version it is now is not known. Switch the panel off and on.</source>
        <translation>恢复 %1 时面板存储器停止响应: 现在是哪个版本尚不清楚。请关闭面板后重新打开。</translation>
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
        <source>%1 What %2 is now would be lost.</source>
        <translation>%1 %2 的现有内容将丢失。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>All the same</source>
        <translation>仍然继续</translation>
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
        <source>%1 lines in the file, %2 shown: comments and empty lines are left out</source>
        <translation>文件中 %1 行, 显示 %2 行: 省略了注释和空行</translation>
    </message>
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
        <source>%1 has %2 lines in the file, %3 are shown. Saving takes the comments and empty lines out of the file.</source>
        <translation>%1 在文件中有 %2 行, 显示 %3 行。保存会从文件中删去注释和空行。</translation>
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
        <source>Only a part of %1 is here: saving or sending it would lose the rest. Open it again, or save the part under another name.</source>
        <translation>只有 %1 的一部分: 保存或下载会丢失其余部分。请重新打开, 或将这部分另存为其他名称。</translation>
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
        <source>%1 is not stored: %2. The whole program is only in the editor.</source>
        <translation>%1 未保存: %2。完整程序只在编辑器中。</translation>
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
        <source>New program</source>
        <translation>新程序</translation>
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
</TS>
