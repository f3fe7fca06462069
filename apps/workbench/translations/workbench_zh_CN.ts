<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>CallConfirmation</name>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>Write a value</source>
        <translation>写入值</translation>
    </message>
    <message>
        <source>Create a data set</source>
        <translation>创建数据集</translation>
    </message>
    <message>
        <source>Delete a data set</source>
        <translation>删除数据集</translation>
    </message>
    <message>
        <source>Delete a file</source>
        <translation>删除文件</translation>
    </message>
    <message>
        <source>Send a file</source>
        <translation>发送文件</translation>
    </message>
    <message>
        <source>Configure a report control block</source>
        <translation>配置报告控制块</translation>
    </message>
    <message>
        <source>Write settings</source>
        <translation>写入定值</translation>
    </message>
    <message>
        <source>Choose a setting group to edit</source>
        <translation>选择编辑定值组</translation>
    </message>
    <message>
        <source>Make a setting group the active one</source>
        <translation>将定值组设为当前定值组</translation>
    </message>
    <message>
        <source>not supported</source>
        <translation>不支持</translation>
    </message>
    <message>
        <source>bay control</source>
        <translation>间隔控制</translation>
    </message>
    <message>
        <source>station control</source>
        <translation>站控制</translation>
    </message>
    <message>
        <source>remote control</source>
        <translation>远方控制</translation>
    </message>
    <message>
        <source>automatic bay</source>
        <translation>间隔自动</translation>
    </message>
    <message>
        <source>automatic station</source>
        <translation>站自动</translation>
    </message>
    <message>
        <source>automatic remote</source>
        <translation>远方自动</translation>
    </message>
    <message>
        <source>maintenance</source>
        <translation>维护</translation>
    </message>
    <message>
        <source>process</source>
        <translation>过程</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>interlocking</source>
        <translation>联锁</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>同期检查</translation>
    </message>
    <message>
        <source>synchrocheck and interlocking</source>
        <translation>同期检查和联锁</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>设备：</translation>
    </message>
    <message>
        <source>Logical device:</source>
        <translation>逻辑设备：</translation>
    </message>
    <message>
        <source>Object:</source>
        <translation>对象：</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>值：</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>当前值：</translation>
    </message>
    <message>
        <source>as selected</source>
        <translation>与选择时相同</translation>
    </message>
    <message>
        <source>Originator category:</source>
        <translation>源发者类别：</translation>
    </message>
    <message>
        <source>Checks:</source>
        <translation>检查：</translation>
    </message>
    <message>
        <source>Test:</source>
        <translation>测试：</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Nothing was sent, since it was not confirmed.</source>
        <translation>未经确认，因此没有发送任何内容。</translation>
    </message>
</context>
<context>
    <name>ChangeJournal</name>
    <message>
        <source>The journal &quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入日志“%1”：%2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>引用</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>旧值</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>新值</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Additional cause</source>
        <translation>附加原因</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Say what is in an SCL file, as JSON, and exit: with 0 when it is without errors, 1 with errors, 2 when it cannot be used. Needs no display.</source>
        <translation>以 JSON 格式说明 SCL 文件的内容后退出：没有错误时返回 0，有错误时返回 1，文件无法使用时返回 2。不需要显示器。</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Take this IED of the file. The default asks when there are several; --check takes all.</source>
        <translation>使用文件中的这台 IED。默认情况下，有多台时会询问；--check 使用全部。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Open each tool on the demonstration device, save a picture of it in DIR, exit.</source>
        <translation>在演示设备上打开每个工具，将其图片保存到“文件夹”后退出。</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Load the plug-in from DIR instead of the folder &quot;plugins&quot; beside the program.</source>
        <translation>从“文件夹”加载插件，而不是从程序旁的“plugins”文件夹加载。</translation>
    </message>
    <message>
        <source>Open the demonstration device.</source>
        <translation>打开演示设备。</translation>
    </message>
    <message>
        <source>A small host for the IEC 61850 tools: opens devices from SCL files.</source>
        <translation>IEC 61850 工具的小型宿主程序：从 SCL 文件打开设备。</translation>
    </message>
    <message>
        <source>SCL files to open.</source>
        <translation>要打开的 SCL 文件。</translation>
    </message>
    <message>
        <source>--check needs the name of a file.</source>
        <translation>--check 需要文件名。</translation>
    </message>
    <message>
        <source>--tour needs the name of a folder.</source>
        <translation>--tour 需要文件夹名。</translation>
    </message>
    <message>
        <source>--check takes one file, and nothing else can be done at the same time.</source>
        <translation>--check 只接受一个文件，且不能同时执行其他操作。</translation>
    </message>
    <message>
        <source>--tour shows the demonstration device and opens no other file.</source>
        <translation>--tour 显示演示设备，不打开其他文件。</translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>&amp;Send to the device</source>
        <translation>发送到设备(&amp;S)</translation>
    </message>
</context>
<context>
    <name>DeviceConfiguration</name>
    <message>
        <source>The %1 has %2 octets; at most %3 are possible.</source>
        <translation>%1：长度为 %2 个八位字节，最多 %3 个。</translation>
    </message>
    <message>
        <source>transport selector of the %1</source>
        <translation>传输选择符（%1）</translation>
    </message>
    <message>
        <source>session selector of the %1</source>
        <translation>会话选择符（%1）</translation>
    </message>
    <message>
        <source>presentation selector of the %1</source>
        <translation>表示选择符（%1）</translation>
    </message>
    <message>
        <source>The AP title &quot;%1&quot; of the %2 is no object identifier such as 1.1.1.999.1.</source>
        <translation>AP 标题（%2）：“%1”不是 1.1.1.999.1 形式的对象标识符。</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 does not fit 32 bits.</source>
        <translation>AE 限定符（%1）：超出 32 位。</translation>
    </message>
    <message>
        <source>The time-out for %1 must be from %2 to %3 milliseconds.</source>
        <translation>%1超时必须为 %2 到 %3 毫秒。</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>%1“%2”不存在。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the wrong form.</source>
        <translation>“%1”的形式不正确。</translation>
    </message>
    <message>
        <source>The device&apos;s number must be from 1 to %1.</source>
        <translation>设备编号必须为 1 到 %1。</translation>
    </message>
    <message>
        <source>The device needs a name.</source>
        <translation>设备需要一个名称。</translation>
    </message>
    <message>
        <source>The device needs an address or an SCL file.</source>
        <translation>设备需要地址或 SCL 文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address or host name.</source>
        <translation>“%1”既不是地址也不是主机名。</translation>
    </message>
    <message>
        <source>The port must be from 1 to 65535.</source>
        <translation>端口必须为 1 到 65535。</translation>
    </message>
    <message>
        <source>SCL file</source>
        <translation>SCL 文件</translation>
    </message>
    <message>
        <source>client</source>
        <translation>客户端</translation>
    </message>
    <message>
        <source>device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>requests</source>
        <translation>请求</translation>
    </message>
    <message>
        <source>operations</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>The time-out for operations must not be shorter than the one for requests.</source>
        <translation>操作超时不得短于请求超时。</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding calls are possible.</source>
        <translation>未决请求数可以是 1 到 %1。</translation>
    </message>
    <message>
        <source>The PDU size must be from %1 to %2 octets.</source>
        <translation>PDU 大小必须为 %1 到 %2 个八位字节。</translation>
    </message>
    <message>
        <source>The polling interval must be 0 for none, or from %1 to %2 milliseconds.</source>
        <translation>轮询间隔必须为 0（不轮询），或 %1 到 %2 毫秒。</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding file reads are possible.</source>
        <translation>未决的文件读取数可以是 1 到 %1。</translation>
    </message>
    <message>
        <source>The originator category must be from 0 to %1.</source>
        <translation>源发者类别必须为 0 到 %1。</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are possible.</source>
        <translation>源发者标识长度为 %1 个八位字节，最多 %2 个。</translation>
    </message>
    <message>
        <source>Device %1 (%2)</source>
        <translation>设备 %1（%2）</translation>
    </message>
