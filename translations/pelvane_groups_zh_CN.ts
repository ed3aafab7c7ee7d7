<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
    <context>
        <name>AddReferenceViewController</name>
        <message>
            <location filename="../screens/reference/AddReferenceViewController.cpp" line="+29" />
            <location line="+6" />
            <source>Record not Saved!</source>
            <translation>记录未保存！</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Duplicates not allowed</source>
            <translation>不允许重复</translation>
        </message>
    </context>
    <context>
        <name>BreakdownTableViewController</name>
        <message>
            <location filename="../screens/groups/BreakdownTableViewController.cpp" line="+36" />
            <source>%1  Mint Mark: %2</source>
            <translation>%1  造币厂标记：%2</translation>
        </message>
        <message>
            <location line="+15" />
            <source>Denomination</source>
            <translation>面值</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort and Search By Year</source>
            <translation>按年份排序和搜索</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the denomination</source>
            <translation>该面值的钱币</translation>
        </message>
        <message>
            <location line="+8" />
            <location line="+29" />
            <source>%1 Total Value: %2</source>
            <translation>%1 总价值：%2</translation>
        </message>
        <message>
            <location line="-15" />
            <source>Country</source>
            <translation>国家</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort and Search By Denomination</source>
            <translation>按面值排序和搜索</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the country</source>
            <translation>该国家的钱币</translation>
        </message>
        <message>
            <location line="+7" />
            <source>%1  Country: %2</source>
            <translation>%1  国家：%2</translation>
        </message>
        <message>
            <location line="+17" />
            <source>Year</source>
            <translation>年份</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Search By Denomination</source>
            <translation>按面值搜索</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the year</source>
            <translation>该年份的钱币</translation>
        </message>
        <message>
            <location line="+6" />
            <source>Year: %1  Mint Mark: %2</source>
            <translation>年份：%1  造币厂标记：%2</translation>
        </message>
        <message>
            <location line="+5" />
            <source>Qty: %1</source>
            <translation>数量：%1</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Value: %1 Total Value: %2</source>
            <translation>价值：%1 总价值：%2</translation>
        </message>
        <message>
            <location line="+48" />
            <source>Share</source>
            <translation>分享</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Print</source>
            <translation>打印</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort</source>
            <translation>排序</translation>
        </message>
        <message>
            <location line="+2" />
            <source>View</source>
            <translation>视图</translation>
        </message>
        <message>
            <location line="+99" />
            <source># of Coins: %1</source>
            <translation>钱币数量：%1</translation>
        </message>
        <message>
            <location line="+14" />
            <source>Valuation for displayed coins: %1</source>
            <translation>所显示钱币的估值：%1</translation>
        </message>
        <message>
            <location line="+53" />
            <source>delete</source>
            <translation>删除</translation>
        </message>
    </context>
    <context>
        <name>CoinHistoryViewController</name>
        <message>
            <location filename="../screens/statistics/CoinHistoryViewController.cpp" line="+56" />
            <source>Changes of quantity and value</source>
            <translation>数量和价值的变化</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Date</source>
            <translation>日期</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Change</source>
            <translation>变化</translation>
        </message>
        <message>
            <location line="+0" />
            <location line="+32" />
            <source>Quantity</source>
            <translation>数量</translation>
        </message>
        <message>
            <location line="-32" />
            <location line="+32" />
            <source>Value</source>
            <translation>价值</translation>
        </message>
        <message>
            <location line="-32" />
            <source>Total Value</source>
            <translation>总价值</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Earlier versions</source>
            <translation>早期版本</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Version</source>
            <translation>版本</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Differs from now</source>
            <translation>与当前的差异</translation>
        </message>
        <message>
            <location line="+1" />
            <source>No earlier versions.</source>
            <translation>没有早期版本。</translation>
        </message>
        <message>
            <location line="+1" />
            <location line="+59" />
            <source>Restore This Version</source>
            <translation>恢复此版本</translation>
        </message>
        <message>
            <location line="-58" />
            <source>History</source>
            <translation>历史</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Front picture</source>
            <translation>正面图片</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Back picture</source>
            <translation>背面图片</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Country</source>
            <translation>国家</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Denomination</source>
            <translation>面值</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>年份</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Mint Mark</source>
            <translation>造币厂标记</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Grade</source>
            <translation>品相</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Quantity and Value</source>
            <translation>数量和价值</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Earlier Versions</source>
            <translation>早期版本</translation>
        </message>
        <message>
            <location line="+93" />
            <source>Versions Not Read</source>
            <translation>无法读取版本</translation>
        </message>
        <message>
            <location line="+8" />
            <source>Before: %1</source>
            <translation>之前：%1</translation>
        </message>
        <message>
            <location line="+25" />
            <source>Restore This Version?</source>
            <translation>恢复此版本？</translation>
        </message>
        <message>
            <location line="+1" />
            <source>The coin is written back as it was before the %1. The change can be undone in Recent Changes.</source>
            <translation>该钱币将恢复为“%1”之前的状态。此更改可在“最近更改”中撤销。</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Restore</source>
            <translation>恢复</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Version Not Restored</source>
            <translation>版本未恢复</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
    </context>
    <context>
        <name>DamagedStoreBanner</name>
        <message>
            <location filename="../screens/exchange/DamagedStoreBanner.cpp" line="+47" />
            <source>%1 at %2</source>
            <translation>%1 %2</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Your collection file is damaged</source>
            <translation>您的收藏文件已损坏</translation>
        </message>
        <message>
            <location line="+7" />
            <source>There is no whole snapshot to go back to. Restore a backup from Import / Export; the damaged file is moved aside, not deleted.</source>
            <translation>没有可以恢复的完整快照。请在“导入 / 导出”中恢复备份；损坏的文件会被移到一旁，而不是删除。</translation>
        </message>
        <message>
            <location line="+2" />
            <source>The newest whole snapshot is from %1 and holds %2. Restoring it moves the damaged file aside, not deleted.</source>
            <translation>最新的完整快照来自 %1，包含 %2。恢复它会将损坏的文件移到一旁，而不是删除。</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Restore Snapshot…</source>
            <translation>恢复快照…</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Restore the snapshot from %1</source>
            <translation>恢复 %1 的快照</translation>
        </message>
    </context>
    <context>
        <name>ExportViewController</name>
        <message>
            <location filename="../screens/exchange/ExportViewController.cpp" line="+21" />
            <source>Create Export File</source>
            <translation>创建导出文件</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save To Files</source>
            <translation>存储到文件</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Email File</source>
            <translation>通过电子邮件发送文件</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Contents of the export file</source>
            <translation>导出文件的内容</translation>
        </message>
        <message>
            <location line="+1" />
            <source>How to export</source>
            <translation>如何导出</translation>
        </message>
        <message>
            <location line="+20" />
            <source>Export Coins</source>
            <translation>导出钱币</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Step 1: Create the Export File
