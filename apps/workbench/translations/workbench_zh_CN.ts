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
    <message>
        <source>Acc&amp;ess point of the IED:</source>
        <translation>IED 的访问点(&amp;E)：</translation>
    </message>
    <message>
        <source>Which of the IED&apos;s access points the device is, where the file describes several</source>
        <translation>文件中描述了多个访问点时，此设备是 IED 的哪一个访问点</translation>
    </message>
    <message>
        <source>Accept certificates that are made out to &amp;others</source>
        <translation>接受签发给其他主机的证书(&amp;O)</translation>
    </message>
    <message>
        <source>Unsafe: whoever holds the key of any certificate of these authorities can pose as this device. Better enter the name that its certificate has, or its fingerprint.</source>
        <translation>不安全：任何持有这些机构所签发证书之密钥的人都可以冒充此设备。最好输入其证书中的名称或其指纹。</translation>
    </message>
    <message>
        <source>the one with the device&apos;s address</source>
        <translation>具有此设备地址的访问点</translation>
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
    <message>
        <source>A report control block could not be %1: %2</source>
        <translation>报告控制块操作失败（%1）：%2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>%1 (%2).</source>
        <translation>%1（%2）。</translation>
    </message>
    <message>
        <source>%1 (%2, %3).</source>
        <translation>%1（%2，%3）。</translation>
    </message>
    <message>
        <source>%1 (%2, %3, %4).</source>
        <translation>%1（%2，%3，%4）。</translation>
    </message>
    <message>
        <source>%1 bears the name of the issuer &quot;%2&quot;, but not its signature.</source>
        <translation>%1 带有签发者“%2”的名称，但没有其签名。</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; does not bear its signature.</source>
        <translation>%1 无法检查：其签发者“%2”的吊销列表没有该签发者的签名。</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is not valid yet.</source>
        <translation>%1 无法检查：其签发者“%2”的吊销列表尚未生效。</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is out of date.</source>
        <translation>%1 无法检查：其签发者“%2”的吊销列表已过期。</translation>
    </message>
    <message>
        <source>%1 cannot be checked: there is no revocation list of its issuer &quot;%2&quot;.</source>
        <translation>%1 无法检查：没有其签发者“%2”的吊销列表。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 无法读取：%2。</translation>
    </message>
    <message>
        <source>%1 expired on %2.</source>
        <translation>%1 已于 %2 过期。</translation>
    </message>
    <message>
        <source>%1 has a key that is too short to be safe.</source>
        <translation>%1 的密钥太短，不安全。</translation>
    </message>
    <message>
        <source>%1 has a name that is none, or that something else has; it is left out.</source>
        <translation>%1 的名称无效，或已被其他内容使用；已略去。</translation>
    </message>
    <message>
        <source>%1 has been revoked.</source>
        <translation>%1 已被吊销。</translation>
    </message>
    <message>
        <source>%1 has no %2.</source>
        <translation>%1 没有 %2。</translation>
    </message>
    <message>
        <source>%1 is enabled already.</source>
        <translation>%1 已经使能。</translation>
    </message>
    <message>
        <source>%1 is in the device already, perhaps the only whole version that an upload before this one has left: save or delete it first. Nothing was changed on the device.</source>
        <translation>%1 已在设备中，它可能是上一次上传留下的唯一完整版本：请先保存或删除它。设备上没有任何更改。</translation>
    </message>
    <message>
        <source>%1 is in the device and may be incomplete.</source>
        <translation>%1 在设备中，可能不完整。</translation>
    </message>
    <message>
        <source>%1 is larger, or nested deeper, than what is taken; it is left out.</source>
        <translation>%1 超出所接受的大小或嵌套深度；已略去。</translation>
    </message>
    <message>
        <source>%1 is no functional constraint.</source>
        <translation>%1 不是功能约束。</translation>
    </message>
    <message>
        <source>%1 is no name of data.</source>
        <translation>%1 不是数据的名称。</translation>
    </message>
    <message>
        <source>%1 is not a reference: %2.</source>
        <translation>%1 不是引用：%2。</translation>
    </message>
    <message>
        <source>%1 is not accepted: %2.</source>
        <translation>%1 不被接受：%2。</translation>
    </message>
    <message>
        <source>%1 is not in the device.</source>
        <translation>%1 不在设备中。</translation>
    </message>
    <message>
        <source>%1 is not made out to the host that was asked for.</source>
        <translation>%1 不是签发给所请求主机的。</translation>
    </message>
    <message>
        <source>%1 is not meant for this side of a TLS connection.</source>
        <translation>%1 不适用于 TLS 连接的这一端。</translation>
    </message>
    <message>
        <source>%1 is not the name of a data object that can be controlled.</source>
        <translation>%1 不是可控制的数据对象的名称。</translation>
    </message>
    <message>
        <source>%1 is not the name of a data set.</source>
        <translation>%1 不是数据集的名称。</translation>
    </message>
    <message>
        <source>%1 is valid only from %2 on.</source>
        <translation>%1 自 %2 起才有效。</translation>
    </message>
    <message>
        <source>%1 may be in the device, incomplete.</source>
        <translation>%1 可能不完整地留在设备中。</translation>
    </message>
    <message>
        <source>%1 may be incomplete.</source>
        <translation>%1 可能不完整。</translation>
    </message>
    <message>
        <source>%1 of %2 cannot be written: %3.</source>
        <translation>%2 的 %1 无法写入：%3。</translation>
    </message>
    <message>
        <source>%1 of %2: %3.</source>
        <translation>%2 的 %1：%3。</translation>
    </message>
    <message>
        <source>%1 of the control block cannot be %2.</source>
        <translation>控制块的 %1 操作失败（%2）。</translation>
    </message>
    <message>
        <source>%1 of the member %2</source>
        <translation>成员 %2 的 %1</translation>
    </message>
    <message>
        <source>%1 was issued by &quot;%2&quot;, which is not trusted here.</source>
        <translation>%1 由“%2”签发，该签发者在此不受信任。</translation>
    </message>
    <message>
        <source>%1 was issued by itself and is not trusted here.</source>
        <translation>%1 由其自身签发，在此不受信任。</translation>
    </message>
    <message>
        <source>%1 was not touched.</source>
        <translation>%1 未被改动。</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, is left: delete it.</source>
        <translation>%1 已被替换，但其第二份副本 %2 仍然留下：请删除它。</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, may be in the device still: delete it.</source>
        <translation>%1 已被替换，但其第二份副本 %2 可能仍在设备中：请删除它。</translation>
    </message>
    <message>
        <source>%1, so the member &quot;%2&quot; does not exist.</source>
        <translation>%1，因此成员“%2”不存在。</translation>
    </message>
    <message>
        <source>%1: %2 got an answer that does not match the question.</source>
        <translation>%1：%2 得到的应答与请求不符。</translation>
    </message>
    <message>
        <source>%1: %2 got no answer within %3.</source>
        <translation>%1：%2 在 %3 内没有得到应答。</translation>
    </message>
    <message>
        <source>%1: %2 got no answer: %3.</source>
        <translation>%1：%2 没有得到应答：%3。</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>%1: a command of it cannot be cancelled.</source>
        <translation>%1：其命令无法取消。</translation>
    </message>
    <message>
        <source>%1: it shows its status and cannot be operated.</source>
        <translation>%1：它只显示状态，不能操作。</translation>
    </message>
    <message>
        <source>%1: its control model knows no selection.</source>
        <translation>%1：其控制模型不支持选择。</translation>
    </message>
    <message>
        <source>%1: the command ended without success: %2.</source>
        <translation>%1：命令未成功结束：%2。</translation>
    </message>
    <message>
        <source>%1: the command ended without success: the device does not say why.</source>
        <translation>%1：命令未成功结束：设备没有说明原因。</translation>
    </message>
    <message>
        <source>%1: the device accepted the command late.</source>
        <translation>%1：设备较迟才接受命令。</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but has not told within %2 how it ended.</source>
        <translation>%1：设备已接受命令，但在 %2 内没有告知命令如何结束。</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but the association ended before the command: %2.</source>
        <translation>%1：设备已接受命令，但关联先于命令结束：%2。</translation>
    </message>
    <message>
        <source>%1: the device refuses %2: %3.</source>
        <translation>%1：设备拒绝 %2：%3。</translation>
    </message>
    <message>
        <source>%1: the file ended after %2 of %3 octets.</source>
        <translation>%1：文件在 %2/%3 个八位位组后结束。</translation>
    </message>
    <message>
        <source>A UTC time has not 8 octets.</source>
        <translation>UTC 时间不是 8 个八位位组。</translation>
    </message>
    <message>
        <source>A binary time has neither 4 nor 6 octets.</source>
        <translation>二进制时间既不是 4 个也不是 6 个八位位组。</translation>
    </message>
    <message>
        <source>A bit string does not say how many of its bits count.</source>
        <translation>位串没有说明有多少位有效。</translation>
    </message>
    <message>
        <source>A boolean has not one octet.</source>
        <translation>布尔值不是 1 个八位位组。</translation>
    </message>
    <message>
        <source>A certificate in the file &quot;%1&quot; cannot be read.</source>
        <translation>文件“%1”中的一个证书无法读取。</translation>
    </message>
    <message>
        <source>A character is not allowed here, or does not belong to the file&apos;s encoding.</source>
        <translation>此处不允许某个字符，或该字符不属于文件的编码。</translation>
    </message>
    <message>
        <source>A command is a structure, not %1.</source>
        <translation>命令应为结构，而不是 %1。</translation>
    </message>
    <message>
        <source>A constraint of the object does not allow this.</source>
        <translation>对象的约束不允许此操作。</translation>
    </message>
    <message>
        <source>A data unit of transport class 0 has a header of another length than 3.</source>
        <translation>传输类 0 的数据单元的首部长度不是 3。</translation>
    </message>
    <message>
        <source>A file of this name exists already.</source>
        <translation>同名文件已存在。</translation>
    </message>
    <message>
        <source>A floating-point number has neither 32 nor 64 bits.</source>
        <translation>浮点数既不是 32 位也不是 64 位。</translation>
    </message>
    <message>
        <source>A number of an object identifier is too large.</source>
        <translation>对象标识符中的一个数太大。</translation>
    </message>
    <message>
        <source>A parameter of a transport unit is longer than the unit&apos;s header.</source>
        <translation>传输单元的一个参数比单元的首部还长。</translation>
    </message>
    <message>
        <source>A presentation unit has no parameters of normal mode.</source>
        <translation>表示单元没有正常模式的参数。</translation>
    </message>
    <message>
        <source>A presentation unit has no user data.</source>
        <translation>表示单元没有用户数据。</translation>
    </message>
    <message>
        <source>A presentation unit has too many values.</source>
        <translation>表示单元的值太多。</translation>
    </message>
    <message>
        <source>A presentation value belongs to a context that was not agreed.</source>
        <translation>表示值属于未协商的上下文。</translation>
    </message>
    <message>
        <source>A presentation value is encoded by rules that were not agreed.</source>
        <translation>表示值的编码规则未经协商。</translation>
    </message>
    <message>
        <source>A presentation value is in a form that is not supported.</source>
        <translation>表示值的形式不受支持。</translation>
    </message>
    <message>
        <source>A primitive element has no definite length.</source>
        <translation>基本元素没有确定的长度。</translation>
    </message>
    <message>
        <source>A primitive element stands where a group belongs.</source>
        <translation>应为组的位置是一个基本元素。</translation>
    </message>
    <message>
        <source>A session parameter group holds itself.</source>
        <translation>会话参数组包含其自身。</translation>
    </message>
    <message>
        <source>A session parameter is longer than the unit around it.</source>
        <translation>会话参数比其所在的单元还长。</translation>
    </message>
    <message>
        <source>A session unit ends within a header.</source>
        <translation>会话单元在首部内结束。</translation>
    </message>
    <message>
        <source>A session unit ends within a length.</source>
        <translation>会话单元在长度字段内结束。</translation>
    </message>
    <message>
        <source>A session unit has the unknown code %1.</source>
        <translation>会话单元的代码 %1 未知。</translation>
    </message>
    <message>
        <source>A session unit is followed by octets that belong to nothing.</source>
        <translation>会话单元之后有不属于任何内容的八位位组。</translation>
    </message>
    <message>
        <source>A setting group control stands in &quot;%1&quot; instead of the LLN0.</source>
        <translation>定值组控制位于“%1”中，而不在 LLN0 中。</translation>
    </message>
    <message>
        <source>A tag number is too large.</source>
        <translation>标记号太大。</translation>
    </message>
    <message>
        <source>A token unit is not followed by a data transfer.</source>
        <translation>令牌单元之后没有数据传送单元。</translation>
    </message>
    <message>
        <source>A transport packet says that it is %1 octets long, which leaves no room for its content.</source>
        <translation>传输分组称其长度为 %1 个八位位组，没有内容的空间。</translation>
    </message>
    <message>
        <source>A transport unit has the unknown code %1.</source>
        <translation>传输单元的代码 %1 未知。</translation>
    </message>
    <message>
        <source>A transport unit is followed by octets that belong to nothing.</source>
        <translation>传输单元之后有不属于任何内容的八位位组。</translation>
    </message>
    <message>
        <source>A transport unit needs at least two octets.</source>
        <translation>传输单元至少需要两个八位位组。</translation>
    </message>
    <message>
        <source>A unit of association control has an unknown tag.</source>
        <translation>关联控制的单元带有未知标记。</translation>
    </message>
    <message>
        <source>Access to the file is denied.</source>
        <translation>拒绝访问该文件。</translation>
    </message>
    <message>
        <source>Access to the object is denied.</source>
        <translation>拒绝访问该对象。</translation>
    </message>
    <message>
        <source>Address already in use</source>
        <translation>地址已被占用</translation>
    </message>
    <message>
        <source>An association request has no application context name.</source>
        <translation>关联请求没有应用上下文名称。</translation>
    </message>
    <message>
        <source>An association response has no result.</source>
        <translation>关联响应没有结果。</translation>
    </message>
    <message>
        <source>An element is longer than the group that it is in.</source>
        <translation>元素比其所在的组还长。</translation>
    </message>
    <message>
        <source>An element is longer than the message.</source>
        <translation>元素比报文还长。</translation>
    </message>
    <message>
        <source>An element stands where a service belongs.</source>
        <translation>应为服务的位置是一个元素。</translation>
    </message>
    <message>
        <source>An element that is empty by definition has content.</source>
        <translation>按定义为空的元素含有内容。</translation>
    </message>
    <message>
        <source>An element that is no type stands where a type belongs.</source>
        <translation>应为类型的位置是一个非类型元素。</translation>
    </message>
    <message>
        <source>An element that is no value stands where a value belongs.</source>
        <translation>应为值的位置是一个非值元素。</translation>
    </message>
    <message>
        <source>An incomplete %1 is left in the device.</source>
        <translation>设备中留下了不完整的 %1。</translation>
    </message>
    <message>
        <source>An integer has no octet or more than 8.</source>
        <translation>整数没有八位位组，或多于 8 个。</translation>
    </message>
    <message>
        <source>An integer is out of its range.</source>
        <translation>整数超出其范围。</translation>
    </message>
    <message>
        <source>An internal error ended the association.</source>
        <translation>内部错误使关联结束。</translation>
    </message>
    <message>
        <source>An internal error ended the association: %1.</source>
        <translation>内部错误使关联结束：%1。</translation>
    </message>
    <message>
        <source>An issuer&apos;s certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>文件“%1”中签发者的证书无法使用（%2）。</translation>
    </message>
    <message>
        <source>An object identifier ends within a number.</source>
        <translation>对象标识符在一个数中间结束。</translation>
    </message>
    <message>
        <source>An object of this name exists already.</source>
        <translation>同名对象已存在。</translation>
    </message>
    <message>
        <source>An unsigned integer has no octet or more than 64 bits.</source>
        <translation>无符号整数没有八位位组，或多于 64 位。</translation>
    </message>
    <message>
        <source>An unsigned integer is out of its range.</source>
        <translation>无符号整数超出其范围。</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>管道已断开</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>无法分配内存</translation>
    </message>
    <message>
        <source>Cannot assign requested address</source>
        <translation>无法使用所请求的地址</translation>
    </message>
    <message>
        <source>Cannot listen on %1 port %2: %3.</source>
        <translation>无法在 %1 端口 %2 上监听：%3。</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>连接被拒绝</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>连接被对方复位</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>连接超时</translation>
    </message>
    <message>
        <source>Each variable needs one value to write.</source>
        <translation>每个变量需要一个要写入的值。</translation>
    </message>
    <message>
        <source>Elements are nested deeper than %1 levels.</source>
        <translation>元素嵌套超过 %1 层。</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>输入/输出错误</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>是一个目录</translation>
    </message>
    <message>
        <source>It is not a logical node.</source>
        <translation>它不是逻辑节点。</translation>
    </message>
    <message>
        <source>It is not known whether %1 is in the device.</source>
        <translation>不知道 %1 是否在设备中。</translation>
    </message>
    <message>
        <source>It is not known whether an incomplete %1 is left in the device.</source>
        <translation>不知道设备中是否留下了不完整的 %1。</translation>
    </message>
    <message>
        <source>It is not known whether the device has a part of the file: look at %1.</source>
        <translation>不知道设备中是否有该文件的一部分：请查看 %1。</translation>
    </message>
    <message>
        <source>It is not known whether the file has its name: look at %1 and %2.</source>
        <translation>不知道文件是否已有其名称：请查看 %1 和 %2。</translation>
    </message>
    <message>
        <source>It is not known whether the file was replaced: look at %1.</source>
        <translation>不知道文件是否已被替换：请查看 %1。</translation>
    </message>
    <message>
        <source>It is not known whether the old %1 is still there.</source>
        <translation>不知道旧的 %1 是否还在。</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still there: look at %1.</source>
        <translation>不知道旧文件是否还在：请查看 %1。</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still whole: look at %1.</source>
        <translation>不知道旧文件是否仍然完整：请查看 %1。</translation>
    </message>
    <message>
        <source>It is not known whether there is an old %1.</source>
        <translation>不知道是否有旧的 %1。</translation>
    </message>
    <message>
        <source>It was not sent.</source>
        <translation>它没有被发送。</translation>
    </message>
    <message>
        <source>Modifiers of a request are not supported.</source>
        <translation>不支持请求的修饰项。</translation>
    </message>
    <message>
        <source>More than %1 name spaces are declared.</source>
        <translation>声明的名称空间多于 %1 个。</translation>
    </message>
    <message>
        <source>Neither an authority nor a fingerprint says which peers are trusted.</source>
        <translation>既没有证书机构也没有指纹说明信任哪些对方。</translation>
    </message>
    <message>
        <source>Network is down</source>
        <translation>网络已停用</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>网络不可达</translation>
    </message>
    <message>
        <source>No connection to %1 port %2: %3.</source>
        <translation>与 %1 端口 %2 没有连接：%3。</translation>
    </message>
    <message>
        <source>No file is given for %1.</source>
        <translation>没有为 %1 指定文件。</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>没有到主机的路由</translation>
    </message>
    <message>
        <source>No session entity is attached to the transport selector.</source>
        <translation>传输选择符上没有会话实体。</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>设备上没有剩余空间</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>没有这样的文件或目录</translation>
    </message>
    <message>
        <source>Nobody wants the association any more.</source>
        <translation>已没有人需要此关联。</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>不是目录</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s presentation selector.</source>
        <translation>对方的表示选择符上没有任何实体。</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s session selector.</source>
        <translation>对方的会话选择符上没有任何实体。</translation>
    </message>
    <message>
        <source>Nothing was changed on the device.</source>
        <translation>设备上没有任何更改。</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>操作已取消</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>不允许此操作</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>权限不足</translation>
    </message>
    <message>
        <source>Presentation user data is simply encoded, which is not supported.</source>
        <translation>表示用户数据采用简单编码，不受支持。</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>只读文件系统</translation>
    </message>
    <message>
        <source>Reading the file was cancelled.</source>
        <translation>文件的读取已取消。</translation>
    </message>
    <message>
        <source>Reading the file was stopped.</source>
        <translation>文件的读取已停止。</translation>
    </message>
    <message>
        <source>Revocation lists are of no use without the authorities that issued them.</source>
        <translation>没有签发吊销列表的机构，吊销列表就没有用处。</translation>
    </message>
    <message>
        <source>Setting groups are counted from 1; 0 cannot become the active group.</source>
        <translation>定值组从 1 开始计数；0 不能成为激活组。</translation>
    </message>
    <message>
        <source>Software caused connection abort</source>
        <translation>软件导致连接中止</translation>
    </message>
    <message>
        <source>Something stands behind the end of %1.</source>
        <translation>%1 结束之后还有内容。</translation>
    </message>
    <message>
        <source>TLS cannot be set up (%1).</source>
        <translation>无法建立 TLS（%1）。</translation>
    </message>
    <message>
        <source>TLS failed for an unknown reason.</source>
        <translation>TLS 因未知原因失败。</translation>
    </message>
    <message>
        <source>TLS failed: %1.</source>
        <translation>TLS 失败：%1。</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; contains itself; this element is left out.</source>
        <translation>%1“%2”包含其自身；此元素已略去。</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>%1“%2”不存在。</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; is defined again; the definition in line %3 is used.</source>
        <translation>%1“%2”被重复定义；使用第 %3 行的定义。</translation>
    </message>
    <message>
        <source>The %1 has no id and cannot be used.</source>
        <translation>%1 没有 id，无法使用。</translation>
    </message>
    <message>
        <source>The DOType has no common data class (attribute cdc).</source>
        <translation>DOType 没有公用数据类（属性 cdc）。</translation>
    </message>
    <message>
        <source>The EnumType &quot;%1&quot; does not exist.</source>
        <translation>EnumType“%1”不存在。</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has more than %2 nodes of data.</source>
        <translation>IED“%1”的数据节点多于 %2 个。</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has no access point &quot;%2&quot;.</source>
        <translation>IED“%1”没有访问点“%2”。</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; is not in this file.</source>
        <translation>IED“%1”不在此文件中。</translation>
    </message>
    <message>
        <source>The IED has no name.</source>
        <translation>IED 没有名称。</translation>
    </message>
    <message>
        <source>The LNodeType &quot;%1&quot; does not exist.</source>
        <translation>LNodeType“%1”不存在。</translation>
    </message>
    <message>
        <source>The LNodeType has no class (attribute lnClass).</source>
        <translation>LNodeType 没有类（属性 lnClass）。</translation>
    </message>
    <message>
        <source>The access point &quot;%1&quot; whose server is shared does not exist or has none.</source>
        <translation>其服务器被共享的访问点“%1”不存在或没有服务器。</translation>
    </message>
    <message>
        <source>The active setting group is %1, but there are %2; group 1 is used.</source>
        <translation>激活的定值组是 %1，但只有 %2 个；使用第 1 组。</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>地址无效。</translation>
    </message>
    <message>
        <source>The answer cannot be read: %1.</source>
        <translation>应答无法读取：%1。</translation>
    </message>
    <message>
        <source>The answer does not fit a message.</source>
        <translation>应答放不进一个报文。</translation>
    </message>
    <message>
        <source>The answer does not match the question.</source>
        <translation>应答与请求不符。</translation>
    </message>
    <message>
        <source>The association is being concluded.</source>
        <translation>关联正在终结。</translation>
    </message>
    <message>
        <source>The association was refused.</source>
        <translation>关联被拒绝。</translation>
    </message>
    <message>
        <source>The association was released.</source>
        <translation>关联已释放。</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that holds the number of elements of &quot;%2&quot; has no value; the array is empty.</source>
        <translation>含有“%2”元素个数的属性“%1”没有值；数组为空。</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that should hold the number of array elements does not exist; the array is empty.</source>
        <translation>应含有数组元素个数的属性“%1”不存在；数组为空。</translation>
    </message>
    <message>
        <source>The attribute has no basic type (attribute bType).</source>
        <translation>属性没有基本类型（属性 bType）。</translation>
    </message>
    <message>
        <source>The attribute has no functional constraint (attribute fc) and cannot be addressed.</source>
        <translation>属性没有功能约束（属性 fc），无法寻址。</translation>
    </message>
    <message>
        <source>The attribute is an enumeration without a type (attribute type).</source>
        <translation>属性是枚举，但没有类型（属性 type）。</translation>
    </message>
    <message>
        <source>The attributes of the object contradict each other.</source>
        <translation>对象的各属性相互矛盾。</translation>
    </message>
    <message>
        <source>The authority in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>文件“%1”中的证书机构无法使用（%2）。</translation>
    </message>
    <message>
        <source>The basic type is written &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>基本类型写成“%1”，而不是“%2”。</translation>
    </message>
    <message>
        <source>The block belongs to another association of this computer, %1.</source>
        <translation>控制块属于本计算机的另一个关联 %1。</translation>
    </message>
    <message>
        <source>The block belongs to the client %1.</source>
        <translation>控制块属于客户端 %1。</translation>
    </message>
    <message>
        <source>The call can no longer be cancelled.</source>
        <translation>该调用已不能取消。</translation>
    </message>
    <message>
        <source>The call cannot be cancelled.</source>
        <translation>该调用不能取消。</translation>
    </message>
    <message>
        <source>The call was cancelled.</source>
        <translation>该调用已取消。</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; in the file &quot;%2&quot;</source>
        <translation>文件“%2”中的证书“%1”</translation>
    </message>
    <message>
        <source>The certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>文件“%1”中的证书无法使用（%2）。</translation>
    </message>
    <message>
        <source>The class is &quot;%1&quot;, but the LNodeType &quot;%2&quot; is of class &quot;%3&quot;.</source>
        <translation>类是“%1”，但 LNodeType“%2”的类是“%3”。</translation>
    </message>
    <message>
        <source>The class of an LN0 is &quot;%1&quot; instead of &quot;LLN0&quot;.</source>
        <translation>LN0 的类是“%1”，而不是“LLN0”。</translation>
    </message>
    <message>
        <source>The client is gone.</source>
        <translation>客户端已离开。</translation>
    </message>
    <message>
        <source>The connection to the other application is lost.</source>
        <translation>与另一应用的连接已丢失。</translation>
    </message>
    <message>
        <source>The content type of the file is not valid.</source>
        <translation>文件的内容类型无效。</translation>
    </message>
    <message>
        <source>The control block has no name.</source>
        <translation>控制块没有名称。</translation>
    </message>
    <message>
        <source>The control model of %1 cannot be read: %2.</source>
        <translation>%1 的控制模型无法读取：%2。</translation>
    </message>
    <message>
        <source>The control model of %1 is %2, which is none.</source>
        <translation>%1 的控制模型是 %2，没有这种模型。</translation>
    </message>
    <message>
        <source>The data below this element are nested deeper than %1 levels; the element is left out.</source>
        <translation>此元素之下的数据嵌套超过 %1 层；该元素已略去。</translation>
    </message>
    <message>
        <source>The data set &quot;%1&quot; of the control block does not exist in its logical node.</source>
        <translation>控制块的数据集“%1”在其逻辑设备中不存在。</translation>
    </message>
    <message>
        <source>The data set has no members.</source>
        <translation>数据集没有成员。</translation>
    </message>
    <message>
        <source>The data set has no name.</source>
        <translation>数据集没有名称。</translation>
    </message>
    <message>
        <source>The definition of the object does not allow this.</source>
        <translation>对象的定义不允许此操作。</translation>
    </message>
    <message>
        <source>The device answered another service.</source>
        <translation>设备应答了另一个服务。</translation>
    </message>
    <message>
        <source>The device cannot carry out the service.</source>
        <translation>设备无法执行该服务。</translation>
    </message>
    <message>
        <source>The device cannot check interlocking.</source>
        <translation>设备无法检查联锁。</translation>
    </message>
    <message>
        <source>The device cannot check synchronism.</source>
        <translation>设备无法检查同期。</translation>
    </message>
    <message>
        <source>The device cannot operate at a given time.</source>
        <translation>设备无法在给定时间操作。</translation>
    </message>
    <message>
        <source>The device cannot test a command.</source>
        <translation>设备无法测试命令。</translation>
    </message>
    <message>
        <source>The device cannot transfer the domain.</source>
        <translation>设备无法传送域。</translation>
    </message>
    <message>
        <source>The device describes more than the %1 values in %2 octets that are taken; the rest is left out.</source>
        <translation>设备描述的内容多于所接受的 %1 个值（%2 个八位位组）；其余已略去。</translation>
    </message>
    <message>
        <source>The device describes the originator as %1.</source>
        <translation>设备把发起者描述为 %1。</translation>
    </message>
    <message>
        <source>The device does not accept the syntax of the file name.</source>
        <translation>设备不接受文件名的语法。</translation>
    </message>
    <message>
        <source>The device does not answer any more.</source>
        <translation>设备不再应答。</translation>
    </message>
    <message>
        <source>The device does not know the call to cancel.</source>
        <translation>设备不知道要取消的调用。</translation>
    </message>
    <message>
        <source>The device does not know the capability.</source>
        <translation>设备不知道该能力。</translation>
    </message>
    <message>
        <source>The device does not know the state machine.</source>
        <translation>设备不知道该状态机。</translation>
    </message>
    <message>
        <source>The device does not let the data set %1 be deleted.</source>
        <translation>设备不允许删除数据集 %1。</translation>
    </message>
    <message>
        <source>The device does not list its logical devices: %1.</source>
        <translation>设备没有列出其逻辑设备：%1。</translation>
    </message>
    <message>
        <source>The device does not say what belongs to the command.</source>
        <translation>设备没有说明命令由什么组成。</translation>
    </message>
    <message>
        <source>The device does not support the time resolution.</source>
        <translation>设备不支持该时间分辨率。</translation>
    </message>
    <message>
        <source>The device gave a reason for refusing a command that cannot be read: %1.</source>
        <translation>设备给出的拒绝命令的原因无法读取：%1。</translation>
    </message>
    <message>
        <source>The device gave up after its own time limit.</source>
        <translation>设备因自身的时限而放弃。</translation>
    </message>
    <message>
        <source>The device gave up because of a deadlock.</source>
        <translation>设备因死锁而放弃。</translation>
    </message>
    <message>
        <source>The device gave up the call.</source>
        <translation>设备放弃了该调用。</translation>
    </message>
    <message>
        <source>The device gives names without end.</source>
        <translation>设备给出的名称没有尽头。</translation>
    </message>
    <message>
        <source>The device has an operational problem.</source>
        <translation>设备有运行问题。</translation>
    </message>
    <message>
        <source>The device has more names than the %1 names and %2 octets that are taken; the others are left out.</source>
        <translation>设备的名称多于所接受的 %1 个（%2 个八位位组）；其余已略去。</translation>
    </message>
    <message>
        <source>The device has more than %1 logical devices; the others are left out.</source>
        <translation>设备的逻辑设备多于 %1 个；其余已略去。</translation>
    </message>
    <message>
        <source>The device has more than %1 logical nodes; the others are left out.</source>
        <translation>设备的逻辑节点多于 %1 个；其余已略去。</translation>
    </message>
    <message>
        <source>The device has neither %1 nor %2 any more.</source>
        <translation>设备中已没有 %1 和 %2。</translation>
    </message>
    <message>
        <source>The device has no free capability for this.</source>
        <translation>设备没有空闲的能力用于此操作。</translation>
    </message>
    <message>
        <source>The device has not enough computing time.</source>
        <translation>设备的计算时间不足。</translation>
    </message>
    <message>
        <source>The device has not enough memory.</source>
        <translation>设备的内存不足。</translation>
    </message>
    <message>
        <source>The device has not enough storage.</source>
        <translation>设备的存储空间不足。</translation>
    </message>
    <message>
        <source>The device has not the resources for this.</source>
        <translation>设备没有用于此操作的资源。</translation>
    </message>
    <message>
        <source>The device has something to finish first.</source>
        <translation>设备须先完成别的事情。</translation>
    </message>
    <message>
        <source>The device has stopped fetching the file after %1 of %2 octets.</source>
        <translation>设备在取走 %1/%2 个八位位组后停止取文件。</translation>
    </message>
    <message>
        <source>The device is in a state that does not allow this.</source>
        <translation>设备所处的状态不允许此操作。</translation>
    </message>
    <message>
        <source>The device lists its files without an end.</source>
        <translation>设备列出的文件没有尽头。</translation>
    </message>
    <message>
        <source>The device refuses the association.</source>
        <translation>设备拒绝关联。</translation>
    </message>
    <message>
        <source>The device refuses the file operation.</source>
        <translation>设备拒绝该文件操作。</translation>
    </message>
    <message>
        <source>The device refuses to conclude the association.</source>
        <translation>设备拒绝终结关联。</translation>
    </message>
    <message>
        <source>The device refuses without giving a reason.</source>
        <translation>设备拒绝，但没有给出原因。</translation>
    </message>
    <message>
        <source>The device rejects a cancel (%1).</source>
        <translation>设备拒绝了取消（%1）。</translation>
    </message>
    <message>
        <source>The device rejects a conclude (%1).</source>
        <translation>设备拒绝了终结（%1）。</translation>
    </message>
    <message>
        <source>The device rejects a message that it cannot read (%1).</source>
        <translation>设备拒绝了一个它无法读取的报文（%1）。</translation>
    </message>
    <message>
        <source>The device rejects a request (%1).</source>
        <translation>设备拒绝了请求（%1）。</translation>
    </message>
    <message>
        <source>The device rejects an answer (%1).</source>
        <translation>设备拒绝了应答（%1）。</translation>
    </message>
    <message>
        <source>The device rejects an error (%1).</source>
        <translation>设备拒绝了错误（%1）。</translation>
    </message>
    <message>
        <source>The device rejects an unconfirmed message (%1).</source>
        <translation>设备拒绝了无确认报文（%1）。</translation>
    </message>
    <message>
        <source>The device rejects the answer to a cancel (%1).</source>
        <translation>设备拒绝了对取消的应答（%1）。</translation>
    </message>
    <message>
        <source>The device rejects the answer to a conclude (%1).</source>
        <translation>设备拒绝了对终结的应答（%1）。</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a cancel (%1).</source>
        <translation>设备拒绝了对取消的拒绝（%1）。</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a conclude (%1).</source>
        <translation>设备拒绝了对终结的拒绝（%1）。</translation>
    </message>
    <message>
        <source>The device repeats the same page of names.</source>
        <translation>设备重复同一页名称。</translation>
    </message>
    <message>
        <source>The device reports a hardware fault.</source>
        <translation>设备报告硬件故障。</translation>
    </message>
    <message>
        <source>The device reports the unknown data access error %1.</source>
        <translation>设备报告未知的数据访问错误 %1。</translation>
    </message>
    <message>
        <source>The device says that it has the file, but it has fetched only %1 of %2 octets.</source>
        <translation>设备称已有该文件，但它只取走了 %1/%2 个八位位组。</translation>
    </message>
    <message>
        <source>The device sends empty blocks of the file without an end.</source>
        <translation>设备无休止地发送文件的空块。</translation>
    </message>
    <message>
        <source>The device took longer than %1 minutes to describe itself; what it had not told by then is left out.</source>
        <translation>设备用了 %1 分钟以上描述自身；到那时尚未告知的内容已略去。</translation>
    </message>
    <message>
        <source>The device uses another version of the protocol.</source>
        <translation>设备使用协议的另一版本。</translation>
    </message>
    <message>
        <source>The device wants %1 also as a whole number, but does not say by which scale (sVC).</source>
        <translation>设备还要求 %1 为整数，但没有说明按哪个比例（sVC）。</translation>
    </message>
    <message>
        <source>The device wants a part %1 in the command, which is not known.</source>
        <translation>设备要求命令中有未知的部分 %1。</translation>
    </message>
    <message>
        <source>The device wants an unknown part %1 of the originator.</source>
        <translation>设备要求发起者有未知的部分 %1。</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the question.</source>
        <translation>设备的应答与问题不符。</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the request.</source>
        <translation>设备的应答与请求不符。</translation>
    </message>
    <message>
        <source>The directory &quot;%1&quot; cannot be served: %2.</source>
        <translation>目录“%1”无法提供：%2。</translation>
    </message>
    <message>
        <source>The discovery was cancelled.</source>
        <translation>读取模型已取消。</translation>
    </message>
    <message>
        <source>The element %1 is missing or of an unknown kind.</source>
        <translation>元素 %1 缺失或种类未知。</translation>
    </message>
    <message>
        <source>The element %1 is missing.</source>
        <translation>元素 %1 缺失。</translation>
    </message>
    <message>
        <source>The element %1 is not where it belongs.</source>
        <translation>元素 %1 不在其应在的位置。</translation>
    </message>
    <message>
        <source>The element does not name an access point.</source>
        <translation>元素没有指明访问点。</translation>
    </message>
    <message>
        <source>The element has no name and is left out.</source>
        <translation>元素没有名称，已略去。</translation>
    </message>
    <message>
        <source>The element has no type (attribute type).</source>
        <translation>元素没有类型（属性 type）。</translation>
    </message>
    <message>
        <source>The elements are nested too deeply.</source>
        <translation>元素嵌套太深。</translation>
    </message>
    <message>
        <source>The encoding is declared as &quot;%1&quot;, but the file holds single bytes; it is read as UTF-8.</source>
        <translation>编码声明为“%1”，但文件为单字节；按 UTF-8 读取。</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;ISO-8859-1&quot;.</source>
        <translation>编码写成“%1”，而不是“ISO-8859-1”。</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;UTF-8&quot;; it is read as UTF-8.</source>
        <translation>编码写成“%1”，而不是“UTF-8”；按 UTF-8 读取。</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared.</source>
        <translation>实体“%1”没有声明。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>文件“%1”无法打开：%2。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no certificate in PEM.</source>
        <translation>文件“%1”不含 PEM 格式的证书。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no private key in PEM.</source>
        <translation>文件“%1”不含 PEM 格式的私钥。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no revocation list in PEM.</source>
        <translation>文件“%1”不含 PEM 格式的吊销列表。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; with %2 cannot be opened: %3.</source>
        <translation>含有 %2 的文件“%1”无法打开：%3。</translation>
    </message>
    <message>
        <source>The file became shorter while it was read.</source>
        <translation>文件在读取时变短了。</translation>
    </message>
    <message>
        <source>The file cannot be read to its end.</source>
        <translation>文件无法读到结尾。</translation>
    </message>
    <message>
        <source>The file declares an entity, which is not accepted.</source>
        <translation>文件声明了一个实体，不被接受。</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>The file ends before its root element is complete.</source>
        <translation>文件在根元素完整之前结束。</translation>
    </message>
    <message>
        <source>The file ends within a character.</source>
        <translation>文件在一个字符中间结束。</translation>
    </message>
    <message>
        <source>The file in the device may be incomplete: look at %1.</source>
        <translation>设备中的文件可能不完整：请查看 %1。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>文件正在使用中。</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes.</source>
        <translation>文件大于 %1 字节。</translation>
    </message>
    <message>
        <source>The file is not well-formed XML: %1.</source>
        <translation>文件不是格式良好的 XML：%1。</translation>
    </message>
    <message>
        <source>The file name is ambiguous.</source>
        <translation>文件名有歧义。</translation>
    </message>
    <message>
        <source>The file refers to an external document type, which is not accepted.</source>
        <translation>文件引用外部文档类型，不被接受。</translation>
    </message>
    <message>
        <source>The file&apos;s encoding is not the one declared, or it is not known.</source>
        <translation>文件的编码不是所声明的编码，或者是未知编码。</translation>
    </message>
    <message>
        <source>The header of a transport unit is longer than the packet.</source>
        <translation>传输单元的首部比分组还长。</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>导入已取消。</translation>
    </message>
    <message>
        <source>The instance has no name and is left out.</source>
        <translation>实例没有名称，已略去。</translation>
    </message>
    <message>
        <source>The instance is given twice; the first is used.</source>
        <translation>实例给出了两次；使用第一个。</translation>
    </message>
    <message>
        <source>The issuer&apos;s certificate &quot;%1&quot;</source>
        <translation>签发者的证书“%1”</translation>
    </message>
    <message>
        <source>The length of an element is too large.</source>
        <translation>元素的长度太大。</translation>
    </message>
    <message>
        <source>The list cannot be continued after the given name.</source>
        <translation>列表无法在给定名称之后继续。</translation>
    </message>
    <message>
        <source>The literal &quot;%1&quot; begins or ends with a blank.</source>
        <translation>文字“%1”以空格开头或结尾。</translation>
    </message>
    <message>
        <source>The logical device has no LN0.</source>
        <translation>逻辑设备没有 LN0。</translation>
    </message>
    <message>
        <source>The logical device has no instance name (attribute inst).</source>
        <translation>逻辑设备没有实例名（属性 inst）。</translation>
    </message>
    <message>
        <source>The logical node has another setting group control; the first is used.</source>
        <translation>逻辑节点有另一个定值组控制；使用第一个。</translation>
    </message>
    <message>
        <source>The logical node has no class (attribute lnClass).</source>
        <translation>逻辑节点没有类（属性 lnClass）。</translation>
    </message>
    <message>
        <source>The logical node has no instance number (attribute inst).</source>
        <translation>逻辑节点没有实例号（属性 inst）。</translation>
    </message>
    <message>
        <source>The logical node has no type (attribute lnType).</source>
        <translation>逻辑节点没有类型（属性 lnType）。</translation>
    </message>
    <message>
        <source>The lowest version of TLS that is allowed is above the highest one.</source>
        <translation>允许的最低 TLS 版本高于最高版本。</translation>
    </message>
    <message>
        <source>The message ends within an element.</source>
        <translation>报文在一个元素中间结束。</translation>
    </message>
    <message>
        <source>The message holds more elements than allowed.</source>
        <translation>报文的元素多于允许的数量。</translation>
    </message>
    <message>
        <source>The message is empty.</source>
        <translation>报文为空。</translation>
    </message>
    <message>
        <source>The message is longer than allowed.</source>
        <translation>报文超过允许的长度。</translation>
    </message>
    <message>
        <source>The message is no MMS PDU.</source>
        <translation>报文不是 MMS PDU。</translation>
    </message>
    <message>
        <source>The message size is too small for the device.</source>
        <translation>报文长度对设备来说太小。</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot be resolved: %2.</source>
        <translation>名称“%1”无法解析：%2。</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; was not resolved in time.</source>
        <translation>名称“%1”没有及时得到解析。</translation>
    </message>
    <message>
        <source>The name of the other application is not valid.</source>
        <translation>另一应用的名称无效。</translation>
    </message>
    <message>
        <source>The name space prefix &quot;%1&quot; is not declared; its elements are skipped.</source>
        <translation>名称空间前缀“%1”没有声明；其元素被跳过。</translation>
    </message>
    <message>
        <source>The names</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>The names of %1</source>
        <translation>%1 的名称</translation>
    </message>
    <message>
        <source>The names of the data</source>
        <translation>数据的名称</translation>
    </message>
    <message>
        <source>The names of the data of %1</source>
        <translation>%1 的数据的名称</translation>
    </message>
    <message>
        <source>The names of the data sets</source>
        <translation>数据集的名称</translation>
    </message>
    <message>
        <source>The names of the data sets of %1</source>
        <translation>%1 的数据集的名称</translation>
    </message>
    <message>
        <source>The nesting level does not suit the device.</source>
        <translation>嵌套层数不适合设备。</translation>
    </message>
    <message>
        <source>The network connection broke during the TLS handshake: %1.</source>
        <translation>网络连接在 TLS 握手期间中断：%1。</translation>
    </message>
    <message>
        <source>The network connection broke: %1.</source>
        <translation>网络连接中断：%1。</translation>
    </message>
    <message>
        <source>The new file is in the device as %1.</source>
        <translation>新文件在设备中名为 %1。</translation>
    </message>
    <message>
        <source>The number of instances is %1; %2 is used.</source>
        <translation>实例个数为 %1；使用 %2。</translation>
    </message>
    <message>
        <source>The number of outstanding calls does not suit the device.</source>
        <translation>未完成调用的个数不适合设备。</translation>
    </message>
    <message>
        <source>The number of outstanding calls of the device does not suit it.</source>
        <translation>设备的未完成调用个数不适合设备自身。</translation>
    </message>
    <message>
        <source>The number of setting groups is 0; 1 is used.</source>
        <translation>定值组个数为 0；使用 1。</translation>
    </message>
    <message>
        <source>The object cannot be accessed in this way.</source>
        <translation>不能以这种方式访问该对象。</translation>
    </message>
    <message>
        <source>The object cannot be accessed.</source>
        <translation>该对象无法访问。</translation>
    </message>
    <message>
        <source>The object does not exist.</source>
        <translation>该对象不存在。</translation>
    </message>
    <message>
        <source>The object is in a state that does not allow this.</source>
        <translation>该对象所处的状态不允许此操作。</translation>
    </message>
    <message>
        <source>The object is no longer valid.</source>
        <translation>该对象已不再有效。</translation>
    </message>
    <message>
        <source>The object is not available at the moment.</source>
        <translation>该对象目前不可用。</translation>
    </message>
    <message>
        <source>The object is not defined.</source>
        <translation>该对象没有定义。</translation>
    </message>
    <message>
        <source>The old file had to be deleted before and is lost.</source>
        <translation>此前必须先删除旧文件，旧文件已丢失。</translation>
    </message>
    <message>
        <source>The old file is still there.</source>
        <translation>旧文件还在。</translation>
    </message>
    <message>
        <source>The old file was deleted before.</source>
        <translation>旧文件已先被删除。</translation>
    </message>
    <message>
        <source>The options offered do not suit the device.</source>
        <translation>所提供的选项不适合设备。</translation>
    </message>
    <message>
        <source>The ordinal %1 is given twice; the first literal is used.</source>
        <translation>序数 %1 给出了两次；使用第一个文字。</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are allowed.</source>
        <translation>发起者标识有 %1 个八位位组；最多允许 %2 个。</translation>
    </message>
    <message>
        <source>The other application cannot be reached.</source>
        <translation>无法到达另一应用。</translation>
    </message>
    <message>
        <source>The other application does not support the context.</source>
        <translation>另一应用不支持该上下文。</translation>
    </message>
    <message>
        <source>The part %1 of the command cannot be %2.</source>
        <translation>命令的 %1 部分操作失败（%2）。</translation>
    </message>
    <message>
        <source>The peer %1 has %2 connections that are no associations yet, which is the limit.</source>
        <translation>对方 %1 有 %2 个尚未成为关联的连接，已达上限。</translation>
    </message>
    <message>
        <source>The peer aborted the association.</source>
        <translation>对方中止了关联。</translation>
    </message>
    <message>
        <source>The peer aborted the session.</source>
        <translation>对方中止了会话。</translation>
    </message>
    <message>
        <source>The peer accepted the session with an unsuitable version.</source>
        <translation>对方以不合适的版本接受了会话。</translation>
    </message>
    <message>
        <source>The peer and this side have no cipher suite in common, or no certificate fits it.</source>
        <translation>对方与本端没有共同的加密套件，或没有适合的证书。</translation>
    </message>
    <message>
        <source>The peer and this side have no version of TLS in common.</source>
        <translation>对方与本端没有共同的 TLS 版本。</translation>
    </message>
    <message>
        <source>The peer answered the initiate request with something else.</source>
        <translation>对方对 initiate 请求作了别的应答。</translation>
    </message>
    <message>
        <source>The peer answers for too many presentation contexts.</source>
        <translation>对方应答的表示上下文太多。</translation>
    </message>
    <message>
        <source>The peer asked for a transport class other than 0.</source>
        <translation>对方请求了 0 以外的传输类。</translation>
    </message>
    <message>
        <source>The peer asked for an application context other than MMS.</source>
        <translation>对方请求了 MMS 以外的应用上下文。</translation>
    </message>
    <message>
        <source>The peer asked for an unknown presentation selector.</source>
        <translation>对方请求了未知的表示选择符。</translation>
    </message>
    <message>
        <source>The peer asked for an unknown transport selector.</source>
        <translation>对方请求了未知的传输选择符。</translation>
    </message>
    <message>
        <source>The peer asks for a certificate, and this side has none that it trusts.</source>
        <translation>对方要求证书，而本端没有它所信任的证书。</translation>
    </message>
    <message>
        <source>The peer asks for a presentation mode other than normal mode.</source>
        <translation>对方请求了正常模式以外的表示模式。</translation>
    </message>
    <message>
        <source>The peer asks for too many presentation contexts.</source>
        <translation>对方请求的表示上下文太多。</translation>
    </message>
    <message>
        <source>The peer cannot read the presentation user data.</source>
        <translation>对方无法读取表示用户数据。</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake.</source>
        <translation>对方没有进行 TLS 握手，而是关闭了网络连接。</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake; it may not speak TLS on this port.</source>
        <translation>对方没有进行 TLS 握手，而是关闭了网络连接；它在此端口上可能不使用 TLS。</translation>
    </message>
    <message>
        <source>The peer closed the network connection.</source>
        <translation>对方关闭了网络连接。</translation>
    </message>
    <message>
        <source>The peer confirmed a transport class other than 0.</source>
        <translation>对方确认了 0 以外的传输类。</translation>
    </message>
    <message>
        <source>The peer cuts session data into segments, which was not agreed.</source>
        <translation>对方把会话数据分段，这未经协商。</translation>
    </message>
    <message>
        <source>The peer did not accept the presentation contexts of ACSE and MMS.</source>
        <translation>对方没有接受 ACSE 和 MMS 的表示上下文。</translation>
    </message>
    <message>
        <source>The peer did not answer in time.</source>
        <translation>对方没有及时应答。</translation>
    </message>
    <message>
        <source>The peer did not answer the release in time.</source>
        <translation>对方没有及时应答释放请求。</translation>
    </message>
    <message>
        <source>The peer did not ask for the presentation contexts of ACSE and MMS.</source>
        <translation>对方没有请求 ACSE 和 MMS 的表示上下文。</translation>
    </message>
    <message>
        <source>The peer did not complete the TLS handshake in time.</source>
        <translation>对方没有及时完成 TLS 握手。</translation>
    </message>
    <message>
        <source>The peer did not complete the association in time.</source>
        <translation>对方没有及时完成关联。</translation>
    </message>
    <message>
        <source>The peer does not conclude the association: %1.</source>
        <translation>对方不终结关联：%1。</translation>
    </message>
    <message>
        <source>The peer does not know the presentation selector.</source>
        <translation>对方不知道该表示选择符。</translation>
    </message>
    <message>
        <source>The peer does not know the session selector.</source>
        <translation>对方不知道该会话选择符。</translation>
    </message>
    <message>
        <source>The peer does not know the transport selector.</source>
        <translation>对方不知道该传输选择符。</translation>
    </message>
    <message>
        <source>The peer does not read what it is sent.</source>
        <translation>对方不读取发送给它的内容。</translation>
    </message>
    <message>
        <source>The peer does not speak ISO transport over TCP: a packet begins with %1 instead of 3.</source>
        <translation>对方不使用 TCP 上的 ISO 传输：分组以 %1 而不是 3 开头。</translation>
    </message>
    <message>
        <source>The peer does not speak TLS, which is required here.</source>
        <translation>对方不使用 TLS，而此处要求 TLS。</translation>
    </message>
    <message>
        <source>The peer does not speak TLS.</source>
        <translation>对方不使用 TLS。</translation>
    </message>
    <message>
        <source>The peer does not support the default context.</source>
        <translation>对方不支持默认上下文。</translation>
    </message>
    <message>
        <source>The peer does not support the proposed version of the session protocol.</source>
        <translation>对方不支持所建议的会话协议版本。</translation>
    </message>
    <message>
        <source>The peer does not support the version of the presentation protocol.</source>
        <translation>对方不支持该表示协议版本。</translation>
    </message>
    <message>
        <source>The peer ended the transport connection normally.</source>
        <translation>对方正常结束了传输连接。</translation>
    </message>
    <message>
        <source>The peer ended the transport connection with reason %1.</source>
        <translation>对方结束了传输连接，原因 %1。</translation>
    </message>
    <message>
        <source>The peer ended the transport connection without a reason.</source>
        <translation>对方结束了传输连接，没有给出原因。</translation>
    </message>
    <message>
        <source>The peer has shown no certificate.</source>
        <translation>对方没有出示证书。</translation>
    </message>
    <message>
        <source>The peer knows the certificate of this side and denies it access.</source>
        <translation>对方认识本端的证书，但拒绝其访问。</translation>
    </message>
    <message>
        <source>The peer refuses a parameter code of the transport unit.</source>
        <translation>对方拒绝传输单元的一个参数代码。</translation>
    </message>
    <message>
        <source>The peer refuses a parameter value of the transport unit.</source>
        <translation>对方拒绝传输单元的一个参数值。</translation>
    </message>
    <message>
        <source>The peer refuses a transport unit without a reason.</source>
        <translation>对方拒绝一个传输单元，没有给出原因。</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being.</source>
        <translation>对方暂时拒绝关联。</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being: %1.</source>
        <translation>对方暂时拒绝关联：%1。</translation>
    </message>
    <message>
        <source>The peer refuses the association.</source>
        <translation>对方拒绝关联。</translation>
    </message>
    <message>
        <source>The peer refuses the association: %1.</source>
        <translation>对方拒绝关联：%1。</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it does not trust its issuer.</source>
        <translation>对方拒绝本端的证书，因为它不信任其签发者。</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has been revoked.</source>
        <translation>对方拒绝本端的证书，因为该证书已被吊销。</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has expired or is not valid yet.</source>
        <translation>对方拒绝本端的证书，因为该证书已过期或尚未生效。</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it is not of a kind that it takes.</source>
        <translation>对方拒绝本端的证书，因为它不接受这种证书。</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side.</source>
        <translation>对方拒绝本端的证书。</translation>
    </message>
    <message>
        <source>The peer refuses the handshake because a signature of this side does not fit.</source>
        <translation>对方拒绝握手，因为本端的一个签名不符。</translation>
    </message>
    <message>
        <source>The peer refuses the initiate request.</source>
        <translation>对方拒绝 initiate 请求。</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection with reason %1.</source>
        <translation>对方拒绝表示连接，原因 %1。</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection.</source>
        <translation>对方拒绝表示连接。</translation>
    </message>
    <message>
        <source>The peer refuses the request on this network connection.</source>
        <translation>对方拒绝此网络连接上的请求。</translation>
    </message>
    <message>
        <source>The peer refuses the session because it is busy.</source>
        <translation>对方正忙，拒绝会话。</translation>
    </message>
    <message>
        <source>The peer refuses the session with reason %1.</source>
        <translation>对方拒绝会话，原因 %1。</translation>
    </message>
    <message>
        <source>The peer refuses the session without a reason.</source>
        <translation>对方拒绝会话，没有给出原因。</translation>
    </message>
    <message>
        <source>The peer refuses the session.</source>
        <translation>对方拒绝会话。</translation>
    </message>
    <message>
        <source>The peer refuses the type of the transport unit.</source>
        <translation>对方拒绝传输单元的类型。</translation>
    </message>
    <message>
        <source>The peer refuses to end the session.</source>
        <translation>对方拒绝结束会话。</translation>
    </message>
    <message>
        <source>The peer reports an error in the transport protocol.</source>
        <translation>对方报告传输协议错误。</translation>
    </message>
    <message>
        <source>The peer reports an invalid header or parameter length.</source>
        <translation>对方报告首部或参数的长度无效。</translation>
    </message>
    <message>
        <source>The peer said nothing for %1 ms.</source>
        <translation>对方已有 %1 ms 没有发送任何内容。</translation>
    </message>
    <message>
        <source>The peer saw a duplicate transport reference.</source>
        <translation>对方发现传输引用重复。</translation>
    </message>
    <message>
        <source>The peer saw mismatched transport references.</source>
        <translation>对方发现传输引用不匹配。</translation>
    </message>
    <message>
        <source>The peer sent a message of more than %1 octets.</source>
        <translation>对方发送的报文多于 %1 个八位位组。</translation>
    </message>
    <message>
        <source>The peer sent a transport unit that does not belong here.</source>
        <translation>对方发送了不应在此处出现的传输单元。</translation>
    </message>
    <message>
        <source>The peer sent a unit of association control that does not belong here.</source>
        <translation>对方发送了不应在此处出现的关联控制单元。</translation>
    </message>
    <message>
        <source>The peer sent a wrong password.</source>
        <translation>对方发送了错误的口令。</translation>
    </message>
    <message>
        <source>The peer sent no password.</source>
        <translation>对方没有发送口令。</translation>
    </message>
    <message>
        <source>The peer sent the session unit &quot;%1&quot;, which does not belong here.</source>
        <translation>对方发送了不应在此处出现的会话单元“%1”。</translation>
    </message>
    <message>
        <source>The peer speaks TLS, which is not configured here.</source>
        <translation>对方使用 TLS，而此处没有配置 TLS。</translation>
    </message>
    <message>
        <source>The peer&apos;s PDU size of %1 octets is too small.</source>
        <translation>对方的 PDU 长度 %1 个八位位组太小。</translation>
    </message>
    <message>
        <source>The peer&apos;s association control aborted the association.</source>
        <translation>对方的关联控制中止了关联。</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot;</source>
        <translation>对方的证书“%1”</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot; is not one of those that are pinned; its fingerprint is %2.</source>
        <translation>对方的证书“%1”不在固定的证书之列；其指纹为 %2。</translation>
    </message>
    <message>
        <source>The peer&apos;s initiate answer cannot be read: %1.</source>
        <translation>对方的 initiate 应答无法读取：%1。</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted without a reason.</source>
        <translation>对方的表示层中止，没有给出原因。</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted.</source>
        <translation>对方的表示层中止。</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a parameter and aborted.</source>
        <translation>对方的表示层因意外的参数而中止。</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a session service and aborted.</source>
        <translation>对方的表示层因意外的会话服务而中止。</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a unit and aborted.</source>
        <translation>对方的表示层因意外的单元而中止。</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a parameter and aborted.</source>
        <translation>对方的表示层因不认识的参数而中止。</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a unit and aborted.</source>
        <translation>对方的表示层因不认识的单元而中止。</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer found an invalid parameter value and aborted.</source>
        <translation>对方的表示层因无效的参数值而中止。</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer has reached a limit of its own.</source>
        <translation>对方的表示层已达到自身的限制。</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer is congested.</source>
        <translation>对方的表示层拥塞。</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer refuses the connection without a reason.</source>
        <translation>对方的表示层拒绝连接，没有给出原因。</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer aborted the session.</source>
        <translation>对方的会话层中止了会话。</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer is congested.</source>
        <translation>对方的会话层拥塞。</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session because of a restriction of its own.</source>
        <translation>对方的会话层因自身的限制而拒绝会话。</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session.</source>
        <translation>对方的会话层拒绝会话。</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer reports an error in the protocol and aborted the session.</source>
        <translation>对方的会话层报告协议错误，并中止了会话。</translation>
    </message>
    <message>
        <source>The peer&apos;s session request cannot be accepted.</source>
        <translation>对方的会话请求无法接受。</translation>
    </message>
    <message>
        <source>The peer&apos;s transport layer is congested.</source>
        <translation>对方的传输层拥塞。</translation>
    </message>
    <message>
        <source>The peer&apos;s transport references have overflowed.</source>
        <translation>对方的传输引用已溢出。</translation>
    </message>
    <message>
        <source>The peer&apos;s transport selector is congested.</source>
        <translation>对方的传输选择符拥塞。</translation>
    </message>
    <message>
        <source>The position is not within the file.</source>
        <translation>该位置不在文件之内。</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>文件“%1”中的私钥无法使用（%2）。</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not fit the certificate in the file &quot;%2&quot;.</source>
        <translation>文件“%1”中的私钥与文件“%2”中的证书不符。</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not open with the password that is given.</source>
        <translation>文件“%1”中的私钥无法用给出的口令打开。</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; is encrypted, and no password is given.</source>
        <translation>文件“%1”中的私钥已加密，而没有给出口令。</translation>
    </message>
    <message>
        <source>The report ends before its %1.</source>
        <translation>报告在其 %1 之前结束。</translation>
    </message>
    <message>
        <source>The report has no value for its %1: %2.</source>
        <translation>报告的 %1 没有值：%2。</translation>
    </message>
    <message>
        <source>The report says that it brings %1 members, which are %2 values, but it has %3.</source>
        <translation>报告称带来 %1 个成员，即 %2 个值，但它有 %3 个。</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is neither true nor false.</source>
        <translation>报告的 %1 既不是真也不是假。</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a binary time.</source>
        <translation>报告的 %1 不是二进制时间。</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a bit string.</source>
        <translation>报告的 %1 不是位串。</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a number of 32 bits without sign.</source>
        <translation>报告的 %1 不是 32 位无符号数。</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a string of octets.</source>
        <translation>报告的 %1 不是八位位组串。</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a text.</source>
        <translation>报告的 %1 不是文本。</translation>
    </message>
    <message>
        <source>The request is longer than the negotiated PDU size of %1 octets.</source>
        <translation>请求超过协商的 PDU 长度 %1 个八位位组。</translation>
    </message>
    <message>
        <source>The request was not sent: it waited for a place behind calls that the peer has not answered.</source>
        <translation>请求没有发送：它在对方尚未应答的调用之后等待位置。</translation>
    </message>
    <message>
        <source>The revocation list in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>文件“%1”中的吊销列表无法使用（%2）。</translation>
    </message>
    <message>
        <source>The root element is in no name space; it should be in &quot;%1&quot;.</source>
        <translation>根元素不在任何名称空间中；它应在“%1”中。</translation>
    </message>
    <message>
        <source>The root element is in the name space &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>根元素在名称空间“%1”中，而不在“%2”中。</translation>
    </message>
    <message>
        <source>The server was stopped.</source>
        <translation>服务器已停止。</translation>
    </message>
    <message>
        <source>The service was called out of sequence.</source>
        <translation>服务的调用顺序不对。</translation>
    </message>
    <message>
        <source>The services offered do not suit the device.</source>
        <translation>所提供的服务不适合设备。</translation>
    </message>
    <message>
        <source>The session parameter %1 has a wrong length.</source>
        <translation>会话参数 %1 的长度错误。</translation>
    </message>
    <message>
        <source>The size of transport units is not one of 128 to 8,192 octets.</source>
        <translation>传输单元的长度不是 128 至 8,192 个八位位组之一。</translation>
    </message>
    <message>
        <source>The state of the device does not allow this.</source>
        <translation>设备的状态不允许此操作。</translation>
    </message>
    <message>
        <source>The transport classes of both sides do not match.</source>
        <translation>双方的传输类不匹配。</translation>
    </message>
    <message>
        <source>The transport unit &quot;%1&quot; is shorter than its fixed part.</source>
        <translation>传输单元“%1”比其固定部分还短。</translation>
    </message>
    <message>
        <source>The truth value is written &quot;%1&quot; instead of &quot;true&quot; or &quot;false&quot;.</source>
        <translation>真值写成“%1”，而不是“true”或“false”。</translation>
    </message>
    <message>
        <source>The type is not supported.</source>
        <translation>该类型不受支持。</translation>
    </message>
    <message>
        <source>The type of %1 cannot be read: %2.</source>
        <translation>%1 的类型无法读取：%2。</translation>
    </message>
    <message>
        <source>The types do not agree.</source>
        <translation>类型不一致。</translation>
    </message>
    <message>
        <source>The value %1 does not fit the type %2 of the device.</source>
        <translation>值 %1 不适合设备的类型 %2。</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; differs in blanks or capitals from what is expected.</source>
        <translation>值“%1”与所期望的在空格或大小写上不同。</translation>
    </message>
    <message>
        <source>The value has not the type of the object.</source>
        <translation>值不具有对象的类型。</translation>
    </message>
    <message>
        <source>The value is empty, so the attribute has none.</source>
        <translation>值为空，因此该属性没有值。</translation>
    </message>
    <message>
        <source>The value is given by its number &quot;%1&quot; instead of its text.</source>
        <translation>值以其编号“%1”而不是其文本给出。</translation>
    </message>
    <message>
        <source>The value is not allowed for the object.</source>
        <translation>该值不允许用于此对象。</translation>
    </message>
    <message>
        <source>The value of the control block does not match its type %1.</source>
        <translation>控制块的值与其类型 %1 不符。</translation>
    </message>
    <message>
        <source>There are %1 associations already, which is the limit.</source>
        <translation>已有 %1 个关联，已达上限。</translation>
    </message>
    <message>
        <source>There is a problem with the other application.</source>
        <translation>另一应用有问题。</translation>
    </message>
    <message>
        <source>There is another IED of the name &quot;%1&quot;.</source>
        <translation>另有一个名为“%1”的 IED。</translation>
    </message>
    <message>
        <source>There is another control block &quot;%1&quot;.</source>
        <translation>另有一个控制块“%1”。</translation>
    </message>
    <message>
        <source>There is another data set &quot;%1&quot;.</source>
        <translation>另有一个数据集“%1”。</translation>
    </message>
    <message>
        <source>There is another logical device &quot;%1&quot;.</source>
        <translation>另有一个逻辑设备“%1”。</translation>
    </message>
    <message>
        <source>There is another logical node &quot;%1&quot;.</source>
        <translation>另有一个逻辑节点“%1”。</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;</source>
        <translation>没有“%1”</translation>
    </message>
    <message>
        <source>There is no association.</source>
        <translation>没有关联。</translation>
    </message>
    <message>
        <source>There is no data set %1.</source>
        <translation>没有数据集 %1。</translation>
    </message>
    <message>
        <source>There is no functional constraint (attribute fc)</source>
        <translation>没有功能约束（属性 fc）</translation>
    </message>
    <message>
        <source>There is no logical device &quot;%1&quot;</source>
        <translation>没有逻辑设备“%1”</translation>
    </message>
    <message>
        <source>There is no logical node &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>“%2”中没有逻辑节点“%1”</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>没有足够的内存读取文件。</translation>
    </message>
    <message>
        <source>There is not enough room for the file.</source>
        <translation>没有足够的空间存放文件。</translation>
    </message>
    <message>
        <source>There is nothing of functional constraint &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>“%2”中没有功能约束“%1”的内容</translation>
    </message>
    <message>
        <source>This is no report control block: it has no RptEna.</source>
        <translation>这不是报告控制块：它没有 RptEna。</translation>
    </message>
    <message>
        <source>This is no setting group control block: NumOfSG or ActSG is missing.</source>
        <translation>这不是定值组控制块：缺少 NumOfSG 或 ActSG。</translation>
    </message>
    <message>
        <source>This is not a report but %1.</source>
        <translation>这不是报告，而是 %1。</translation>
    </message>
    <message>
        <source>This is not an SCL file: its root element is &quot;%1&quot;.</source>
        <translation>这不是 SCL 文件：其根元素为“%1”。</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件太多</translation>
    </message>
    <message>
        <source>User information is in a form that is not supported.</source>
        <translation>用户信息的形式不受支持。</translation>
    </message>
    <message>
        <source>What the peer sent cannot be read: %1.</source>
        <translation>对方发送的内容无法读取：%1。</translation>
    </message>
    <message>
        <source>XML or text declaration not at start of entity</source>
        <translation>XML 或文本声明不在实体的开头</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist in type &quot;%2&quot;; what is given for it is left out.</source>
        <translation>“%1”在类型“%2”中不存在；为其给出的内容已略去。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a value, but it is a structure.</source>
        <translation>“%1”有值，但它是结构。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2</source>
        <translation>“%1”没有元素 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2; what is given for it is left out.</source>
        <translation>“%1”没有元素 %2；为其给出的内容已略去。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a directory, not a file.</source>
        <translation>“%1”是目录，不是文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an array, and no element is given</source>
        <translation>“%1”是数组，而没有给出元素</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is defined twice in its type; the first is used.</source>
        <translation>“%1”在其类型中定义了两次；使用第一个。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;true&quot; nor &quot;false&quot;; %2 is used.</source>
        <translation>“%1”既不是“true”也不是“false”；使用 %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SHA-256 fingerprint of 64 hexadecimal digits.</source>
        <translation>“%1”不是由 64 个十六进制数字组成的 SHA-256 指纹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a basic type of the standard; values are kept as texts.</source>
        <translation>“%1”不是标准的基本类型；其值作为文本保留。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a directory.</source>
        <translation>“%1”不是目录。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a functional constraint.</source>
        <translation>“%1”不是功能约束。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name that a certificate can have.</source>
        <translation>“%1”不是证书可以具有的主机名。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of array elements; the element is taken as a single one.</source>
        <translation>“%1”不是数组元素的个数；该元素按单个元素处理。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of milliseconds.</source>
        <translation>“%1”不是毫秒数。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2 &quot;%3&quot;; the attribute has no value.</source>
        <translation>“%1”不是 %2“%3”的值；该属性没有值。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; %3 is used.</source>
        <translation>“%1”不是 %2 的值；使用 %3。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; the attribute has no value.</source>
        <translation>“%1”不是 %2 的值；该属性没有值。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of its type; the attribute has no value.</source>
        <translation>“%1”不是其类型的值；该属性没有值。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address of a network interface.</source>
        <translation>“%1”不是网络接口的地址。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array</source>
        <translation>“%1”不是数组</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array; the element number is ignored.</source>
        <translation>“%1”不是数组；元素编号被忽略。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinal; the literal is left out.</source>
        <translation>“%1”不是序数；该文字已略去。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the number of an array element.</source>
        <translation>“%1”不是数组元素的编号。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names an attribute, which takes a DAI.</source>
        <translation>“%1”指明一个属性，应使用 DAI。</translation>
    </message>
    <message>
        <source>a certificate</source>
        <translation>一个证书</translation>
    </message>
    <message>
        <source>a command is being executed already</source>
        <translation>已有命令正在执行</translation>
    </message>
    <message>
        <source>a parameter is being changed</source>
        <translation>一个参数正在更改</translation>
    </message>
    <message>
        <source>a revocation list</source>
        <translation>一个吊销列表</translation>
    </message>
    <message>
        <source>additional cause %1</source>
        <translation>附加原因 %1</translation>
    </message>
    <message>
        <source>additional code %1</source>
        <translation>附加代码 %1</translation>
    </message>
    <message>
        <source>an authentication is required</source>
        <translation>需要认证</translation>
    </message>
    <message>
        <source>an authentication mechanism is required</source>
        <translation>需要认证机制</translation>
    </message>
    <message>
        <source>an authority</source>
        <translation>一个证书机构</translation>
    </message>
    <message>
        <source>an unknown date</source>
        <translation>未知日期</translation>
    </message>
    <message>
        <source>another object of the domain is being controlled</source>
        <translation>该域的另一个对象正在被控制</translation>
    </message>
    <message>
        <source>blocked because the switching authority lies elsewhere (local or remote)</source>
        <translation>因控制权在别处（就地或远方）而闭锁</translation>
    </message>
    <message>
        <source>blocked by an event of the process</source>
        <translation>被过程事件闭锁</translation>
    </message>
    <message>
        <source>blocked by interlocking</source>
        <translation>被联锁闭锁</translation>
    </message>
    <message>
        <source>blocked by synchrocheck</source>
        <translation>被同期检查闭锁</translation>
    </message>
    <message>
        <source>blocked by the data object that blocks commands</source>
        <translation>被闭锁命令的数据对象闭锁</translation>
    </message>
    <message>
        <source>blocked by the health of the logical node</source>
        <translation>因逻辑节点的健康状态而闭锁</translation>
    </message>
    <message>
        <source>blocked by the mode of the logical node</source>
        <translation>因逻辑节点的模式而闭锁</translation>
    </message>
    <message>
        <source>control error %1</source>
        <translation>控制错误 %1</translation>
    </message>
    <message>
        <source>duplicate attribute</source>
        <translation>属性重复</translation>
    </message>
    <message>
        <source>ended because the position deviates from the command</source>
        <translation>因位置与命令不一致而结束</translation>
    </message>
    <message>
        <source>ended beyond the wanted position</source>
        <translation>越过目标位置后结束</translation>
    </message>
    <message>
        <source>ended by a cancel</source>
        <translation>被取消命令结束</translation>
    </message>
    <message>
        <source>ended by a trip</source>
        <translation>被跳闸结束</translation>
    </message>
    <message>
        <source>ended by the loss of the connection with the client that issued it</source>
        <translation>因与发出命令的客户端失去连接而结束</translation>
    </message>
    <message>
        <source>error %1</source>
        <translation>错误 %1</translation>
    </message>
    <message>
        <source>it gives no reason; another client may have selected the object.</source>
        <translation>它没有给出原因；可能有另一个客户端选择了该对象。</translation>
    </message>
    <message>
        <source>it has no address</source>
        <translation>它没有地址</translation>
    </message>
    <message>
        <source>it is not in a logical device.</source>
        <translation>它不在逻辑设备中。</translation>
    </message>
    <message>
        <source>it names more than one element of one array.</source>
        <translation>它指明了同一数组的多个元素。</translation>
    </message>
    <message>
        <source>it names several parts.</source>
        <translation>它指明了多个部分。</translation>
    </message>
    <message>
        <source>junk after document element</source>
        <translation>文档元素之后有多余内容</translation>
    </message>
    <message>
        <source>locked by another client</source>
        <translation>被另一个客户端锁定</translation>
    </message>
    <message>
        <source>mismatched tag</source>
        <translation>标记不匹配</translation>
    </message>
    <message>
        <source>no cause</source>
        <translation>没有原因</translation>
    </message>
    <message>
        <source>no error</source>
        <translation>没有错误</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>没有给出原因</translation>
    </message>
    <message>
        <source>nobody answers who knows names</source>
        <translation>没有能解析名称的服务应答</translation>
    </message>
    <message>
        <source>nobody knows it</source>
        <translation>没有人知道它</translation>
    </message>
    <message>
        <source>reason %1</source>
        <translation>原因 %1</translation>
    </message>
    <message>
        <source>syntax error</source>
        <translation>语法错误</translation>
    </message>
    <message>
        <source>the application context is not supported</source>
        <translation>该应用上下文不受支持</translation>
    </message>
    <message>
        <source>the authentication failed</source>
        <translation>认证失败</translation>
    </message>
    <message>
        <source>the authentication mechanism is not recognised</source>
        <translation>认证机制未被识别</translation>
    </message>
    <message>
        <source>the called AE invocation identifier is not recognised</source>
        <translation>被叫 AE 调用标识符未被识别</translation>
    </message>
    <message>
        <source>the called AE qualifier is not recognised</source>
        <translation>被叫 AE 限定符未被识别</translation>
    </message>
    <message>
        <source>the called AP invocation identifier is not recognised</source>
        <translation>被叫 AP 调用标识符未被识别</translation>
    </message>
    <message>
        <source>the called AP title is not recognised</source>
        <translation>被叫 AP 标题未被识别</translation>
    </message>
    <message>
        <source>the calling AE invocation identifier is not recognised</source>
        <translation>主叫 AE 调用标识符未被识别</translation>
    </message>
    <message>
        <source>the calling AE qualifier is not recognised</source>
        <translation>主叫 AE 限定符未被识别</translation>
    </message>
    <message>
        <source>the calling AP invocation identifier is not recognised</source>
        <translation>主叫 AP 调用标识符未被识别</translation>
    </message>
    <message>
        <source>the calling AP title is not recognised</source>
        <translation>主叫 AP 标题未被识别</translation>
    </message>
    <message>
        <source>the client has no authority for it</source>
        <translation>客户端没有此权限</translation>
    </message>
    <message>
        <source>the functional constraint is missing.</source>
        <translation>缺少功能约束。</translation>
    </message>
    <message>
        <source>the name of the logical device is missing or wrong.</source>
        <translation>逻辑设备的名称缺失或错误。</translation>
    </message>
    <message>
        <source>the name of the logical node is missing or wrong.</source>
        <translation>逻辑节点的名称缺失或错误。</translation>
    </message>
    <message>
        <source>the object is not selected</source>
        <translation>对象没有被选择</translation>
    </message>
    <message>
        <source>the object is selected already</source>
        <translation>对象已被选择</translation>
    </message>
    <message>
        <source>the operator test failed</source>
        <translation>操作员测试失败</translation>
    </message>
    <message>
        <source>the own certificate</source>
        <translation>自己的证书</translation>
    </message>
    <message>
        <source>the parameters of the service contradict those of the selection</source>
        <translation>服务的参数与选择的参数矛盾</translation>
    </message>
    <message>
        <source>the position has been reached already</source>
        <translation>已处于目标位置</translation>
    </message>
    <message>
        <source>the position is not valid</source>
        <translation>位置无效</translation>
    </message>
    <message>
        <source>the private key</source>
        <translation>私钥</translation>
    </message>
    <message>
        <source>the selection failed</source>
        <translation>选择失败</translation>
    </message>
    <message>
        <source>the service is not supported</source>
        <translation>该服务不受支持</translation>
    </message>
    <message>
        <source>the tap changer is at the end of its range</source>
        <translation>分接开关已到其范围的尽头</translation>
    </message>
    <message>
        <source>the time for it is over</source>
        <translation>其时限已过</translation>
    </message>
    <message>
        <source>the time-out test failed</source>
        <translation>超时测试失败</translation>
    </message>
    <message>
        <source>there is no common version of association control</source>
        <translation>没有共同的关联控制版本</translation>
    </message>
    <message>
        <source>unclosed CDATA section</source>
        <translation>CDATA 段没有结束</translation>
    </message>
    <message>
        <source>unclosed token</source>
        <translation>记号没有结束</translation>
    </message>
    <message>
        <source>unknown cause</source>
        <translation>未知原因</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type.</source>
        <translation>%1：值不具有其类型的形式。</translation>
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
    <message>
        <source>&amp;Undo Remove</source>
        <translation>撤销移除(&amp;U)</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
    <message>
        <source>Remove Device</source>
        <translation>移除设备</translation>
    </message>
    <message>
        <source>Take %1 off the list?</source>
        <translation>从列表中移除 %1 吗？</translation>
    </message>
    <message>
        <source>Its connection ends, and windows that are open for it are no longer served.</source>
        <translation>其连接将结束，为其打开的窗口不再得到服务。</translation>
    </message>
    <message>
        <source>Windows that are open for it are no longer served.</source>
        <translation>为其打开的窗口不再得到服务。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>%1 was taken off the list; %2 puts it back.</source>
        <translation>%1 已从列表中移除；用 %2 可恢复。</translation>
    </message>
    <message>
        <source>%1 was taken off the list; its file stays where it is, and %2 puts it back.</source>
        <translation>%1 已从列表中移除；其文件留在原处，用 %2 可恢复。</translation>
    </message>
    <message>
        <source>&amp;Undo Remove of %1</source>
        <translation>撤销移除 %1(&amp;U)</translation>
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
    <name>ToolWindows</name>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
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
        <source>The trace stayed empty.</source>
        <translation>PDU 跟踪仍为空。</translation>
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
    <name>WaitingCalls</name>
    <message>
        <source>Waiting for %1</source>
        <translation>正在等待 %1</translation>
    </message>
    <message>
        <source>%1 has not answered yet (%2).</source>
        <translation>%1 尚未应答（%2）。</translation>
    </message>
    <message>
        <source>Cancelling. What the device was asked before may still be done.</source>
        <translation>正在取消。此前向设备提出的请求仍可能被执行。</translation>
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
