<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ControlCo</name>
    <message>
        <source>Control</source>
        <translation>控制</translation>
    </message>
    <message>
        <source>Control Object</source>
        <translation>控制对象</translation>
    </message>
    <message>
        <source>Data Obj :</source>
        <translation>数据对象：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Current Value :</source>
        <translation>当前值：</translation>
    </message>
    <message>
        <source>Current value</source>
        <translation>当前值</translation>
    </message>
    <message>
        <source>Control Value :</source>
        <translation>控制值：</translation>
    </message>
    <message>
        <source>Control value</source>
        <translation>控制值</translation>
    </message>
    <message>
        <source>Test :</source>
        <translation>试验：</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>试验</translation>
    </message>
    <message>
        <source>Category :</source>
        <translation>类别：</translation>
    </message>
    <message>
        <source>Originator category</source>
        <translation>源发者类别</translation>
    </message>
    <message>
        <source>Check :</source>
        <translation>校验：</translation>
    </message>
    <message>
        <source>Check conditions</source>
        <translation>校验条件</translation>
    </message>
</context>
<context>
    <name>DatasetSelectWidget</name>
    <message>
        <source>Selete Datas</source>
        <translation>选择数据</translation>
    </message>
    <message>
        <source>DataSet Name : </source>
        <translation>数据集名称： </translation>
    </message>
    <message>
        <source>Data set name</source>
        <translation>数据集名称</translation>
    </message>
    <message>
        <source>Data set members</source>
        <translation>数据集成员</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>No data selected. can`t create dataset</source>
        <translation>未选择数据，无法创建数据集。</translation>
    </message>
    <message>
        <source>Please input dataset name</source>
        <translation>请输入数据集名称。</translation>
    </message>
</context>
<context>
    <name>ExplanationTips</name>
    <message>
        <source>Data type:</source>
        <translation>数据类型：</translation>
    </message>
    <message>
        <source>Enumeration:</source>
        <translation>枚举：</translation>
    </message>
    <message>
        <source>Functional constraint:</source>
        <translation>功能约束：</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>存在条件：</translation>
    </message>
    <message>
        <source>Transient:</source>
        <translation>瞬态：</translation>
    </message>
    <message>
        <source>Values:</source>
        <translation>取值：</translation>
    </message>
    <message>
        <source>conditional (%1)</source>
        <translation>条件 (%1)</translation>
    </message>
    <message>
        <source>mandatory</source>
        <translation>必选</translation>
    </message>
    <message>
        <source>optional</source>
        <translation>可选</translation>
    </message>
    <message>
        <source>true only for a moment</source>
        <translation>仅瞬间为真</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>The whole text, %1 lines:</source>
        <translation>全文，共 %1 行：</translation>
    </message>
</context>
<context>
    <name>FileModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
</context>
<context>
    <name>FileServiceDialog</name>
    <message>
        <source>IED File Service</source>
        <translation>IED 文件服务</translation>
    </message>
    <message>
        <source>Server Directory : </source>
        <translation>IED 目录： </translation>
    </message>
    <message>
        <source>Server directory</source>
        <translation>IED 上的目录</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>IED Directory</source>
        <translation>IED 目录</translation>
    </message>
    <message>
        <source>IED directory</source>
        <translation>IED 目录</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Upload File</source>
        <translation>上传文件</translation>
    </message>
    <message>
        <source>Select File : </source>
        <translation>选择文件： </translation>
    </message>
    <message>
        <source>File to upload</source>
        <translation>要上传的文件</translation>
    </message>
    <message>
        <source>Select file</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Target File Name :</source>
        <translation>目标文件名：</translation>
    </message>
    <message>
        <source>Target file name</source>
        <translation>目标文件名</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>上传</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>All Files(*.*)</source>
        <translation>所有文件(*.*)</translation>
    </message>
    <message>
        <source>Fail to Read File: %1 error:%2</source>
        <translation>无法读取文件 %1：%2</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Download Finished</source>
        <translation>下载完成</translation>
    </message>
    <message>
        <source>Fail to Delete %1 %2</source>
        <translation>无法删除 %1：%2</translation>
    </message>
    <message>
        <source>Delete Finished</source>
        <translation>删除完成</translation>
    </message>
    <message>
        <source>Fail to Upload File: %1 error:%2</source>
        <translation>无法上传文件 %1：%2</translation>
    </message>
    <message>
        <source>Upload Finished</source>
        <translation>上传完成</translation>
    </message>
    <message>
        <source>Fail to readDirectory: Cannot connect to driver</source>
        <translation>无法读取目录：无法连接到驱动程序</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>无法连接到驱动程序</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Download File</source>
        <translation>下载文件</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
是否替换？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
</context>
<context>
    <name>IEC61850TaskExtention</name>
    <message>
        <source>IED Browser</source>
        <translation>IED 浏览器</translation>
    </message>
    <message>
        <source>IED File Service</source>
        <translation>IED 文件服务</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Report Control</source>
        <translation>报告控制</translation>
    </message>
</context>
<context>
    <name>IEDModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>(Deletable)</source>
        <translation>（可删除）</translation>
    </message>
</context>
<context>
    <name>IEDModelView</name>
    <message>
        <source>IED Browser</source>
        <translation>IED 浏览器</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>Write...</source>
        <translation>写入...</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>全部折叠</translation>
    </message>
    <message>
        <source>Open Report Control</source>
        <translation>打开报告控制块</translation>
    </message>
    <message>
        <source>Open Setting Group Control</source>
        <translation>打开定值组控制块</translation>
    </message>
    <message>
        <source>Locate</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Create Persistent DataSet</source>
        <translation>创建永久数据集</translation>
    </message>
    <message>
        <source>Create Non-Persistent DataSet</source>
        <translation>创建非永久数据集</translation>
    </message>
    <message>
        <source>Delete DataSet</source>
        <translation>删除数据集</translation>
    </message>
    <message>
        <source>GetDataSet List</source>
        <translation>读取数据集列表</translation>
    </message>
    <message>
        <source>GetDataSet Directory</source>
        <translation>读取数据集目录</translation>
    </message>
    <message>
        <source>Get BRCB</source>
        <translation>读取缓存报告控制块 (BRCB)</translation>
    </message>
    <message>
        <source>Get URCB</source>
        <translation>读取非缓存报告控制块 (URCB)</translation>
    </message>
    <message>
        <source>Get SGCB</source>
        <translation>读取定值组控制块 (SGCB)</translation>
    </message>
    <message>
        <source>GetServer Directory</source>
        <translation>读取服务器目录</translation>
    </message>
    <message>
        <source>GetLogicalDevice Directory</source>
        <translation>读取逻辑设备目录</translation>
    </message>
    <message>
        <source>GetLogicalNode Directory</source>
        <translation>读取逻辑节点目录</translation>
    </message>
    <message>
        <source>GetData Directory</source>
        <translation>读取数据目录</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>无法连接到驱动程序</translation>
    </message>
    <message>
        <source>The description of this device is not whole: the tree shows what could be read of it.</source>
        <translation>此设备的描述不完整：树中只显示其中能够读出的部分。</translation>
    </message>
</context>
<context>
    <name>OfflineSGCB</name>
    <message>
        <source>OfflineSGCB</source>
        <translation>定值组（离线）</translation>
    </message>
    <message>
        <source>Num of Setting Group : </source>
        <translation>定值组数目： </translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Group : </source>
        <translation>当前定值组： </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>%1 &quot;%2&quot; keeps its value.</source>
        <translation>%1 “%2”保持原值。</translation>
    </message>
</context>
<context>
    <name>PropertyEditor</name>
    <message>
        <source>A whole number from %1 to %2 is needed.</source>
        <translation>需要 %1 到 %2 之间的整数。</translation>
    </message>
    <message>
        <source>A number with a decimal point is needed, such as 0.25 or 1e-3.</source>
        <translation>需要带小数点的数，例如 0.25 或 1e-3。</translation>
    </message>
    <message>
        <source>One character is needed.</source>
        <translation>需要一个字符。</translation>
    </message>
    <message>
        <source>True</source>
        <translation>真</translation>
    </message>
    <message>
        <source>False</source>
        <translation>假</translation>
    </message>
    <message>
        <source>The number is too large: the data type ends at %1.</source>
        <translation>数值过大：该数据类型的上限为 %1。</translation>
    </message>
    <message>
        <source>The number is too small: in this data type it would become 0.</source>
        <translation>数值过小：在此数据类型中它将变为 0。</translation>
    </message>
    <message>
        <source>Not all that was typed was taken. Press Enter again if %1 is meant.</source>
        <translation>输入的内容未被全部接受。如果要输入的是 %1，请再按一次 Enter。</translation>
    </message>
    <message>
        <source>The point in %1 is read as the decimal point. Press Enter again if this is meant.</source>
        <translation>%1 中的点按小数点处理。如果确实如此，请再按一次 Enter。</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>ReportControl</name>
    <message>
        <source>Report Control Block</source>
        <translation>报告控制块</translation>
    </message>
    <message>
        <source>Report Name : </source>
        <translation>报告名称： </translation>
    </message>
    <message>
        <source>....</source>
        <translation>....</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>使能</translation>
    </message>
    <message>
        <source>PurgeBuf</source>
        <translation>PurgeBuf</translation>
    </message>
    <message>
        <source>GI</source>
        <translation>GI</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Report Id :</source>
        <translation>报告标识：</translation>
    </message>
    <message>
        <source>Change the report id</source>
        <translation>修改报告标识</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>修改</translation>
    </message>
    <message>
        <source>Client: </source>
        <translation>客户端： </translation>
    </message>
    <message>
        <source>DataSet :</source>
        <translation>数据集：</translation>
    </message>
    <message>
        <source>Data set</source>
        <translation>数据集</translation>
    </message>
    <message>
        <source>Change the data set</source>
        <translation>修改数据集</translation>
    </message>
    <message>
        <source>Trigger Option</source>
        <translation>触发选项</translation>
    </message>
    <message>
        <source>Data Change</source>
        <translation>数据变化</translation>
    </message>
    <message>
        <source>Quality Change</source>
        <translation>品质变化</translation>
    </message>
    <message>
        <source>Data Update</source>
        <translation>数据更新</translation>
    </message>
    <message>
        <source>Integrity </source>
        <translation>完整性 </translation>
    </message>
    <message>
        <source>Change the trigger options</source>
        <translation>修改触发选项</translation>
    </message>
    <message>
        <source>Optional Items</source>
        <translation>可选域</translation>
    </message>
    <message>
        <source>Entry ID</source>
        <translation>条目标识</translation>
    </message>
    <message>
        <source>Configuration Revision</source>
        <translation>配置版本号</translation>
    </message>
    <message>
        <source>Time Stamp</source>
        <translation>时标</translation>
    </message>
    <message>
        <source>Data Reference</source>
        <translation>数据引用</translation>
    </message>
    <message>
        <source>Buffer Overflow</source>
        <translation>缓存溢出</translation>
    </message>
    <message>
        <source>Data Set Name</source>
        <translation>数据集名称</translation>
    </message>
    <message>
        <source>Reason for Inclusion</source>
        <translation>包含原因</translation>
    </message>
    <message>
        <source>Sub Sequence</source>
        <translation>子序号</translation>
    </message>
    <message>
        <source>Sequence Number</source>
        <translation>顺序号</translation>
    </message>
    <message>
        <source>Change the optional items</source>
        <translation>修改可选域</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Integrity Period:</source>
        <translation>完整性周期：</translation>
    </message>
    <message>
        <source>msec</source>
        <translation>毫秒</translation>
    </message>
    <message>
        <source>Change the integrity period</source>
        <translation>修改完整性周期</translation>
    </message>
    <message>
        <source>Buffer Time:</source>
        <translation>缓存时间：</translation>
    </message>
    <message>
        <source>Change the buffer time</source>
        <translation>修改缓存时间</translation>
    </message>
    <message>
        <source>Configuration Revision:</source>
        <translation>配置版本号：</translation>
    </message>
    <message>
        <source>Reserved</source>
        <translation>已预留</translation>
    </message>
    <message>
        <source>Change the reservation</source>
        <translation>修改预留状态</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>禁止</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>无法连接到驱动程序</translation>
    </message>
</context>
<context>
    <name>SGCBDialog</name>
    <message>
        <source>SGCB</source>
        <translation>定值组控制块 (SGCB)</translation>
    </message>
    <message>
        <source>Name: </source>
        <translation>名称： </translation>
    </message>
    <message>
        <source>Name of the setting group control block</source>
        <translation>定值组控制块名称</translation>
    </message>
    <message>
        <source>Select Group</source>
        <translation>选择定值组</translation>
    </message>
    <message>
        <source>Active Group:</source>
        <translation>当前定值组：</translation>
    </message>
    <message>
        <source>Active group</source>
        <translation>当前定值组</translation>
    </message>
    <message>
        <source>   Edit Group:</source>
        <translation>   编辑定值组：</translation>
    </message>
    <message>
        <source>Edit group</source>
        <translation>编辑定值组</translation>
    </message>
    <message>
        <source>Setting Value</source>
        <translation>定值</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Unsupported Type</source>
        <translation>不支持的类型</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>无法连接到驱动程序</translation>
    </message>
</context>
<context>
    <name>SelectFCDialog</name>
    <message>
        <source>GetAllDataValues</source>
        <translation>读取全部数据值</translation>
    </message>
    <message>
        <source>Select FC : </source>
        <translation>功能约束： </translation>
    </message>
    <message>
        <source>Functional constraint</source>
        <translation>功能约束</translation>
    </message>
</context>
<context>
    <name>TreeFinder</name>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Find by name or reference</source>
        <translation>按名称或引用查找</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
</context>
</TS>