Step 2: Option 1: Click 'Save To Files' button
             Option 2: Click the Email File button to email the file to yourself and then from your email save the file to your iCloud Drive. There are size limits to email attachments for most carriers.</source>
            <translation>第 1 步：创建导出文件
第 2 步：方式 1：点击“存储到文件”按钮
             方式 2：点击“通过电子邮件发送文件”按钮将文件发给自己，然后从邮件中将文件存储到 iCloud 云盘。大多数服务商对邮件附件的大小有限制。</translation>
        </message>
        <message>
            <location line="+46" />
            <location line="+10" />
            <source>Data Export File</source>
            <translation>数据导出文件</translation>
        </message>
        <message>
            <location line="-9" />
            <source>The collection cannot be read: %1</source>
            <translation>无法读取收藏：%1</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Process Complete - File Ready to Save To Files or Email</source>
            <translation>处理完成 - 文件可存储到文件或通过电子邮件发送</translation>
        </message>
        <message>
            <location line="+41" />
            <source>Pelvane Update Text File</source>
            <translation>Pelvane 更新文本文件</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Attachment: Pelvane Text File</source>
            <translation>附件：Pelvane 文本文件</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Sending Email</source>
            <translation>发送电子邮件</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Email not Setup or Unavailable</source>
            <translation>电子邮件未设置或不可用</translation>
        </message>
    </context>
    <context>
        <name>GroupTableViewController</name>
        <message>
            <location filename="../screens/groups/GroupTableViewController.cpp" line="+24" />
            <source>Sort and Search By Denomination</source>
            <translation>按面值排序和搜索</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Groups by denomination</source>
            <translation>按面值分组</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Denominations</source>
            <translation>
                <numerusform>%n 种面值</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Denomination</source>
            <translation>0 种面值</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Search By Denomination</source>
            <translation>按面值搜索</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Groups by country</source>
            <translation>按国家分组</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Countries</source>
            <translation>
                <numerusform>%n 个国家</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Country</source>
            <translation>0 个国家</translation>
        </message>
        <message>
            <location line="+8" />
            <source>Sort and Search By Year</source>
            <translation>按年份排序和搜索</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Groups by year</source>
            <translation>按年份分组</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Years</source>
            <translation>
                <numerusform>%n 个年份</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Year</source>
            <translation>0 个年份</translation>
        </message>
        <message>
            <location line="+56" />
            <source>‹ Back</source>
            <translation>‹ 返回</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Sort</source>
            <translation>排序</translation>
        </message>
        <message>
            <location line="+133" />
            <source>1 coin</source>
            <translation>1 枚钱币</translation>
        </message>
        <message numerus="yes">
            <location line="+0" />
            <source>%n coins</source>
            <translation>
                <numerusform>%n 枚钱币</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>%1, %2</source>
            <translation>%1，%2</translation>
        </message>
        <message>
            <location line="+0" />
            <source>(no value)</source>
            <translation>（无值）</translation>
        </message>
    </context>
    <context>
        <name>ImportExportViewController</name>
        <message>
            <location filename="../screens/exchange/ImportExportViewController.cpp" line="+25" />
            <source>Pelvane backups (*.sqlite)</source>
            <translation>Pelvane 备份 (*.sqlite)</translation>
        </message>
        <message>
            <location line="+1" />
            <source>All files (*)</source>
            <translation>所有文件 (*)</translation>
        </message>
        <message>
            <location line="+20" />
            <source>Export Coins</source>
            <translation>导出钱币</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Import Coins</source>
            <translation>导入钱币</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Back Up Collection…</source>
            <translation>备份收藏…</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Restore From Backup…</source>
            <translation>从备份恢复…</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Move the whole collection to another device: export it here, import the file there.</source>
            <translation>将整个收藏转移到另一台设备：在此导出，在那里导入文件。</translation>
        </message>
        <message>
            <location line="+9" />
            <source>Keep an exact copy of the collection, every picture included, or put one back.</source>
            <translation>保留收藏的完整副本（包括所有图片），或恢复一份副本。</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Import / Export</source>
            <translation>导入 / 导出</translation>
        </message>
        <message>
            <location line="+50" />
            <source>Backup Complete</source>
            <translation>备份完成</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Backed up %1 to %2</source>
            <translation>已将 %1 备份到 %2</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Backup Failed</source>
            <translation>备份失败</translation>
        </message>
    </context>
    <context>
        <name>ImportViewController</name>
        <message>
            <location filename="../screens/exchange/ImportViewController.cpp" line="+98" />
            <source>Load File</source>
            <translation>载入文件</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Import File</source>
            <translation>导入文件</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Contents of the file</source>
            <translation>文件内容</translation>
        </message>
        <message>
            <location line="+2" />
            <source>How to import</source>
            <translation>如何导入</translation>
        </message>
        <message>
            <location line="+24" />
            <source>Import Coins</source>
            <translation>导入钱币</translation>
        </message>
        <message>
            <location line="+9" />
            <source>YOU CAN ONLY IMPORT THE FILE CREATED BY THIS APP.
