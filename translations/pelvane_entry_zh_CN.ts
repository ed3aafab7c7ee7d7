<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AddViewController</name>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="17"/>
        <source>Add Coin</source>
        <translation>添加钱币</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="25"/>
        <source>Record not Saved!</source>
        <translation>记录未保存！</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="26"/>
        <source>Required Fields in RED not Entered</source>
        <translation>未填写红色标出的必填项</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="29"/>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
</context>
<context>
    <name>CoinFormViewController</name>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="40"/>
        <source>Coin details</source>
        <translation>钱币详情</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="57"/>
        <source>Required</source>
        <translation>必填</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="67"/>
        <source>Denomination</source>
        <translation>面值</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="68"/>
        <source>Year</source>
        <translation>年份</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="69"/>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="70"/>
        <source>Country</source>
        <translation>国家</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="71"/>
        <source>Mint Mark</source>
        <translation>造币厂标记</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="72"/>
        <source>Mint Location</source>
        <translation>造币厂</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="73"/>
        <source>Grade</source>
        <translation>品相</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="74"/>
        <source>Strike</source>
        <translation>铸造工艺</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="75"/>
        <source>Edge</source>
        <translation>边齿</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="76"/>
        <source>Value</source>
        <translation>价值</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="77"/>
        <source>Diameter</source>
        <translation>直径</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="78"/>
        <source>Weight</source>
        <translation>重量</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="79"/>
        <source>Thickness</source>
        <translation>厚度</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="80"/>
        <source>Serial Number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="81"/>
        <source>Period</source>
        <translation>时期</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="82"/>
        <source>Designer</source>
        <translation>设计者</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="83"/>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="87"/>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="111"/>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="120"/>
        <source>Front picture</source>
        <translation>正面图片</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="121"/>
        <source>Back picture</source>
        <translation>背面图片</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="122"/>
        <source>Front</source>
        <translation>正面</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="122"/>
        <source>Back</source>
        <translation>背面</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="123"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="127"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="370"/>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="124"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="128"/>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="125"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="129"/>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="126"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="130"/>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="144"/>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="173"/>
        <source>No picture</source>
        <translation>无图片</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="289"/>
        <source>A space is not accepted here</source>
        <translation>此处不接受空格</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="291"/>
        <source>A line break is not accepted here</source>
        <translation>此处不接受换行</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="293"/>
        <source>“%1” is not accepted here</source>
        <translation>此处不接受“%1”</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="370"/>
        <source>There is no camera available</source>
        <translation>没有可用的相机</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="414"/>
        <source>Photo Too Large</source>
        <translation>照片过大</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="416"/>
        <source>The photo is larger than 64 megapixels or 50 MB. The coin keeps its 100 x 100 picture of it, without the photo itself.</source>
        <translation>照片超过 6400 万像素或 50 MB。钱币保留其 100 x 100 的图片，但不保存照片本身。</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="418"/>
        <source>The photo is larger than 64 megapixels, more than the catalogue reads.</source>
        <translation>照片超过 6400 万像素，超出了目录可读取的范围。</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="464"/>
        <source>Pictures (*.jpg *.jpeg *.png)</source>
        <translation>图片 (*.jpg *.jpeg *.png)</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="464"/>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="495"/>
        <source>Clipboard</source>
        <translation>剪贴板</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="495"/>
        <source>There is no image in the Clipboard</source>
        <translation>剪贴板中没有图片</translation>
    </message>
</context>
<context>
    <name>CoinListView</name>
    <message>
        <location filename="../screens/CoinListView.cpp" line="55"/>
        <source>Denomination</source>
        <translation>面值</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="56"/>
        <source>Year</source>
        <translation>年份</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="57"/>
        <source>Mint Mark</source>
        <translation>造币厂标记</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="58"/>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="59"/>
        <source>Value</source>
        <translation>价值</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="60"/>
        <source>Total Value</source>
        <translation>总价值</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="61"/>
        <source>Country</source>
        <translation>国家</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="101"/>
        <source>No picture</source>
        <translation>无图片</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="102"/>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="129"/>
        <source>%1, %2, mint mark %3, quantity %4, value %5</source>
        <translation>%1，%2，造币厂标记 %3，数量 %4，价值 %5</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="137"/>
        <source>, %1</source>
        <translation>，%1</translation>
    </message>
</context>
<context>
    <name>CoinListViewSwitch</name>
    <message>
        <location filename="../screens/CoinListView.cpp" line="147"/>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="149"/>
        <source>Cards</source>
        <translation>卡片</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="150"/>
        <source>Table</source>
        <translation>表格</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="161"/>
        <location filename="../screens/CoinListView.cpp" line="190"/>
        <source>Coins</source>
        <translation>钱币</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="191"/>
        <source>Column titles</source>
        <translation>列标题</translation>
    </message>