</context>
<context>
    <name>DeviceDialog</name>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>地址(&amp;A)：</translation>
    </message>
    <message>
        <source>Host name, IPv4 or IPv6 address</source>
        <translation>主机名、IPv4 或 IPv6 地址</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>端口(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;SCL file:</source>
        <translation>SCL 文件(&amp;S)：</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>浏览…</translation>
    </message>
    <message>
        <source>&amp;IED of the file:</source>
        <translation>文件中的 IED(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Connect when the workbench starts</source>
        <translation>工作台启动时连接(&amp;C)</translation>
    </message>
    <message>
        <source>Timing and Sizes</source>
        <translation>时间与大小</translation>
    </message>
    <message>
        <source>Time-out for &amp;connecting:</source>
        <translation>连接超时(&amp;C)：</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> 毫秒</translation>
    </message>
    <message>
        <source>Time-out for &amp;requests:</source>
        <translation>请求超时(&amp;R)：</translation>
    </message>
    <message>
        <source>Time-out for &amp;operations:</source>
        <translation>操作超时(&amp;O)：</translation>
    </message>
    <message>
        <source>Re&amp;ad values without reports every:</source>
        <translation>无报告的值的读取间隔(&amp;A)：</translation>
    </message>
    <message>
        <source>never</source>
        <translation>从不</translation>
    </message>
    <message>
        <source>Outstanding ca&amp;lls:</source>
        <translation>未决请求数(&amp;L)：</translation>
    </message>
    <message>
        <source>Largest P&amp;DU:</source>
        <translation>最大 PDU(&amp;D)：</translation>
    </message>
    <message>
        <source> octets</source>
        <translation> 个八位字节</translation>
    </message>
    <message>
        <source>Outstanding &amp;file reads:</source>
        <translation>未决文件读取数(&amp;F)：</translation>
    </message>
    <message>
        <source>Addressing</source>
        <translation>寻址</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>客户端</translation>
    </message>
    <message>
        <source>Transport selector:</source>
        <translation>传输选择符：</translation>
    </message>
    <message>
        <source>Session selector:</source>
        <translation>会话选择符：</translation>
    </message>
    <message>
        <source>Presentation selector:</source>
        <translation>表示选择符：</translation>
    </message>
    <message>
        <source>AP title:</source>
        <translation>AP 标题：</translation>
    </message>
    <message>
        <source>AE qualifier:</source>
        <translation>AE 限定符：</translation>
    </message>
    <message>
        <source>Selectors are octets in hexadecimal, for example 00 01. An AP title is an object identifier, for example 1.1.1.999.1; empty fields are not sent.</source>
        <translation>选择符以十六进制八位字节书写，例如 00&#xa0;01。AP 标题是对象标识符，例如 1.1.1.999.1；空字段不发送。</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>安全</translation>
    </message>
    <message>
        <source>&amp;Password of the association:</source>
        <translation>关联密码(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;TLS (IEC 62351-3)</source>
        <translation>TLS (IEC 62351-3)(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Certificate:</source>
        <translation>证书(&amp;C)：</translation>
    </message>
    <message>
        <source>Private &amp;key:</source>
        <translation>私钥(&amp;K)：</translation>
    </message>
    <message>
        <source>Pa&amp;ssword of the key:</source>
        <translation>私钥密码(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Authorities:</source>
        <translation>证书颁发机构(&amp;A)：</translation>
    </message>
    <message>
        <source>&amp;Revocation lists:</source>
        <translation>吊销列表(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Fingerprints (SHA-256):</source>
        <translation>指纹 (SHA-256)(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Name in the certificate:</source>
        <translation>证书中的名称(&amp;N)：</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>控制</translation>
    </message>
    <message>
        <source>Originator &amp;category:</source>
        <translation>源发者类别(&amp;C)：</translation>
    </message>
    <message>
        <source>Originator &amp;identification:</source>
        <translation>源发者标识(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Test Connection</source>
        <translation>测试连接(&amp;E)</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>添加设备</translation>
    </message>
    <message>
        <source>Edit Device %1</source>
        <translation>编辑设备 %1</translation>
    </message>
    <message>
        <source>SCL File</source>
        <translation>SCL 文件</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>证书</translation>
    </message>
    <message>
        <source>Private Key</source>
        <translation>私钥</translation>
    </message>
    <message>
        <source>Authorities</source>
        <translation>证书颁发机构</translation>
    </message>
    <message>
        <source>Revocation Lists</source>
        <translation>吊销列表</translation>
    </message>
    <message>
        <source>the only one</source>
        <translation>唯一的一台</translation>
    </message>
    <message>
        <source>The %1 of the %2 is not hexadecimal.</source>
        <translation>%1（%2）：不是十六进制。</translation>
    </message>
    <message>
        <source>transport selector</source>
        <translation>传输选择符</translation>
    </message>
    <message>
        <source>session selector</source>
        <translation>会话选择符</translation>
    </message>
    <message>
        <source>presentation selector</source>
        <translation>表示选择符</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 is not a number.</source>
        <translation>AE 限定符（%1）：不是数字。</translation>
    </message>
    <message>
        <source>client</source>
        <translation>客户端</translation>
    </message>
    <message>
        <source>device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>The device has no address.</source>
        <translation>设备没有地址。</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>正在连接 %1…</translation>
    </message>
    <message>
        <source>Connected to %1. Round trip: %2 ms; logical devices: %3</source>
        <translation>已连接到 %1。往返时间：%2 毫秒；逻辑设备：%3</translation>
    </message>
    <message>
        <source>a device that does not say what it is</source>
        <translation>一台未说明身份的设备</translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>The demonstration device, a part of the workbench</source>
        <translation>演示设备，工作台的一部分</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>演示</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>正在加载…</translation>
    </message>
    <message>
        <source>Offline model</source>
        <translation>离线模型</translation>
    </message>
    <message>
        <source>Model cannot be read: %1</source>
        <translation>无法读取模型：%1</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Starting the simulation…</source>
        <translation>正在启动仿真…</translation>
    </message>
    <message>
        <source>Cannot be used: %1</source>
        <translation>无法使用：%1</translation>
    </message>
    <message>
        <source>Simulation stopped</source>
        <translation>仿真已停止</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Not connected: %1</source>
        <translation>未连接：%1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>Reading the model (%1 %)…</source>
        <translation>正在读取模型（%1 %）…</translation>
    </message>
    <message>
        <source>Reading the model…</source>
        <translation>正在读取模型…</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Trying again: %1</source>
        <translation>将重试：%1</translation>
    </message>
    <message>
        <source>Simulated demonstration</source>
        <translation>仿真演示</translation>
    </message>
    <message>
        <source>Simulated: %1</source>
        <translation>仿真：%1</translation>
    </message>
    <message>
        <source>Reached at %1, port %2</source>
        <translation>地址 %1，端口 %2</translation>
    </message>
    <message>
        <source>Since %1</source>
        <translation>自 %1</translation>
    </message>
    <message>
        <source>Objects that the device did not describe: %1</source>
        <translation>设备未描述的对象：%1</translation>
    </message>
    <message>
        <source>Vendor: %1
Model: %2
Revision: %3</source>
        <translation>制造商：%1
型号：%2
版本：%3</translation>
    </message>
    <message>
        <source>Time from a request to its answer, measured last</source>
        <translation>从请求到应答的时间，最近一次测量</translation>
    </message>
    <message>
        <source>PDUs sent: %1
PDUs received: %2
Reports: %3
Published values: %4
Connections: %5</source>
        <translation>已发送 PDU：%1
已接收 PDU：%2
报告：%3
已发布的值：%4
连接次数：%5</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>Round trip</source>
        <translation>往返时间</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Connected: %1</source>
        <translation>已连接：%1</translation>
    </message>
    <message>
        <source>Connected, values not current: %1</source>
        <translation>已连接，非最新的值：%1</translation>
    </message>
    <message>
        <source>Away since %1</source>
        <translation>自 %1 起失去连接</translation>
    </message>
    <message>
        <source>Values that are not current: %1, the oldest of %2</source>
        <translation>非最新的值：%1，其中最早的为 %2</translation>
    </message>
    <message>
        <source>Values that the device denies: %1</source>
        <translation>设备拒绝提供的值：%1</translation>
    </message>
</context>
<context>
    <name>DeviceStore</name>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be read completely.</source>
        <translation>无法完整读取“%1”中的设备列表。</translation>
    </message>
    <message>
        <source>The list of devices cannot be saved in &quot;%1&quot; and will be as before at the next start.</source>
        <translation>无法将设备列表保存到“%1”，下次启动时列表将与之前相同。</translation>
    </message>
</context>
<context>
    <name>EmbeddedDriver</name>
    <message>
        <source>The IED &quot;%1&quot; has no logical devices, so there is nothing to browse.</source>
        <translation>IED“%1”没有逻辑设备，因此没有可浏览的内容。</translation>
    </message>
</context>
<context>
    <name>ExtensionLoader</name>
    <message>
        <source>Replace the file by the one that was built together with this workbench.</source>
        <translation>请用与此工作台一起构建的文件替换该文件。</translation>
    </message>
    <message>
        <source>The plug-in folder does not exist.</source>
        <translation>插件文件夹不存在。</translation>
    </message>
    <message>
        <source>Install the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>请将插件安装到该处，或使用 --plugin-dir 和插件所在文件夹启动工作台。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>Put the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>请将插件放到该处，或使用 --plugin-dir 和插件所在文件夹启动工作台。</translation>
    </message>
    <message>
        <source>The file is not a plug-in that this Qt can load: %1</source>
        <translation>该文件不是此 Qt 能加载的插件：%1</translation>
    </message>
    <message>
        <source>The plug-in is of another kind: it offers &quot;%1&quot; where &quot;%2&quot; is needed.</source>
        <translation>插件种类不符：它提供的是“%1”，而需要的是“%2”。</translation>
    </message>
    <message>
        <source>The plug-in does not carry the key &quot;%1&quot;.</source>
        <translation>插件不带有键“%1”。</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded: %1</source>
        <translation>无法加载插件：%1</translation>
    </message>
    <message>
        <source>Make sure that the libraries it needs are installed and belong to the same version.</source>
        <translation>请确认它所需的库已安装且版本一致。</translation>
    </message>
    <message>
        <source>The plug-in&apos;s object does not have the promised interface.</source>
        <translation>插件对象没有所承诺的接口。</translation>
    </message>
    <message>
        <source>The plug-in does not serve IEC 61850 (protocol %1).</source>
        <translation>插件不支持 IEC 61850（协议 %1）。</translation>
    </message>
    <message>
        <source>The plug-in says that it is not available.</source>
        <translation>插件报告其不可用。</translation>
    </message>
    <message>
        <source>Try again later, or ask whoever supplied the plug-in.</source>
        <translation>请稍后再试，或询问插件的提供者。</translation>
    </message>
    <message>
        <source>The plug-in offers no action.</source>
        <translation>插件没有提供任何操作。</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>1 error</source>
        <translation>1 个错误</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 个错误</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 个警告</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 个警告</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 个提示</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 个提示</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>严重程度</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>元素</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>检查结果</translation>
    </message>
</context>
<context>
    <name>GuideViewer</name>
    <message>
        <source>Operator Guide</source>
        <translation>操作指南</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>在指南中查找</translation>
    </message>
</context>
<context>
    <name>IedChooser</name>
    <message>
        <source>Choose the IED</source>
        <translation>选择 IED</translation>
    </message>
    <message>
        <source>IED</source>
        <translation>IED</translation>
    </message>
    <message>
        <source>Logical devices</source>
        <translation>逻辑设备</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds %2 IEDs. Which of them do you want to open?</source>
        <translation>“%1”包含 %2 台 IED。要打开其中哪些？</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>This IED has no logical devices, so there is nothing to browse.</source>
        <translation>此 IED 没有逻辑设备，因此没有可浏览的内容。</translation>
    </message>
</context>
<context>
    <name>IedDriver</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1; and %2 more</source>
        <translation>%1；另有 %2 项</translation>
    </message>
    <message>
        <source>Aborted by the operator.</source>
        <translation>操作员已中止。</translation>
    </message>
    <message>
        <source>The operation was cancelled.</source>
        <translation>操作已取消。</translation>
    </message>
    <message>
        <source>%1 has not finished the operation within %2 seconds.</source>
        <translation>%1 未在 %2 秒内完成操作。</translation>
    </message>
    <message>
        <source>%1 is not connected.</source>
        <translation>%1 未连接。</translation>
    </message>
    <message>
        <source>%1 is not connected: %2.</source>
        <translation>%1 未连接：%2。</translation>
    </message>
    <message>
        <source>The model of %1 is being read: %2 of %3.</source>
        <translation>正在读取模型：%1，%2/%3。</translation>
    </message>
    <message>
        <source>The device has not answered for %1 seconds.</source>
        <translation>设备已 %1 秒没有应答。</translation>
    </message>
    <message>
        <source>The SCL file is not used: %1</source>
        <translation>未使用 SCL 文件：%1</translation>
    </message>
    <message>
        <source>Reading the model was cancelled.</source>
        <translation>模型读取已取消。</translation>
    </message>
    <message>
        <source>the value does not have the form of its type</source>
        <translation>值的形式与其类型不符</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of report control block.</source>
        <translation>“%1”不是报告控制块的类型。</translation>
    </message>
    <message>
        <source>A data set needs at least one member.</source>
        <translation>数据集至少需要一个成员。</translation>
    </message>
    <message>
        <source>There is no reference to be listed.</source>
        <translation>没有要列出的引用。</translation>
    </message>
    <message>
        <source>Not connected to the device</source>
        <translation>未连接到设备</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>此驱动程序上没有设备 %1。</translation>
    </message>
    <message>
        <source>The driver is read-only: nothing on %1 was changed.</source>
        <translation>驱动程序为只读：未更改 %1 上的任何内容。</translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation>设备 %1</translation>
    </message>
    <message>
        <source>Its logical device &quot;%1&quot; is online already as part of %2; live values could not be told apart.</source>
        <translation>其逻辑设备“%1”已作为 %2 的一部分在线；实时值将无法区分。</translation>
    </message>
    <message>
        <source>The capture cannot be written: %1</source>
        <translation>无法写入抓包文件：%1</translation>
    </message>
    <message>
        <source>The values cannot be written: %1</source>
        <translation>无法写入值：%1</translation>
    </message>
    <message>
        <source>The device has no address.</source>
        <translation>设备没有地址。</translation>
    </message>
    <message>
        <source>There is nothing to read.</source>
        <translation>没有可读取的内容。</translation>
    </message>
    <message>
        <source>The data set has %1 members, but %2 values came.</source>
        <translation>数据集有 %1 个成员，但收到了 %2 个值。</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type</source>
        <translation>%1：值的形式与其类型不符</translation>
    </message>
    <message>
        <source>The device has no %1.</source>
        <translation>设备没有 %1。</translation>
    </message>
    <message>
        <source>The value to be written cannot be read.</source>
        <translation>无法读取要写入的值。</translation>
    </message>
    <message>
        <source>Select the object first</source>
        <translation>请先选择对象</translation>
    </message>
    <message>
        <source>%1 has the control model %2, but the command was made for %3: read the model of the device again.</source>
        <translation>%1 的控制模型为 %2，而命令是按 %3 生成的：请重新读取设备的模型。</translation>
    </message>
    <message>
        <source>The command is not the one that was selected.</source>
        <translation>该命令与所选择的命令不一致。</translation>
    </message>
    <message>
        <source>The control request cannot be read.</source>
        <translation>无法读取控制请求。</translation>
    </message>
    <message>
        <source>The control request is for %1, not for %2.</source>
        <translation>控制请求针对的是 %1，而不是 %2。</translation>
    </message>
    <message>
        <source>The control value is no finite number.</source>
        <translation>控制值不是有限数。</translation>
    </message>
    <message>
        <source>%1 is no code of the check conditions.</source>
        <translation>%1 不是检查条件的代码。</translation>
    </message>
    <message>
        <source>The test flag is 0 or 1, not %1.</source>
        <translation>测试标志应为 0 或 1，而不是 %1。</translation>
    </message>
    <message>
        <source>interlock check</source>
        <translation>联锁检查</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>同期检查</translation>
    </message>
    <message>
        <source>test</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>The driver has not waited for the end of the operation.</source>
        <translation>驱动程序没有等到操作结束。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not name a report control block.</source>
        <translation>“%1”不是报告控制块的名称。</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of a report control block cannot be written.</source>
        <translation>报告控制块的属性“%1”不可写。</translation>
    </message>
    <message>
        <source>The value for %1 has %2 bytes instead of %3.</source>
        <translation>%1 的值为 %2 字节，而不是 %3 字节。</translation>
    </message>
    <message>
        <source>%1 cannot be negative.</source>
        <translation>%1 不能为负数。</translation>
    </message>
    <message>
        <source>Buffer time and integrity period cannot be negative.</source>
        <translation>缓存时间和完整性周期不能为负数。</translation>
    </message>
    <message>
        <source>enabled again after the association was lost</source>
        <translation>在关联丢失后重新使能</translation>
    </message>
    <message>
        <source>The report control block %1 has no data set.</source>
        <translation>报告控制块 %1 没有数据集。</translation>
    </message>
    <message>
        <source>The device has not enabled %1 although it said so.</source>
        <translation>设备已确认使能 %1，但实际并未使能。</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>禁止</translation>
    </message>
    <message>
        <source>the driver is read-only.</source>
        <translation>驱动程序为只读。</translation>
    </message>
    <message>
        <source>The report control block %1 could not be %2: %3</source>
        <translation>报告控制块 %1 未能%2：%3</translation>
    </message>
    <message>
        <source>The device has disabled %1 by itself.</source>
        <translation>设备自行禁止了 %1。</translation>
    </message>
    <message>
        <source>enabled again</source>
        <translation>重新使能</translation>
    </message>
    <message>
        <source>A report of the device could not be read: %1</source>
        <translation>无法读取设备的一个报告：%1</translation>
    </message>
    <message>
        <source>The reports of %1 have no value for %2: %3.</source>
        <translation>%1 的报告中没有 %2 的值：%3。</translation>
    </message>
    <message>
        <source>A value of %1 in the reports of %2 does not have the form of its type.</source>
        <translation>%2 的报告中 %1 的值的形式与其类型不符。</translation>
    </message>
    <message>
        <source>The buffer of %1 has overflown: older changes are lost.</source>
        <translation>%1 的缓存已溢出：较早的变化已丢失。</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>使能</translation>
    </message>
    <message>
        <source>The member %1 of the data set of %2 is no data of the device&apos;s model.</source>
        <translation>%2 的数据集成员 %1 不是设备模型中的数据。</translation>
    </message>
    <message>
        <source>%1 is busy with another file: %2.</source>
        <translation>%1 正忙于另一个文件：%2。</translation>
    </message>
    <message>
        <source>listing &quot;%1&quot;</source>
        <translation>正在列出“%1”</translation>
    </message>
    <message>
        <source>fetching &quot;%1&quot;</source>
        <translation>正在获取“%1”</translation>
    </message>
    <message>
        <source>%1 is too large: at most %2 octets can be fetched.</source>
        <translation>%1 过大：最多可获取 %2 个八位字节。</translation>
    </message>
    <message>
        <source>deleting &quot;%1&quot;</source>
        <translation>正在删除“%1”</translation>
    </message>
    <message>
        <source>There is no name of a file.</source>
        <translation>没有文件名。</translation>
    </message>
    <message>
        <source>There is no file to send.</source>
        <translation>没有要发送的文件。</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot; on this computer.</source>
        <translation>此计算机上没有文件“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>无法读取“%1”：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large for a file of a device.</source>
        <translation>“%1”过大，不能作为设备的文件。</translation>
    </message>
    <message>
        <source>sending &quot;%1&quot;</source>
        <translation>正在发送“%1”</translation>
    </message>
    <message>
        <source>%1 (%2 octets)</source>
        <translation>%1（%2 个八位字节）</translation>
    </message>
    <message>
        <source>The device has no logical device &quot;%1&quot;.</source>
        <translation>设备没有逻辑设备“%1”。</translation>
    </message>
    <message>
        <source>%1 has no setting group control block.</source>
        <translation>%1 没有定值组控制块。</translation>
    </message>
    <message>
        <source>%1 has more setting groups than can be counted: %2.</source>
        <translation>%1 的定值组数超出可计数范围：%2。</translation>
    </message>
    <message>
        <source>No setting group of %1 is being edited: select the group to edit first.</source>
        <translation>%1 没有正在编辑的定值组：请先选择编辑定值组。</translation>
    </message>
    <message>
        <source>Settings are read under SG or SE, not under &quot;%1&quot;.</source>
        <translation>定值在 SG 或 SE 下读取，而不是“%1”。</translation>
    </message>
    <message>
        <source>%1 has no setting %2.</source>
        <translation>%1 没有定值 %2。</translation>
    </message>
    <message>
        <source>%1. The changes are not confirmed.</source>
        <translation>%1。更改未确认。</translation>
    </message>
    <message>
        <source>%1 has the setting groups 1 to %2; there is no group %3.</source>
        <translation>%1 的定值组为 1 到 %2；没有定值组 %3。</translation>
    </message>
    <message>
        <source>Another window has selected the object since: select it here first.</source>
        <translation>此后另一个窗口已选择该对象：请先在此处选择。</translation>
    </message>
    <message>
        <source>The object was selected for different commands; which one is meant is not known: cancel the selection and select it again.</source>
        <translation>该对象曾为不同的命令被选择，无法确定指的是哪一个：请取消选择，然后重新选择。</translation>
    </message>
    <message>
        <source>%1 is no originator category; they go from 0 to 8.</source>
        <translation>%1 不是源发者类别；类别为 0 到 8。</translation>
    </message>
    <message>
        <source>category %1</source>
        <translation>类别 %1</translation>
    </message>
    <message>
        <source>It is not known whether the object was selected.</source>
        <translation>无法确定对象是否已被选择。</translation>
    </message>
    <message>
        <source>It is not known whether the command was carried out; look at the position.</source>
        <translation>无法确定命令是否已执行；请查看位置。</translation>
    </message>
    <message>
        <source>It is not known whether the command was cancelled; look at the position.</source>
        <translation>无法确定命令是否已取消；请查看位置。</translation>
    </message>
    <message>
        <source>%1 (told late)</source>
        <translation>%1（延迟告知）</translation>
    </message>
    <message>
        <source>%1: the command that was not answered in time was carried out.</source>
        <translation>%1：未及时得到应答的命令已执行。</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association.</source>
        <translation>驱动程序的内部错误终止了关联。</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association: %1.</source>
        <translation>驱动程序的内部错误终止了关联：%1。</translation>
    </message>
    <message>
        <source>The device has not answered earlier requests; the question whether it is there waits for a place behind them.</source>
        <translation>设备没有应答先前的请求；询问设备是否在线的请求正排在其后等待。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 characters; the name of a data set has at most %3.</source>
        <translation>“%1”有 %2 个字符；数据集名称最多 %3 个字符。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no functional constraint, which each member of a data set needs.</source>
        <translation>“%1”没有给出功能约束，而数据集的每个成员都需要功能约束。</translation>
    </message>
    <message>
        <source>This is not the device that the window was opened for: open it again.</source>
        <translation>这不是打开该窗口时的设备：请重新打开窗口。</translation>
    </message>
    <message>
        <source>The IED %1 of the file has no access point &quot;%2&quot; with a server.</source>
        <translation>文件中的 IED %1 没有带服务器的访问点“%2”。</translation>
    </message>
    <message>
        <source>The device has none of the logical devices that the file describes for %1, such as %2.</source>
        <translation>设备没有文件为 %1 描述的任何逻辑设备，例如 %2。</translation>
    </message>
    <message>
        <source>%1 stays open on the device, which has few open files: %2</source>
        <translation>%1 在设备上仍处于打开状态，而设备可打开的文件很少：%2</translation>
    </message>
    <message>
        <source>%1 comes too slowly: %2 octets so far, less than %3 in a second.</source>
        <translation>%1 传输太慢：目前 %2 个八位组，每秒少于 %3 个。</translation>
    </message>
    <message>
        <source>%1 events of the device were dropped, because they were not taken in time.</source>
        <translation>已丢弃设备的 %1 个事件，因为未及时取走。</translation>
    </message>
    <message>
        <source>The configuration of the device reserves %1; that cannot be changed.</source>
        <translation>设备的配置预留了 %1；无法更改。</translation>
    </message>
    <message>
        <source>%1 was not enabled in time.</source>
        <translation>未能及时使能 %1。</translation>
    </message>
    <message>
        <source>%1 It was left alone.</source>
        <translation>%1 未对其做任何改动。</translation>
    </message>
    <message>
        <source>without sequence numbers lost reports cannot be noticed</source>
        <translation>没有顺序号，无法发现丢失的报告</translation>
    </message>
    <message>
        <source>%1 could not be enabled, and this was left behind as it was written: %2.</source>
        <translation>未能使能 %1，以下内容保留了写入后的状态：%2。</translation>
    </message>
    <message>
        <source>no longer waited for</source>
        <translation>不再等待</translation>
    </message>
    <message>
        <source>member %1</source>
        <translation>成员 %1</translation>
    </message>
    <message>
        <source>Reports of %1 are missing; its data set is read whole.</source>
        <translation>%1 的报告有缺失；将整体读取其数据集。</translation>
    </message>
    <message>
        <source>Parts of a report of %1 are missing; its data set is read whole.</source>
        <translation>%1 的一个报告缺少部分内容；将整体读取其数据集。</translation>
    </message>
    <message>
        <source>The device does not know the last entry of %1 any more: changes since then may be lost, or come again.</source>
        <translation>设备已不再识别 %1 的最后一个条目：此后的变化可能已丢失，或会再次收到。</translation>
    </message>
    <message>
        <source>A report of %1 is of another data set than the block had when it was enabled.</source>
        <translation>%1 的一个报告所属的数据集与该块使能时的数据集不同。</translation>
    </message>
    <message>
        <source>A report of the device may be of %1 or of another block with other data; it was not taken.</source>
        <translation>设备的一个报告可能属于 %1，也可能属于数据不同的另一个块；未予采用。</translation>
    </message>
    <message>
        <source>The device described %1 in parts only, so what the reports of %2 say of it cannot be understood; it is polled.</source>
        <translation>设备只描述了 %1 的一部分，因此无法理解 %2 的报告中与其有关的内容；改为轮询读取。</translation>
    </message>
    <message>
        <source>The data set of %1 cannot be read: %2</source>
        <translation>无法读取 %1 的数据集：%2</translation>
    </message>
    <message>
        <source>The data set of %1 has %2 members instead of %3.</source>
        <translation>%1 的数据集有 %2 个成员，而不是 %3 个。</translation>
    </message>
    <message>
        <source>The data set of %1 has no value for %2: %3.</source>
        <translation>%1 的数据集中没有 %2 的值：%3。</translation>
    </message>
    <message>
        <source>A value of %1 in the data set of %2 does not have the form of its type.</source>
        <translation>%2 的数据集中 %1 的值的形式与其类型不符。</translation>
    </message>
    <message>
        <source>%1 is enabled by another client, which the device does not name.</source>
        <translation>%1 已由另一个客户端使能，设备未说明是哪一个。</translation>
    </message>
    <message>
        <source>%1 is reserved by another client, which the device does not name.</source>
        <translation>%1 已被另一个客户端预留，设备未说明是哪一个。</translation>
    </message>
    <message>
        <source>%1 is enabled by the client %2.</source>
        <translation>%1 已由客户端 %2 使能。</translation>
    </message>
    <message>
        <source>%1 is reserved by the client %2.</source>
        <translation>%1 已被客户端 %2 预留。</translation>
    </message>
    <message>
        <source>%1 is enabled by another association of this computer (%2).</source>
        <translation>%1 已由此计算机的另一个关联（%2）使能。</translation>
    </message>
    <message>
        <source>%1 is reserved by another association of this computer (%2).</source>
        <translation>%1 已被此计算机的另一个关联（%2）预留。</translation>
    </message>
    <message>
        <source>Another client is editing group %1 of %2.</source>
        <translation>另一个客户端正在编辑 %2 的定值组 %1。</translation>
    </message>
    <message>
        <source>Group %1 of %2 was chosen for editing in another window: select the group to edit first.</source>
        <translation>%2 的定值组 %1 是在另一个窗口中选择编辑的：请先选择编辑定值组。</translation>
    </message>
    <message>
        <source>The device has given up the edit of group %1 of %2: select the group to edit again.</source>
        <translation>设备已放弃对 %2 的定值组 %1 的编辑：请重新选择编辑定值组。</translation>
    </message>
    <message>
        <source>%1 has no settings that can be edited: the device describes none under SE.</source>
        <translation>%1 没有可编辑的定值：设备在 SE 下未描述任何定值。</translation>
    </message>
    <message>
        <source>%1 It is not known whether the changes of group %2 were taken over: select the group and look.</source>
        <translation>%1 无法确定定值组 %2 的更改是否已生效：请选择该组并查看。</translation>
    </message>
    <message>
        <source>These are the settings of the active group; choose the group to edit first.</source>
        <translation>这些是当前定值组的定值；请先选择编辑定值组。</translation>
    </message>
    <message>
        <source>%1 has accepted group %2, but group %3 is still the active one.</source>
        <translation>%1 已接受定值组 %2，但当前定值组仍为 %3。</translation>
    </message>
    <message>
        <source>%1 Group %2 is the active one.</source>
        <translation>%1 当前定值组为 %2。</translation>
    </message>
    <message>
        <source>%1 It is not known whether group %2 became active: look at the active group.</source>
        <translation>%1 无法确定定值组 %2 是否已成为当前定值组：请查看当前定值组。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 It is not known whether the device is editing group %2: select the group to edit again.</source>
        <translation>%1 无法确定设备是否正在编辑定值组 %2：请重新选择编辑定值组。</translation>
    </message>
    <message>
        <source>%1; it is not known whether the setting was written.</source>
        <translation>%1；无法确定定值是否已写入。</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device does not answer when it is asked for %3.</source>
        <translation>自 %1 起非当前的值：%2 个。询问 %3 时设备没有应答。</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device cannot give %3 for the moment.</source>
        <translation>自 %1 起非当前的值：%2 个。设备目前无法给出 %3。</translation>
    </message>
    <message>
        <source>Values that the device refuses and that are not asked for again: %1 (%2).</source>
        <translation>设备拒绝且不再询问的值：%1 个（%2）。</translation>
    </message>
</context>
<context>
    <name>JournalModel</name>
    <message>
        <source>OK</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failed (%1)</source>
        <translation>失败 (%1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>用时</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>IEC 61850 Workbench</source>
        <translation>IEC 61850 工作台</translation>
    </message>
    <message>
        <source>T&amp;ry Again</source>
        <translation>重试(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Open SCL File…</source>
        <translation>打开 SCL 文件(&amp;O)…</translation>
    </message>
    <message>
        <source>Open De&amp;monstration Device</source>
        <translation>打开演示设备(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>设备(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Open &amp;Demonstration Device</source>
        <translation>打开演示设备(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Read Model &amp;Again</source>
        <translation>重新读取模型(&amp;A)</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>从列表中移除(&amp;R)</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>&amp;Clear Journal</source>
        <translation>清空日志(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Operator Guide</source>
        <translation>操作指南(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>加载已取消。</translation>
    </message>
    <message>
        <source>No call to the driver yet. Every request that a tool makes is listed here.</source>
        <translation>尚未调用驱动程序。工具发出的每个请求都会列在这里。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Reading %1 (%2 files left)</source>
        <translation>正在读取 %1（还剩 %2 个文件）</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>正在读取 %1</translation>
    </message>
    <message>
        <source>The IEC 61850 tools are not available.
%1
%2 %3</source>
        <translation>IEC 61850 工具不可用。
%1
%2 %3</translation>
    </message>
    <message>
        <source>Select a device to see what was noticed while its file was read.</source>
        <translation>选择一台设备，查看读取其文件时发现的情况。</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>检查结果：%1</translation>
    </message>
    <message>
        <source>Findings: %1 (%2)</source>
        <translation>检查结果：%1（%2）</translation>
    </message>
    <message>
        <source>No findings: everything in the file of this device was understood.</source>
        <translation>没有检查结果：此设备文件中的全部内容均已识别。</translation>
    </message>
    <message>
        <source>The model cannot be read. %1
Read it again with %2, or remove the device from the list.</source>
        <translation>无法读取模型。%1
请用 %2 重新读取，或将设备从列表中移除。</translation>
    </message>
    <message>
        <source>Open SCL File</source>
        <translation>打开 SCL 文件</translation>
    </message>
    <message>
        <source>SCL files (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</source>
        <translation>SCL 文件 (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Further files that cannot be used: %1</source>
        <translation>其他无法使用的文件：%1</translation>
    </message>
    <message>
        <source>%1 was taken off the list; its file stays where it is.</source>
        <translation>%1 已从列表中移除；其文件仍在原处。</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>IEC 61850 Workbench %1

A small host for the IEC 61850 tools: it lists devices, loads the plug-in and shows every request that its tools make.

Apache License 2.0</source>
        <translation>IEC 61850 工作台 %1

IEC 61850 工具的小型宿主程序：列出设备，加载插件，并显示其工具发出的每个请求。

Apache License 2.0</translation>
    </message>
    <message>
        <source>No device yet: add one, or open an SCL file</source>
        <translation>尚无设备：请添加设备或打开 SCL 文件</translation>
    </message>
    <message>
        <source>&amp;Add Device…</source>
        <translation>添加设备(&amp;A)…</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Add a device from an SCL file, without a connection</source>
        <translation>从 SCL 文件添加设备，不连接</translation>
    </message>
    <message>
        <source>&amp;Start Simulated Device…</source>
        <translation>启动仿真设备(&amp;S)…</translation>
    </message>
    <message>
        <source>Simulate a device of an SCL file and connect to it</source>
        <translation>仿真 SCL 文件中的设备并与其连接</translation>
    </message>
    <message>
        <source>Add &amp;Device…</source>
        <translation>添加设备(&amp;D)…</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>添加设备</translation>
    </message>
    <message>
        <source>Add a device that is reached over the network</source>
        <translation>添加通过网络访问的设备</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>&amp;Edit Device…</source>
        <translation>编辑设备(&amp;E)…</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>连接(&amp;C)</translation>
    </message>
    <message>
        <source>Connect to the selected device, now and at the next start</source>
        <translation>连接所选设备，现在以及下次启动时</translation>
    </message>
    <message>
        <source>Leave the selected device, until it is connected again</source>
        <translation>断开所选设备，直到再次连接</translation>
    </message>
    <message>
        <source>&amp;Start Simulation</source>
        <translation>启动仿真(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;top Simulation</source>
        <translation>停止仿真(&amp;T)</translation>
    </message>
    <message>
        <source>End the simulated device, as if it had lost its power</source>
        <translation>停止仿真设备，如同失去电源</translation>
    </message>
    <message>
        <source>&amp;PDU Trace…</source>
        <translation>PDU 跟踪(&amp;P)…</translation>
    </message>
    <message>
        <source>Show what is exchanged with the selected device</source>
        <translation>显示与所选设备的交互</translation>
    </message>
    <message>
        <source>Sa&amp;ve Capture…</source>
        <translation>保存抓包(&amp;V)…</translation>
    </message>
    <message>
        <source>Save what was exchanged with the selected device for a protocol analyser</source>
        <translation>保存与所选设备的交互报文，供协议分析仪使用</translation>
    </message>
    <message>
        <source>E&amp;xport Values…</source>
        <translation>导出数值(&amp;X)…</translation>
    </message>
    <message>
        <source>Save the values of the selected device as a table</source>
        <translation>将所选设备的值保存为表格</translation>
    </message>
    <message>
        <source>Refuse everything that changes something on a device</source>
        <translation>拒绝一切会更改设备的操作</translation>
    </message>
    <message>
        <source>Open &amp;Folder of the Change Journal</source>
        <translation>打开更改日志所在文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Nothing was changed on a device yet. Every write, command and transfer is listed here%1.</source>
        <translation>尚未更改任何设备。每次写入、命令和传输都会列在这里%1。</translation>
    </message>
    <message>
        <source> and kept in
%1</source>
        <translation> 并保存在
%1</translation>
    </message>
    <message>
        <source>Read-only: nothing is changed on devices</source>
        <translation>只读：不会更改设备上的任何内容</translation>
    </message>
    <message>
        <source>Reading the model of %1</source>
        <translation>正在读取 %1 的模型</translation>
    </message>
    <message>
        <source>This device has no SCL file; its model is read from the device itself.</source>
        <translation>此设备没有 SCL 文件；其模型从设备本身读取。</translation>
    </message>
    <message>
        <source>Start Simulated Device</source>
        <translation>启动仿真设备</translation>
    </message>
    <message>
        <source>%1 was taken off the list.</source>
        <translation>%1 已从列表中移除。</translation>
    </message>
    <message>
        <source>Disco&amp;nnect</source>
        <translation>断开连接(&amp;N)</translation>
    </message>
    <message>
        <source>Read-On&amp;ly</source>
        <translation>只读(&amp;L)</translation>
    </message>
    <message>
        <source>Save Capture</source>
        <translation>保存抓包</translation>
    </message>
    <message>
        <source>Captures (*.pcapng)</source>
        <translation>抓包文件 (*.pcapng)</translation>
    </message>
    <message>
        <source>Export Values</source>
        <translation>导出数值</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>表格 (*.csv)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written.</source>
        <translation>已写入“%1”。</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开连接</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>The SCL file of this device was only compared with the device. Open it as an SCL file to see its findings.</source>
        <translation>此设备的 SCL 文件仅与设备作了比较。要查看其检查结果，请将其作为 SCL 文件打开。</translation>
    </message>
    <message>
        <source>Con&amp;firm</source>
        <translation>确认(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Commands before they are sent</source>
        <translation>发送前的命令(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Everything that changes a device</source>
        <translation>一切会更改设备的操作(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>无(&amp;N)</translation>
    </message>
    <message>
        <source>%1 is away since %2</source>
        <translation>%1 自 %2 起失去连接</translation>
    </message>
    <message>
        <source>Devices away: %1, the first since %2</source>
        <translation>失去连接的设备：%1，最早自 %2 起</translation>
    </message>
</context>
<context>
    <name>OfflineDriverService</name>
    <message>
        <source>Not connected to the device</source>
        <translation>未连接到设备</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>此驱动程序上没有设备 %1。</translation>
    </message>
</context>
<context>
    <name>SclImport</name>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>无法打开文件“%1”：%2。</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>The file describes no IED.</source>
        <translation>文件中没有描述任何 IED。</translation>
    </message>
    <message>
        <source>There is no IED &quot;%1&quot; in the file.</source>
        <translation>文件中没有 IED“%1”。</translation>
    </message>
    <message>
        <source>The file describes several IEDs; one must be chosen.</source>
        <translation>文件描述了多台 IED，必须选择一台。</translation>
    </message>
</context>
<context>
    <name>SimulatedDevice</name>
    <message>
        <source>The files of the simulated device cannot be written to &quot;%1&quot;.</source>
        <translation>无法将仿真设备的文件写入“%1”。</translation>
    </message>
    <message>
        <source>The device cannot be simulated: %1</source>
        <translation>无法仿真该设备：%1</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Tour</name>
    <message>
        <source>a message: &quot;%1: %2&quot;</source>
        <translation>消息：“%1：%2”</translation>
    </message>
    <message>
        <source>the window &quot;%1&quot;</source>
        <translation>窗口“%1”</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>无法创建文件夹“%1”。</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; is not available: %2</source>
        <translation>插件“%1”不可用：%2</translation>
    </message>
    <message>
        <source>The demonstration device was not read in time.</source>
        <translation>未能及时读完演示设备。</translation>
    </message>
    <message>
        <source>The demonstration device cannot be read.</source>
        <translation>无法读取演示设备。</translation>
    </message>
    <message>
        <source>The second device cannot be read.</source>
        <translation>无法读取第二台设备。</translation>
    </message>
    <message>
        <source>The plug-in offers no tool number %1 for the demonstration device.</source>
        <translation>插件没有为演示设备提供第 %1 个工具。</translation>
    </message>
    <message>
        <source>Instead of the IED browser came %1.</source>
        <translation>出现的不是 IED 浏览器，而是%1。</translation>
    </message>
    <message>
        <source>The IED browser did not appear.</source>
        <translation>IED 浏览器没有出现。</translation>
    </message>
    <message>
        <source>The IED browser has no tree.</source>
        <translation>IED 浏览器没有树视图。</translation>
    </message>
    <message>
        <source>The demonstration device has no switch.</source>
        <translation>演示设备没有开关设备。</translation>
    </message>
    <message>
        <source>The context menu did not appear.</source>
        <translation>上下文菜单没有出现。</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; did not appear.</source>
        <translation>窗口“%1”没有出现。</translation>
    </message>
    <message>
        <source>The journal stayed empty.</source>
        <translation>日志仍为空。</translation>
    </message>
    <message>
        <source>Instead of &quot;%1&quot; came %2.</source>
        <translation>出现的不是“%1”，而是%2。</translation>
    </message>
    <message>
        <source>The IED browser has no entry &quot;%1&quot;.</source>
        <translation>IED 浏览器没有菜单项“%1”。</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be saved.</source>
        <translation>无法保存图片“%1”。</translation>
    </message>
    <message>
        <source>The simulated device was not connected in time.</source>
        <translation>未能及时连接仿真设备。</translation>
    </message>
</context>
<context>
    <name>TraceDialog</name>
    <message>
        <source>&amp;Pause</source>
        <translation>暂停(&amp;P)</translation>
    </message>
    <message>
        <source>PDU Trace: %1</source>
        <translation>PDU 跟踪：%1</translation>
    </message>
    <message>
        <source>Nothing was exchanged with this device yet.</source>
        <translation>尚未与此设备交换任何报文。</translation>
    </message>
    <message>
        <source>&amp;Save Capture…</source>
        <translation>保存抓包(&amp;S)…</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清空(&amp;L)</translation>
    </message>
</context>
<context>
    <name>TraceModel</name>
    <message>
        <source>sent</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>received</source>
        <translation>接收</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>PDU</source>
        <translation>PDU</translation>
    </message>
</context>
<context>
    <name>ValueConversion</name>
    <message>
        <source>%1 does not fit %2.</source>
        <translation>%1 不符合 %2。</translation>
    </message>
    <message>
        <source>%1 is no finite number.</source>
        <translation>%1 不是有限数。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that %2 does not have.</source>
        <translation>“%1”含有 %2 不允许的字符。</translation>
    </message>
    <message>
        <source>There is no value to write.</source>
        <translation>没有要写入的值。</translation>
    </message>
    <message>
        <source>A value of type %1 cannot be written as a whole.</source>
        <translation>类型为 %1 的值不能整体写入。</translation>
    </message>
    <message>
        <source>The text of %1 is longer than can be shown, so it can only be read.</source>
        <translation>%1 的文本超出可显示的长度，因此只能读取。</translation>
    </message>
    <message>
        <source>%1 holds octets that are no text, so it can only be read.</source>
        <translation>%1 含有不是文本的八位字节，因此只能读取。</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation>“%1”无法使用：%2</translation>
    </message>
    <message>
        <source>Logical devices: %1, logical nodes: %2, data attributes: %3</source>
        <translation>逻辑设备：%1，逻辑节点：%2，数据属性：%3</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>加载已取消。</translation>
    </message>
    <message>
        <source>Another workbench uses the list of devices in &quot;%1&quot;: what is changed in this one is not kept.</source>
        <translation>另一个工作台正在使用“%1”中的设备列表：在此工作台中所做的更改不会保留。</translation>
    </message>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be locked: what is changed is not kept.</source>
        <translation>无法锁定“%1”中的设备列表：所做的更改不会保留。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>无法写入标准输出。</translation>
    </message>
</context>
</TS>