1: Select the file you saved to your iCloud drive
2: Import the file into your device</source>
            <translation>只能导入由本程序创建的文件。
1：选择您存储在 iCloud 云盘中的文件
2：将文件导入您的设备</translation>
        </message>
        <message>
            <location line="+6" />
            <source>Exchange files (*.csv)</source>
            <translation>交换文件 (*.csv)</translation>
        </message>
        <message>
            <location line="+0" />
            <source>All files (*)</source>
            <translation>所有文件 (*)</translation>
        </message>
        <message>
            <location line="+44" />
            <location line="+30" />
            <source>Data Import File</source>
            <translation>数据导入文件</translation>
        </message>
        <message>
            <location line="-30" />
            <source>File Loaded and Ready to Import</source>
            <translation>文件已载入，可以导入</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Data File Import Completed</source>
            <translation>数据文件导入完成</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Data Import</source>
            <translation>数据导入</translation>
        </message>
        <message>
            <location line="+1" />
            <source>%1 Is The Incorrect Import File</source>
            <translation>%1 不是正确的导入文件</translation>
        </message>
        <message>
            <location line="+1" />
            <source>OK</source>
            <translation>好</translation>
        </message>
        <message numerus="yes">
            <source>%1 and %n more</source>
            <translation>
                <numerusform>%1 以及另外 %n 行</numerusform>
            </translation>
        </message>
        <message>
            <source>Too Many Pieces</source>
            <translation>枚数过多</translation>
        </message>
        <message>
            <source>The collection now holds %1 pieces, more than the %2 the coin list and the valuation screen can count: they stop when they open. The coins of the file&apos;s lines %3 took it past. Edit &gt; Undo takes the whole import back.</source>
            <translation>收藏现在共有 %1 枚，超过了硬币列表和估值界面能计数的 %2 枚：它们打开时会停止。超出的是文件第 %3 行的硬币。编辑 &gt; 撤销可撤回整个导入。</translation>
        </message>
    </context>
    <context>
        <name>OverviewViewController</name>
        <message>
            <location filename="../screens/overview/OverviewViewController.cpp" line="+20" />
            <source>Pelvane Overview</source>
            <translation>Pelvane 概览</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Pelvane overview guide</source>
            <translation>Pelvane 概览指南</translation>
        </message>
        <message>
            <location line="+22" />
            <source>%1 of %2</source>
            <translation>第 %1 页，共 %2 页</translation>
        </message>
    </context>
    <context>
        <name>PrintCoinsViewController</name>
        <message>
            <location filename="../screens/groups/PrintCoinsViewController.cpp" line="+17" />
            <source>Print</source>
            <translation>打印</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Create File</source>
            <translation>创建文件</translation>
        </message>
        <message>
            <location line="+5" />
            <source>Coins to print</source>
            <translation>要打印的钱币</translation>
        </message>
        <message>
            <location line="+17" />
            <source>Print Coins</source>
            <translation>打印钱币</translation>
        </message>
        <message>
            <location line="+23" />
            <source>Empty Data Set!</source>
            <translation>数据为空！</translation>
        </message>
        <message>
            <location line="+0" />
            <source>No Coins to Print!</source>
            <translation>没有可打印的钱币！</translation>
        </message>
    </context>
    <context>
        <name>RateShareTableViewController</name>
        <message>
            <location filename="../screens/feedback/RateShareTableViewController.cpp" line="+14" />
            <source>Rate Pelvane</source>
            <translation>评价 Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Share Pelvane</source>
            <translation>分享 Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Invite a Friend</source>
            <translation>邀请朋友</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Visit the Pelvane Website</source>
            <translation>访问 Pelvane 网站</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Send Feedback</source>
            <translation>发送反馈</translation>
        </message>
        <message>
            <location line="+24" />
            <location line="+5" />
            <source>Rate &amp; Share</source>
            <translation>评价与分享</translation>
        </message>
        <message>
            <location line="+36" />
            <source>Can't Send Text Message</source>
            <translation>无法发送短信</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Your Device is not able to send text messages.</source>
            <translation>您的设备无法发送短信。</translation>
        </message>
        <message>
            <location line="+11" />
            <source>&lt;p&gt;Enter your comments about the Pelvane app below: &lt;/p&gt;</source>
            <translation>&lt;p&gt;请在下方输入您对 Pelvane 的意见：&lt;/p&gt;</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Can't Send Email</source>
            <translation>无法发送电子邮件</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Your Device is not able to send Email.</source>
            <translation>您的设备无法发送电子邮件。</translation>
        </message>
        <message>
            <location filename="../screens/feedback/RateShareTableViewController.h" line="+23" />
            <source>Click the following link to visit the Pelvane App website</source>
            <translation>点击以下链接访问 Pelvane 网站</translation>
        </message>
    </context>
    <context>
        <name>ReferenceKinds</name>
        <message>
            <location filename="../screens/reference/ReferenceKinds.cpp" line="+18" />
            <source>Grade Numbers</source>
            <translation>品相等级</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Grade Number List</source>
            <translation>品相等级列表</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Grade Number</source>
            <translation>按品相等级搜索</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Grade Number</source>
            <translation>品相等级</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Strike Characters</source>
            <translation>打制特征</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Strike Character List</source>
            <translation>打制特征列表</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Strike Character</source>
            <translation>按打制特征搜索</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Strike Character</source>
            <translation>打制特征</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Edges</source>
            <translation>币边</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Edge List</source>
            <translation>币边列表</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Edge</source>
            <translation>按币边搜索</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edge</source>
            <translation>币边</translation>
        </message>
        <message>
            <location line="+14" />
            <source>Add Grade Numbers</source>
            <translation>添加品相等级</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Grade Number not Entered</source>
            <translation>未输入品相等级</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Grade Numbers</source>
            <translation>编辑品相等级</translation>
        </message>
        <message>
            <location line="+12" />
            <source>Add Strike Character</source>
            <translation>添加打制特征</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Strike Character not Entered</source>
            <translation>未输入打制特征</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Strike Characters</source>
            <translation>编辑打制特征</translation>
        </message>
        <message>
            <location line="+12" />
            <source>Add Edge</source>
            <translation>添加币边</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Edge not Entered</source>
            <translation>未输入币边</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Edge</source>
            <translation>编辑币边</translation>
        </message>
    </context>
    <context>
        <name>ReferenceListViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceListViewController.cpp" line="+30" />
            <source>Reference Lists</source>
            <translation>参考列表</translation>
        </message>
    </context>
    <context>
        <name>ReferenceTableViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceTableViewController.cpp" line="+50" />
            <source>Add</source>
            <translation>添加</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort</source>
            <translation>排序</translation>
        </message>
        <message>
            <location line="+131" />
            <source>delete</source>
            <translation>删除</translation>
        </message>
    </context>
    <context>
        <name>ReferenceValueViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceValueViewController.cpp" line="+15" />
            <source>Save</source>
            <translation>保存</translation>
        </message>
    </context>
    <context>
        <name>RestoreFlow</name>
        <message>
            <location filename="../screens/exchange/RestoreFlow.cpp" line="+38" />
            <location line="+39" />
            <source>Restore Failed</source>
            <translation>恢复失败</translation>
        </message>
        <message>
            <location line="-36" />
            <source>Restored %1.</source>
            <translation>已恢复 %1。</translation>
        </message>
        <message>
            <location line="+3" />
            <source>The damaged collection file was kept as %1.</source>
            <translation>损坏的收藏文件已保留为 %1。</translation>
        </message>
        <message>
            <location line="+6" />
            <location line="+5" />
            <source>Restore Complete</source>
            <translation>恢复完成</translation>
        </message>
        <message>
            <location line="+5" />
            <source>coin</source>
            <translation>枚钱币</translation>
        </message>
        <message>
            <location line="+0" />
            <source>coins</source>
            <translation>枚钱币</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Restore From Backup?</source>
            <translation>从备份恢复？</translation>
        </message>
        <message>
            <location line="+2" />
            <source>The backup holds %1; the collection cannot be read. Its file is moved aside whole, not deleted, and the backup takes its place.</source>
            <translation>备份包含 %1；无法读取收藏。其文件会被完整移到一旁而不是删除，由备份取而代之。</translation>
        </message>
        <message>
            <location line="+3" />
            <source>The backup holds %1; the collection holds %2. The collection as it is now is kept as a snapshot in Backups/.</source>
            <translation>备份包含 %1；收藏包含 %2。收藏的当前状态将作为快照保存在 Backups/ 中。</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Restore</source>
            <translation>恢复</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
    </context>
    <context>
        <name>StatisticsCharts</name>
        <message>
            <location filename="../screens/statistics/StatisticsCharts.cpp" line="+69" />
            <location line="+37" />
            <source>Value</source>
            <translation>价值</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Pieces</source>
            <translation>枚数</translation>
        </message>
        <message>
            <location line="+11" />
            <source>(none)</source>
            <translation>（无）</translation>
        </message>
        <message>
            <location line="+14" />
            <source>%1: %2 pieces, %3</source>
            <translation>%1：%2 枚，%3</translation>
        </message>
    </context>
    <context>
        <name>StatisticsViewController</name>
        <message>
            <location filename="../screens/statistics/StatisticsViewController.cpp" line="+34" />
            <location line="+124" />
            <location line="+1" />
            <location line="+1" />
            <location line="+1" />
            <source>Value</source>
            <translation>价值</translation>
        </message>
        <message>
            <location line="-126" />
            <source>Countries</source>
            <translation>国家</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Denominations</source>
            <translation>面值</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Decades</source>
            <translation>年代</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Changes</source>
            <translation>变化</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Chart of the value over time</source>
            <translation>价值随时间变化图</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the value by country</source>
            <translation>按国家的价值图</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the value by denomination</source>
            <translation>按面值的价值图</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the pieces by decade</source>
            <translation>按年代的枚数图</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Statistics: value by day</source>
            <translation>统计：按日价值</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by country</source>
            <translation>统计：按国家的枚数和价值</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by denomination</source>
            <translation>统计：按面值的枚数和价值</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by decade</source>
            <translation>统计：按年代的枚数和价值</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: largest changes</source>
            <translation>统计：最大变化</translation>
        </message>
        <message>
            <location line="+5" />
            <source>(none)</source>
            <translation>（无）</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Month</source>
            <translation>月</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>年份</translation>
        </message>
        <message>
            <location line="+1" />
            <source>All</source>
            <translation>全部</translation>
        </message>
        <message>
            <location line="+3" />
            <location line="+25" />
            <location line="+1" />
            <source>Statistics</source>
            <translation>统计</translation>
        </message>
        <message>
            <location line="+15" />
            <source>Save Chart…</source>
            <translation>保存图表…</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Export Data…</source>
            <translation>导出数据…</translation>
        </message>
        <message>
            <location line="+24" />
            <source>Columns</source>
            <translation>列</translation>
        </message>
        <message>
            <location line="+2" />
            <location line="+4" />
            <source>Date</source>
            <translation>日期</translation>
        </message>
        <message>
            <location line="-4" />
            <location line="+1" />
            <location line="+1" />
            <location line="+1" />
            <source>Pieces</source>
            <translation>枚数</translation>
        </message>
        <message>
            <location line="-2" />
            <location line="+71" />
            <source>Country</source>
            <translation>国家</translation>
        </message>
        <message>
            <location line="-70" />
            <location line="+74" />
            <source>Denomination</source>
            <translation>面值</translation>
        </message>
        <message>
            <location line="-73" />
            <location line="+112" />
            <source>Decade</source>
            <translation>年代</translation>
        </message>
        <message>
            <location line="-111" />
            <source>Coin</source>
            <translation>钱币</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Before</source>
            <translation>之前</translation>
        </message>
        <message>
            <location line="+0" />
            <source>After</source>
            <translation>之后</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Cause</source>
            <translation>原因</translation>
        </message>
        <message>
            <location line="+60" />
            <source>%1 pieces, worth %2</source>
            <translation>%1 枚，价值 %2</translation>
        </message>
        <message>
            <location line="+40" />
            <source>Other</source>
            <translation>其他</translation>
        </message>
        <message>
            <location line="+91" />
            <source>PNG pictures (*.png)</source>
            <translation>PNG 图片 (*.png)</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Chart Not Saved</source>
            <translation>图表未保存</translation>
        </message>
        <message>
            <location line="+9" />
            <source>CSV files (*.csv)</source>
            <translation>CSV 文件 (*.csv)</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Data Not Exported</source>
            <translation>数据未导出</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Coin Deleted</source>
            <translation>钱币已删除</translation>
        </message>
        <message>
            <location line="+0" />
            <source>This coin has been deleted. It can be put back from Recently Deleted, on the Recent Changes screen.</source>
            <translation>此钱币已被删除。可在“最近更改”屏幕的“最近删除”中将其恢复。</translation>
        </message>
    </context>
    <context>
        <name>ValuationViewController</name>
        <message>
            <location filename="../screens/valuation/ValuationViewController.cpp" line="+74" />
            <source>Coins</source>
            <translation>钱币</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Total Value</source>
            <translation>总价值</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>年份</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Denomination</source>
            <translation>面值</translation>
        </message>
        <message>
            <location line="+1" />
            <source>New Value</source>
            <translation>新价值</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Search Web</source>
            <translation>网上搜索</translation>
        </message>
        <message>
            <location line="+2" />
            <source>PCGS</source>
            <translation>PCGS</translation>
        </message>
        <message>
            <location line="+1" />
            <source>PCGS price guide</source>
            <translation>PCGS 价格指南</translation>
        </message>
        <message>
            <location line="+1" />
            <source>NGC</source>
            <translation>NGC</translation>
        </message>
        <message>
            <location line="+1" />
            <source>NGC price guide</source>
            <translation>NGC 价格指南</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save the new value</source>
            <translation>保存新价值</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Coins and their values</source>
            <translation>钱币及其价值</translation>
        </message>
        <message>
            <location line="+16" />
            <source>Coin Valuation</source>
            <translation>钱币估值</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Share</source>
            <translation>分享</translation>
        </message>
        <message>
            <location line="+41" />
            <source>Denomination: %1  Year: %2</source>
            <translation>面值：%1  年份：%2</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Quantity: %1</source>
            <translation>数量：%1</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Value: %1</source>
            <translation>价值：%1</translation>
        </message>
        <message>
            <location line="+31" />
            <source>No Search</source>
            <translation>无法搜索</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Required Fields Year and Denomination Not Entered</source>
            <translation>未填写必填字段：年份和面值</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Record not Saved!</source>
            <translation>记录未保存！</translation>
        </message>
        <message>
            <location line="+0" />
            <source>New Value not Entered</source>
            <translation>未输入新价值</translation>
        </message>
    </context>
</TS>