</context>
<context>
    <name>EditViewController</name>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="22"/>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="23"/>
        <location filename="../screens/entry/EditViewController.cpp" line="60"/>
        <source>Share</source>
        <translation>分享</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="50"/>
        <source>Edit Coin</source>
        <translation>编辑钱币</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="62"/>
        <source>History</source>
        <translation>历史</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="157"/>
        <source>Remove Front Coin Image</source>
        <translation>移除正面图片</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="157"/>
        <source>Remove Back Coin Image</source>
        <translation>移除背面图片</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="158"/>
        <source>Do You Want to Remove This Image?</source>
        <translation>要移除这张图片吗？</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="159"/>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="182"/>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Save Changes?</source>
        <translation>保存更改？</translation>
    </message>
    <message>
        <source>Coming back from the notes shows the coin as it is saved. Save what you changed here first?</source>
        <translation>从备注返回后，表单将显示已保存的硬币。先保存您在此处所做的更改吗？</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
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
<context>
    <name>JournalText</name>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="28"/>
        <source>(none)</source>
        <translation>（无）</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="44"/>
        <source>Country</source>
        <translation>国家</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="45"/>
        <source>Denomination</source>
        <translation>面值</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="46"/>
        <source>Year</source>
        <translation>年份</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="47"/>
        <source>Quantity</source>
        <translation>数量</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="48"/>
        <source>Mint Mark</source>
        <translation>造币厂标记</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="49"/>
        <source>Mint Location</source>
        <translation>造币厂</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="50"/>
        <location filename="../screens/journal/JournalText.cpp" line="65"/>
        <source>Grade</source>
        <translation>品相</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="51"/>
        <location filename="../screens/journal/JournalText.cpp" line="66"/>
        <source>Strike</source>
        <translation>铸造工艺</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="52"/>
        <source>Edge</source>
        <translation>边齿</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="53"/>
        <source>Value</source>
        <translation>价值</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="54"/>
        <source>Total Value</source>
        <translation>总价值</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="55"/>
        <source>Diameter</source>
        <translation>直径</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="56"/>
        <source>Weight</source>
        <translation>重量</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="57"/>
        <source>Thickness</source>
        <translation>厚度</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="58"/>
        <source>Serial Number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="59"/>
        <source>Period</source>
        <translation>时期</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="60"/>
        <source>Designer</source>
        <translation>设计者</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="61"/>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="62"/>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="63"/>
        <source>Record Number</source>
        <translation>记录编号</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="67"/>
        <source>Front picture</source>
        <translation>正面图片</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="68"/>
        <source>Back picture</source>
        <translation>背面图片</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="80"/>
        <source>%1 added</source>
        <translation>已添加%1</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="82"/>
        <source>%1 removed</source>
        <translation>已移除%1</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="83"/>
        <source>%1 changed</source>
        <translation>已更改%1</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="85"/>
        <source>%1: %2 → %3</source>
        <translation>%1：%2 → %3</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="100"/>
        <source>Added</source>
        <translation>已添加</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="102"/>
        <source>Deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="104"/>
        <source>Changed</source>
        <translation>已更改</translation>
    </message>
</context>
<context>
    <name>MainListSorting</name>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="14"/>
        <source>By Name</source>
        <translation>按面值</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="15"/>
        <source>Search by Denomination</source>
        <translation>按面值搜索</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="16"/>
        <source>By Year</source>
        <translation>按年份</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="17"/>
        <source>Search by Year</source>
        <translation>按年份搜索</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="18"/>
        <source>By Quantity</source>
        <translation>按数量</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="19"/>
        <source>Search by Quantity</source>
        <translation>按数量搜索</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="20"/>
        <source>By Value</source>
        <translation>按价值</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="21"/>
        <source>Search by Value</source>
        <translation>按价值搜索</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="22"/>
        <source>By Country</source>
        <translation>按国家</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="23"/>
        <source>Search by Country</source>
        <translation>按国家搜索</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="105"/>
        <source>Year: %1  Mint Mark: %2</source>
        <translation>年份：%1  造币厂标记：%2</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="115"/>
        <source>Qty: %1</source>
        <translation>数量：%1</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="120"/>
        <source>Value: %1  Total Value: %2</source>
        <translation>价值：%1  总价值：%2</translation>
    </message>
