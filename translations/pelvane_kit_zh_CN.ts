<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AlertController</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>AlreadyOpen</name>
    <message>
        <source>Collection In Use</source>
        <translation>收藏正在使用中</translation>
    </message>
    <message>
        <source>This collection is open in another Pelvane (named below). Carry on there, or start Pelvane again once it is closed.</source>
        <translation>此收藏已在另一个 Pelvane 中打开（见下文）。请在那里继续，或在其关闭后重新启动 Pelvane。</translation>
    </message>
</context>
<context>
    <name>AppMenuBar</name>
    <message>
        <source>Licence: GNU General Public License, version 3 or later (GPL-3.0-or-later), without warranty of any kind.</source>
        <translation>许可证：GNU 通用公共许可证第 3 版或更高版本（GPL-3.0-or-later），不提供任何担保。</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>卡片</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>List Coins</source>
        <translation>钱币列表</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Coin Valuation</source>
        <translation>钱币估值</translation>
    </message>
    <message>
        <source>Reference Lists</source>
        <translation>参考列表</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Recent Changes</source>
        <translation>最近的更改</translation>
    </message>
    <message>
        <source>Cannot Redo</source>
        <translation>无法重做</translation>
    </message>
    <message>
        <source>Cannot Undo</source>
        <translation>无法撤销</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>撤销：%1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>重做：%1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Pelvane %1

A catalogue of a personal coin collection that keeps everything on your machine.

%2</source>
        <translation>Pelvane %1

个人钱币收藏目录，所有数据都保存在您的电脑上。