</context>
<context>
    <name>MainListTableViewController</name>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="35"/>
        <source>Coins</source>
        <translation>钱币</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="41"/>
        <source>Search by Denomination</source>
        <translation>按面值搜索</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="43"/>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="58"/>
        <source>Sort by</source>
        <translation>排序方式</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="59"/>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="79"/>
        <source>Add Coin</source>
        <translation>添加钱币</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="156"/>
        <source># Coins = %1 of %2</source>
        <translation>钱币：%1 / %2</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="193"/>
        <source>delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>MainMenuViewController</name>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="22"/>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="25"/>
        <source>Pelvane</source>
        <translation>Pelvane</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="31"/>
        <source>Your coin collection</source>
        <translation>您的钱币收藏</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="33"/>
        <source>☰  Menu</source>
        <translation>☰  菜单</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="48"/>
        <source>List Coins</source>
        <translation>钱币列表</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="48"/>
        <source>Group By</source>
        <translation>分组</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="49"/>
        <source>Add Coin</source>
        <translation>添加钱币</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="49"/>
        <source>Rate &amp;&amp; Share</source>
        <translation>评分和分享</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="50"/>
        <source>Coin Valuation</source>
        <translation>钱币估价</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="50"/>
        <source>Pelvane Overview</source>
        <translation>Pelvane 概览</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="51"/>
        <source>Import / Export</source>
        <translation>导入 / 导出</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="51"/>
        <source>Reference Lists</source>
        <translation>参考列表</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="52"/>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="52"/>
        <source>Recent Changes</source>
        <translation>最近更改</translation>
    </message>
</context>
<context>
    <name>NotesViewController</name>
    <message>
        <location filename="../screens/entry/NotesViewController.cpp" line="15"/>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <location filename="../screens/entry/NotesViewController.cpp" line="17"/>
        <location filename="../screens/entry/NotesViewController.cpp" line="29"/>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
</context>
<context>
    <name>RecentChangesViewController</name>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="31"/>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="69"/>
        <source>Undo Back to Here</source>
        <translation>撤销到此处</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="32"/>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="72"/>
        <source>Recently Deleted</source>
        <translation>最近删除</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="33"/>
        <source>Recent Changes</source>
        <translation>最近更改</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="40"/>
        <source>Changes, newest first</source>
        <translation>更改，最新的在前</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="48"/>
        <source>Column titles</source>
        <translation>列标题</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="61"/>
        <source>What the change did</source>
        <translation>此更改的内容</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="101"/>
        <source>Changes Not Read</source>
        <translation>无法读取更改</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="109"/>
        <source>Undone</source>
        <translation>已撤销</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="129"/>
        <source>No changes have been saved yet.</source>
        <translation>尚未保存任何更改。</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="145"/>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="156"/>
        <source>and %1 more</source>
        <translation>以及另外 %1 项</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="166"/>
        <source>Undo Back to Here?</source>
        <translation>撤销到此处？</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="167"/>
        <source>The %1 is undone. Redo brings it back.</source>
        <translation>将撤销“%1”。重做可将其恢复。</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="168"/>
        <source>The %1 and every change after it are undone. Redo brings them back.</source>
        <translation>将撤销“%1”及其后的所有更改。重做可将其恢复。</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="170"/>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="172"/>
        <source>Not Undone</source>
        <translation>未撤销</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="175"/>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>RecentlyDeletedViewController</name>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="17"/>
        <source>No coins were deleted in the last 90 days.</source>
        <translation>最近 90 天内没有删除任何钱币。</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="18"/>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="38"/>
        <source>Put Back</source>
        <translation>放回</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="19"/>
        <source>Recently Deleted</source>
        <translation>最近删除</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="23"/>
        <source>Deleted coins, last deleted first</source>
        <translation>已删除的钱币，最近删除的在前</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Coin</source>
        <translation>钱币</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Country</source>
        <translation>国家</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Deleted</source>
        <translation>删除时间</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="31"/>
        <source>Column titles</source>
        <translation>列标题</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="63"/>
        <source>Deleted Coins Not Read</source>
        <translation>无法读取已删除的钱币</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="84"/>
        <source>Not Put Back</source>
        <translation>未放回</translation>
    </message>
</context>
<context>
    <name>TextMessageAlert</name>
    <message>
        <location filename="../screens/TextMessageAlert.cpp" line="11"/>
        <source>Can&apos;t Send Text Message</source>
        <translation>无法发送短信</translation>
    </message>
    <message>
        <location filename="../screens/TextMessageAlert.cpp" line="12"/>
        <source>Your device is not able to send text messages.</source>
        <translation>您的设备无法发送短信。</translation>
    </message>
</context>
<context>
    <name>ZoomViewController</name>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="81"/>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="101"/>
        <source>Front picture</source>
        <translation>正面图片</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="101"/>
        <source>Back picture</source>
        <translation>背面图片</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="111"/>
        <source>Share</source>
        <translation>分享</translation>
    </message>
</context>
</TS>