%2</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Import Coins…</source>
        <translation>导入钱币…</translation>
    </message>
    <message>
        <source>Export Coins…</source>
        <translation>导出钱币…</translation>
    </message>
    <message>
        <source>Back Up Collection…</source>
        <translation>备份收藏…</translation>
    </message>
    <message>
        <source>Restore From Backup…</source>
        <translation>从备份恢复…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Recent Changes…</source>
        <translation>最近的更改…</translation>
    </message>
    <message>
        <source>Recently Deleted…</source>
        <translation>最近删除…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>深色外观</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>转到(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Pelvane Overview</source>
        <translation>Pelvane 概览</translation>
    </message>
    <message>
        <source>About Pelvane</source>
        <translation>关于 Pelvane</translation>
    </message>
    <message>
        <source>Your collection and its photos are kept in %1.</source>
        <translation>您的收藏及其照片保存在 %1。</translation>
    </message>
</context>
<context>
    <name>AppStoryboard</name>
    <message>
        <source>Denomination</source>
        <translation>面值</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国家</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年份</translation>
    </message>
</context>
<context>
    <name>CoinDocument</name>
    <message>
        <source>Coin Denomination: </source>
        <translation>钱币面值：</translation>
    </message>
    <message>
        <source>Coin Year: </source>
        <translation>铸造年份：</translation>
    </message>
    <message>
        <source>Quantity: </source>
        <translation>数量：</translation>
    </message>
    <message>
        <source>Description: </source>
        <translation>描述：</translation>
    </message>
    <message>
        <source>Country: </source>
        <translation>国家：</translation>
    </message>
    <message>
        <source>Diameter: </source>
        <translation>直径：</translation>
    </message>
    <message>
        <source>Weight: </source>
        <translation>重量：</translation>
    </message>
    <message>
        <source>Thickness: </source>
        <translation>厚度：</translation>
    </message>
    <message>
        <source>Strike Character: </source>
        <translation>铸造品质：</translation>
    </message>
    <message>
        <source>Grade #: </source>
        <translation>品相等级编号：</translation>
    </message>
    <message>
        <source>Edge: </source>
        <translation>边齿：</translation>
    </message>
    <message>
        <source>Mint Mark: </source>
        <translation>造币厂标记：</translation>
    </message>
    <message>
        <source>Mint Location: </source>
        <translation>造币厂所在地：</translation>
    </message>
    <message>
        <source>Serial #: </source>
        <translation>序列号：</translation>
    </message>
    <message>
        <source>Period: </source>
        <translation>时期：</translation>
    </message>
    <message>
        <source>Designer: </source>
        <translation>设计者：</translation>
    </message>
    <message>
        <source>Value: </source>
        <translation>价值：</translation>
    </message>
    <message>
        <source>Notes: </source>
        <translation>备注：</translation>
    </message>
    <message>
        <source>Year: </source>
        <translation>年份：</translation>
    </message>
    <message>
        <source>Qty: </source>
        <translation>数量：</translation>
    </message>
    <message>
        <source>Total Value (Qty * Value): </source>
        <translation>总价值（数量 × 价值）：</translation>
    </message>
    <message>
        <source>Denomination: </source>
        <translation>面值：</translation>
    </message>
    <message>
        <source>Coins Filtered by Denomination: </source>
        <translation>按面值筛选的钱币：</translation>
    </message>
    <message>
        <source>Coins Filtered by Country: </source>
        <translation>按国家筛选的钱币：</translation>
    </message>
    <message>
        <source>Coins Filtered by Year: </source>
        <translation>按年份筛选的钱币：</translation>
    </message>
</context>
<context>
    <name>DesktopServices</name>
    <message>
        <source>Can&apos;t Open File</source>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>Can&apos;t Open Web Page</source>
        <translation>无法打开网页</translation>
    </message>
    <message>
        <source>No program is set up on this computer to open %1.</source>
        <translation>此电脑上没有设置可打开 %1 的程序。</translation>
    </message>
    <message>
        <source>No web browser is set up on this computer to open %1.</source>
        <translation>此电脑上没有设置可打开 %1 的网页浏览器。</translation>
    </message>
    <message>
        <source>Can&apos;t Send Email</source>
        <translation>无法发送电子邮件</translation>
    </message>
    <message>
        <source>The mail program of this computer could not be started.</source>
        <translation>无法启动此电脑的邮件程序。</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>另存为...</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Take Picture</source>
        <translation>拍照</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Enjoying Pelvane?</source>
        <translation>喜欢 Pelvane 吗？</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>以后再说</translation>
    </message>
</context>
<context>
    <name>FatalMessage</name>
    <message>
        <source>Fatal error</source>
        <translation>严重错误</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Addition of %1</source>
        <translation>添加 %1</translation>
    </message>
    <message>
        <source>Edit of %1</source>
        <translation>编辑 %1</translation>
    </message>
    <message>
        <source>Deletion of %1</source>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>Change of %1 records</source>
        <translation>更改 %1 条记录</translation>
    </message>
    <message>
        <source>Revaluation of %1</source>
        <translation>重新估值 %1</translation>
    </message>
    <message>
        <source>Notes Edit of %1</source>
        <translation>编辑 %1 的备注</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>导入 %1</translation>
    </message>
    <message>
        <source>Record Number Repair</source>
        <translation>修复记录编号</translation>
    </message>
    <message>
        <source>Filling of the Reference Lists</source>
        <translation>填充参考列表</translation>
    </message>
    <message>
        <source>Restore of %1</source>
        <translation>恢复 %1</translation>
    </message>
    <message>
        <source>Version Restore of %1</source>
        <translation>恢复 %1 的早期版本</translation>
    </message>
    <message>
        <source>Put Back of %1</source>
        <translation>放回 %1</translation>
    </message>
    <message>
        <source>The coin did not exist before that change.</source>
        <translation>在该更改之前这枚钱币并不存在。</translation>
    </message>
    <message>
        <source>That coin is not among the deleted coins.</source>
        <translation>这枚钱币不在已删除的钱币中。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>没有可撤销的操作。</translation>
    </message>
    <message>
        <source>That change cannot be undone any more.</source>
        <translation>该更改已无法撤销。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>没有可重做的操作。</translation>
    </message>
    <message>
        <source>Undid %1 steps, back to the %2</source>
        <translation>已撤销 %1 步，回到：%2</translation>
    </message>
    <message>
        <source>Redid %1 steps, from the %2</source>
        <translation>已重做 %1 步，从：%2</translation>
    </message>
    <message>
        <source>Undid the %1</source>
        <translation>已撤销：%1</translation>
    </message>
    <message>
        <source>Redid the %1</source>
        <translation>已重做：%1</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>已添加 %1</translation>
    </message>
    <message>
        <source>Edited %1</source>
        <translation>已编辑 %1</translation>
    </message>
    <message>
        <source>Deleted %1</source>
        <translation>已删除 %1</translation>
    </message>
    <message>
        <source>Changed %1 records</source>
        <translation>已更改 %1 条记录</translation>
    </message>
    <message>
        <source>Revalued %1</source>
        <translation>已重新估值 %1</translation>
    </message>
    <message>
        <source>Edited the notes of %1</source>
        <translation>已编辑 %1 的备注</translation>
    </message>
    <message>
        <source>Imported %1</source>
        <translation>已导入 %1</translation>
    </message>
    <message>
        <source>Repaired the record numbers of %1</source>
        <translation>已修复 %1 的记录编号</translation>
    </message>
    <message>
        <source>Filled the reference lists with %1 values</source>
        <translation>已用 %1 个值填充参考列表</translation>
    </message>
    <message>
        <source>Restored %1</source>
        <translation>已恢复 %1</translation>
    </message>
    <message>
        <source>Restored an earlier version of %1</source>
        <translation>已恢复 %1 的早期版本</translation>
    </message>
    <message>
        <source>Put back %1</source>
        <translation>已放回 %1</translation>
    </message>
</context>
<context>
    <name>LaunchOptions</name>
    <message>
        <source>Keep the collection and preferences in DIR.</source>
        <translation>将收藏和偏好设置保存在 DIR 中。</translation>
    </message>
    <message>
        <source>Write the exchange file of the collection to FILE and exit.</source>
        <translation>将收藏的交换文件写入 FILE 后退出。</translation>
    </message>
    <message>
        <source>Merge the exchange file FILE into the collection and exit.</source>
        <translation>将交换文件 FILE 合并到收藏中后退出。</translation>
    </message>
    <message>
        <source>Write an exact copy of the whole collection, pictures and all, to FILE and exit.</source>
        <translation>将整个收藏（包括图片）的完整副本写入 FILE 后退出。</translation>
    </message>
    <message>
        <source>Replace the collection with the backup or snapshot FILE (the current one is kept as a snapshot first) and exit.</source>
        <translation>用备份或快照 FILE 替换收藏（当前收藏会先保存为快照）后退出。</translation>
    </message>
    <message>
        <source>List the snapshots taken automatically and exit.</source>
        <translation>列出自动创建的快照后退出。</translation>
    </message>
    <message>
        <source>Print the number of coins, of pieces and the total value of the collection and exit.</source>
        <translation>输出收藏的钱币数、件数和总价值后退出。</translation>
    </message>
    <message>
        <source>Write the collection&apos;s pieces and total value at the end of every day on which they changed to FILE, as CSV, and exit.</source>
        <translation>将收藏在每个发生变化的日子结束时的件数和总价值以 CSV 格式写入 FILE 后退出。</translation>
    </message>
    <message>
        <source>Undo the last change made to the collection, say what it was and exit.</source>
        <translation>撤销对收藏的最后一次更改，说明其内容后退出。</translation>
    </message>
    <message>
        <source>List the last 50 changes made to the collection, newest first, and exit.</source>
        <translation>列出对收藏的最近 50 次更改（最新的在前）后退出。</translation>
    </message>
    <message>
        <source>Write the PDF report of a group and exit: KIND is denomination, country or year, followed by the group&apos;s VALUE.</source>
        <translation>写出某一分组的 PDF 报告后退出：KIND 为 denomination、country 或 year，后跟该分组的值 VALUE。</translation>
    </message>
    <message>
        <source>Write the report to FILE instead of the documents folder.</source>
        <translation>将报告写入 FILE，而不是文档文件夹。</translation>
    </message>
    <message>
        <source>Use the dark appearance.</source>
        <translation>使用深色外观。</translation>
    </message>
    <message>
        <source>Save a picture of the window to PNG and quit.</source>
        <translation>将窗口截图保存到 PNG 后退出。</translation>
    </message>
    <message>
        <source>Start with the menu opened.</source>
        <translation>启动时打开菜单。</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>显示此帮助后退出。</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>显示版本后退出。</translation>
    </message>
    <message>
        <source>pelvane: %1
Usage: pelvane [options]
Try &apos;pelvane --help&apos; for the options.</source>
        <translation>pelvane：%1
用法：pelvane [选项]
运行“pelvane --help”查看选项。</translation>
    </message>
    <message>
        <source>Usage: pelvane [options]
Pelvane, a catalogue of a coin collection. Without options it opens the catalogue&apos;s window.

Options:
</source>
        <translation>用法：pelvane [选项]
Pelvane，钱币收藏目录。不带选项时打开目录窗口。

选项：
</translation>
    </message>
    <message>
        <source>--%1 needs a %2, and the one given is empty.</source>
        <translation>--%1 需要一个 %2，但给出的为空。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>意外的参数“%1”。</translation>
    </message>
    <message>
        <source>--pdf names where a --report goes, and there is no --report.</source>
        <translation>--pdf 指定 --report 的输出位置，但没有 --report。</translation>
    </message>
    <message>
        <source>%1 cannot be combined.</source>
        <translation>%1 不能同时使用。</translation>
    </message>
    <message>
        <source> and </source>
        <translation> 和 </translation>
    </message>
</context>
<context>
    <name>NavigationController</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>返回到 %1</translation>
    </message>
</context>
<context>
    <name>PdfViewer</name>
    <message>
        <source>Document</source>
        <translation>文档</translation>
    </message>
</context>
<context>
    <name>PickerView</name>
    <message>
        <source>Choices</source>
        <translation>选项</translation>
    </message>
</context>
<context>
    <name>PrintController</name>
    <message>
        <source>The printer cannot be opened.</source>
        <translation>无法打开打印机。</translation>
    </message>
    <message>
        <source>The printer reported an error.</source>
        <translation>打印机报告了一个错误。</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
</context>
<context>
    <name>SearchController</name>
    <message>
        <source>Clear Search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
</context>
<context>
    <name>StoreCommands</name>
    <message>
        <source>No Snapshot Today</source>
        <translation>今天没有快照</translation>
    </message>
    <message>
        <source>Pelvane could not keep today&apos;s snapshot of the collection: %1

The collection itself is unchanged. To keep a copy, back it up from Import / Export.</source>
        <translation>Pelvane 无法保存今天的收藏快照：%1

收藏本身没有改变。如需保留副本，请在“导入 / 导出”中备份。</translation>
    </message>
</context>
<context>
    <name>TabBarController</name>
    <message>
        <source>Sections</source>
        <translation>分区</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表格</translation>
    </message>
    <message>
        <location filename="../platform/kit/TableViewGrid.cpp" line="92"/>
        <source>Column titles</source>
        <translation>列标题</translation>
    </message>
</context>
<context>
    <name>ViewController</name>
    <message>
        <source>Discard changes?</source>
        <translation>放弃更改？</translation>
    </message>
    <message>
        <source>What you changed here has not been saved.</source>
        <translation>您在此处所做的更改尚未保存。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>继续编辑</translation>
    </message>
</context>
</TS>
