<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CameraDialog</name>
    <message>
        <source>&amp;Simulation</source>
        <translation>模拟(&amp;S)</translation>
    </message>
</context>
<context>
    <name>CameraSource</name>
    <message>
        <source>Cannot open the camera &apos;%1&apos;: %2.</source>
        <translation>无法打开相机“%1”：%2。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>There is no camera system.</source>
        <translation>没有相机系统。</translation>
    </message>
    <message>
        <source>There is no camera that can be opened.</source>
        <translation>没有可以打开的相机。</translation>
    </message>
    <message>
        <source>There is no camera &apos;%1&apos;; there are: %2.</source>
        <translation>没有相机“%1”；现有：%2。</translation>
    </message>
    <message>
        <source>There are several cameras: %1; &apos;--camera&apos; names one.</source>
        <translation>有多台相机：%1；请用“--camera”指定一台。</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>耗时过长</translation>
    </message>
</context>
<context>
    <name>ConfigureMenu</name>
    <message>
        <source>&amp;Configure</source>
        <translation>配置(&amp;C)</translation>
    </message>
    <message>
        <source>Configuration &amp;Window</source>
        <translation>配置窗口(&amp;W)</translation>
    </message>
</context>
<context>
    <name>EventLog</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
</context>
<context>
    <name>Explorer</name>
    <message>
        <source>Cannot write to standard output.</source>
        <translation>无法写入标准输出。</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;.</source>
        <translation>无法写入“%1”。</translation>
    </message>
    <message>
        <source>There is no display; &apos;--screenshot DIR&apos; draws the window into a file.</source>
        <translation>没有显示器；“--screenshot DIR”可将窗口绘制到文件。</translation>
    </message>
</context>
<context>
    <name>ExplorerWindow</name>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>控件</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Open &amp;Camera...</source>
        <translation>打开相机(&amp;C)...</translation>
    </message>
    <message>
        <source>Choose another camera</source>
        <translation>选择另一台相机</translation>
    </message>
    <message>
        <source>&amp;Open Description...</source>
        <translation>打开描述文件(&amp;O)...</translation>
    </message>
    <message>
        <source>Show a GenICam description</source>
        <translation>显示 GenICam 描述</translation>
    </message>
    <message>
        <source>&amp;Save View State...</source>
        <translation>保存视图状态(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Load View State...</source>
        <translation>加载视图状态(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Cameras</source>
        <translation>相机(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Simulated</source>
        <translation>模拟(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Real</source>
        <translation>真实(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Both</source>
        <translation>两者(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Refresh Values</source>
        <translation>刷新数值(&amp;R)</translation>
    </message>
    <message>
        <source>Read the values of the tree again</source>
        <translation>重新读取树中的数值</translation>
    </message>
    <message>
        <source>&amp;Poll</source>
        <translation>轮询(&amp;P)</translation>
    </message>
    <message>
        <source>Read values that change by themselves regularly</source>
        <translation>定期读取自行变化的数值</translation>
    </message>
    <message>
        <source>Polling &amp;Interval...</source>
        <translation>轮询间隔(&amp;I)...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>%1 is shown.</source>
        <translation>正在显示 %1。</translation>
    </message>
    <message>
        <source>%1 - Camera Explorer</source>
        <translation>%1 - 相机浏览器</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>已断开</translation>
    </message>
    <message>
        <source>%1 is back.</source>
        <translation>%1 已恢复。</translation>
    </message>
    <message>
        <source>%1 is lost.</source>
        <translation>%1 已丢失。</translation>
    </message>
    <message>
        <source>Open Description</source>
        <translation>打开描述文件</translation>
    </message>
    <message>
        <source>GenICam descriptions (*.xml);;All files (*)</source>
        <translation>GenICam 描述 (*.xml);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Save View State</source>
        <translation>保存视图状态</translation>
    </message>
    <message>
        <source>Load View State</source>
        <translation>加载视图状态</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2.</source>
        <translation>无法读取“%1”：%2。</translation>
    </message>
    <message>
        <source>Polling Interval</source>
        <translation>轮询间隔</translation>
    </message>
    <message>
        <source>Milliseconds:</source>
        <translation>毫秒：</translation>
    </message>
    <message>
        <source>Polling every %1 ms</source>
        <translation>每 %1 ms 轮询</translation>
    </message>
    <message>
        <source>Not polling</source>
        <translation>未轮询</translation>
    </message>
    <message>
        <source>Refreshing failed: %1</source>
        <translation>刷新失败：%1</translation>
    </message>
    <message>
        <source>About Camera Explorer</source>
        <translation>关于相机浏览器</translation>
    </message>
    <message>
        <source>&lt;b&gt;Camera Explorer %1&lt;/b&gt;&lt;p&gt;Shows the features of GenICam cameras.&lt;/p&gt;</source>
        <translation>&lt;b&gt;相机浏览器 %1&lt;/b&gt;&lt;p&gt;显示 GenICam 相机的特性。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>直方图</translation>
    </message>
    <message>
        <source>How often each brightness occurs, from black to the largest value</source>
        <translation>从黑到最大值各亮度出现的次数</translation>
    </message>
</context>
<context>
    <name>LogDock</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Writes and errors</source>
        <translation>写入和错误</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>The kinds of lines that are shown</source>
        <translation>所显示行的类型</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the lines that are selected, or all that are shown</source>
        <translation>复制所选的行，或所有显示的行</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>保存...</translation>
    </message>
    <message>
        <source>Write the lines that are shown into a file</source>
        <translation>将显示的行写入文件</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Remove all lines</source>
        <translation>删除所有行</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>保存日志</translation>
    </message>
    <message>
        <source>Texts (*.txt *.log);;All files (*)</source>
        <translation>文本 (*.txt *.log);;所有文件 (*)</translation>
    </message>
    <message>
        <source>The log has been saved in &apos;%1&apos;.</source>
        <translation>日志已保存到“%1”。</translation>
    </message>
    <message>
        <source>Show only lines that have this text in them; Escape clears it</source>
        <translation>只显示含有此文本的行；Escape 键清除它</translation>
    </message>
</context>
<context>
    <name>OpeningDialog</name>
    <message>
        <source>Open Camera</source>
        <translation>打开相机</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>Fetching the description...</source>
        <translation>正在获取描述...</translation>
    </message>
    <message>
        <source>Making the features...</source>
        <translation>正在创建特性...</translation>
    </message>
    <message>
        <source>The camera is not connected.</source>
        <translation>相机未连接。</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Empty value after &apos;--%1&apos;.</source>
        <translation>“--%1”之后的值为空。</translation>
    </message>
    <message>
        <source>&apos;--set&apos; needs NAME=VALUE, not &apos;%1&apos;.</source>
        <translation>“--set”需要 名称=值，而不是“%1”。</translation>
    </message>
    <message>
        <source>&apos;--xml&apos; and &apos;--snap&apos; exclude each other.</source>
        <translation>“--xml”与“--snap”互斥。</translation>
    </message>
    <message>
        <source>&apos;--list&apos; goes without another camera or command.</source>
        <translation>“--list”不能与其他相机或命令一起使用。</translation>
    </message>
    <message>
        <source>&apos;--screenshot&apos; goes without other commands.</source>
        <translation>“--screenshot”不能与其他命令一起使用。</translation>
    </message>
    <message>
        <source>&apos;--real&apos; and &apos;--simulated&apos; exclude each other.</source>
        <translation>“--real”与“--simulated”互斥。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>意外的参数“%1”。</translation>
    </message>
    <message>
        <source>&apos;--xml&apos; and &apos;--camera&apos; exclude each other.</source>
        <translation>“--xml”与“--camera”互斥。</translation>
    </message>
    <message>
        <source>&apos;--adapter&apos; and &apos;--address&apos; need &apos;--real&apos;.</source>
        <translation>“--adapter”和“--address”需要“--real”。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no IPv4 address.</source>
        <translation>“%1”不是 IPv4 地址。</translation>
    </message>
    <message>
        <source>Real cameras need the module libOrvCameraApiAravis.so, which is not installed.</source>
        <translation>真实相机需要模块 libOrvCameraApiAravis.so，但它未安装。</translation>
    </message>
    <message>
        <source>There is no language &apos;%1&apos;; there are: %2.</source>
        <translation>没有语言“%1”；现有：%2。</translation>
    </message>
    <message>
        <source>Shows the features of a GenICam camera.</source>
        <translation>显示 GenICam 相机的特性。</translation>
    </message>
    <message>
        <source>Print this text.</source>
        <translation>打印此文本。</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>打印版本。</translation>
    </message>
    <message>
        <source>Show the GenICam description FILE over an empty memory.</source>
        <translation>在空内存上显示 GenICam 描述 文件。</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Open the camera with the identifier ID instead of asking for one.</source>
        <translation>打开标识符为 标识符 的相机，而不询问。</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>标识符</translation>
    </message>
    <message>
        <source>Show the cameras on the network and on USB instead of simulated ones.</source>
        <translation>显示网络和 USB 上的相机，而不是模拟相机。</translation>
    </message>
    <message>
        <source>Show simulated cameras.</source>
        <translation>显示模拟相机。</translation>
    </message>
    <message>
        <source>Print the cameras that are found, without a window.</source>
        <translation>不打开窗口，打印找到的相机。</translation>
    </message>
    <message>
        <source>Print the value of the feature NAME, without a window.</source>
        <translation>不打开窗口，打印特性 名称 的值。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Write VALUE to the feature NAME; execute it if it is a command.</source>
        <translation>将 值 写入特性 名称；如果是命令则执行。</translation>
    </message>
    <message>
        <source>NAME=VALUE</source>
        <translation>名称=值</translation>
    </message>
    <message>
        <source>Write the settings of the camera into FILE, &apos;-&apos; for the standard output.</source>
        <translation>将相机的设置写入 文件，“-”表示标准输出。</translation>
    </message>
    <message>
        <source>Set the camera as FILE says, &apos;-&apos; for the standard input.</source>
        <translation>按 文件 设置相机，“-”表示标准输入。</translation>
    </message>
    <message>
        <source>Write a picture of the camera into the PNG file FILE.</source>
        <translation>将相机的图像写入 PNG 文件 文件。</translation>
    </message>
    <message>
        <source>Look for cameras on the network adapter NAME only.</source>
        <translation>只在网络适配器 名称 上查找相机。</translation>
    </message>
    <message>
        <source>Ask the camera at the address IP only, without a broadcast.</source>
        <translation>只询问地址 IP 处的相机，不广播。</translation>
    </message>
    <message>
        <source>IP</source>
        <translation>IP</translation>
    </message>
    <message>
        <source>Draw the windows into PNG files in the directory DIR and end; needs no display.</source>
        <translation>将窗口绘制到 目录 中的 PNG 文件后结束；不需要显示器。</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Show the windows in the language LANGUAGE (%1) instead of the system&apos;s.</source>
        <translation>以 语言（%1）显示窗口，而不是系统语言。</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>语言</translation>
    </message>
</context>
<context>
    <name>PictureDock</name>
    <message>
        <source>Picture</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>&amp;Picture</source>
        <translation>图像(&amp;P)</translation>
    </message>
    <message>
        <source>Show the pictures of the camera</source>
        <translation>显示相机的图像</translation>
    </message>
    <message>
        <source>&amp;One Frame</source>
        <translation>单帧(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>适合窗口(&amp;F)</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>显示整幅图像</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>Show a pixel of the picture as one of the screen</source>
        <translation>图像的一个像素显示为屏幕的一个像素</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Show the picture larger</source>
        <translation>放大显示图像</translation>
    </message>
    <message>
        <source>Zoom O&amp;ut</source>
        <translation>缩小(&amp;U)</translation>
    </message>
    <message>
        <source>Show the picture smaller</source>
        <translation>缩小显示图像</translation>
    </message>
    <message>
        <source>&amp;Histogram</source>
        <translation>直方图(&amp;H)</translation>
    </message>
    <message>
        <source>Show how often each brightness occurs</source>
        <translation>显示各亮度出现的次数</translation>
    </message>
    <message>
        <source>Save as &amp;PNG...</source>
        <translation>另存为 &amp;PNG...</translation>
    </message>
    <message>
        <source>Save the picture as it is now</source>
        <translation>保存当前的图像</translation>
    </message>
    <message>
        <source>There is no camera that could send pictures</source>
        <translation>没有可以发送图像的相机</translation>
    </message>
    <message>
        <source>The camera is disconnected</source>
        <translation>相机已断开</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>开始(&amp;S)</translation>
    </message>
    <message>
        <source>Stop the camera</source>
        <translation>停止相机</translation>
    </message>
    <message>
        <source>Let the camera send pictures</source>
        <translation>让相机发送图像</translation>
    </message>
    <message>
        <source>Let the camera send one picture</source>
        <translation>让相机发送一幅图像</translation>
    </message>
    <message>
        <source>F9 starts the camera</source>
        <translation>按 F9 启动相机</translation>
    </message>
    <message>
        <source>%L1 frames/s</source>
        <translation>%L1 帧/秒</translation>
    </message>
    <message>
        <source>%L1 received</source>
        <translation>已接收 %L1</translation>
    </message>
    <message>
        <source>%L1 skipped</source>
        <translation>已跳过 %L1</translation>
    </message>
    <message>
        <source>%L1 lost</source>
        <translation>已丢失 %L1</translation>
    </message>
    <message>
        <source>%1 x %2, %3</source>
        <translation>%1 x %2，%3</translation>
    </message>
    <message>
        <source>, shown at %1 %</source>
        <translation>，显示比例 %1 %</translation>
    </message>
    <message>
        <source>(%1, %2) %3</source>
        <translation>(%1, %2) %3</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>保存图像</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;All files (*)</source>
        <translation>PNG 图像 (*.png);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Saved &apos;%1&apos;.</source>
        <translation>已保存“%1”。</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>图像</translation>
    </message>
</context>
<context>
    <name>PixelFormat</name>
    <message>
        <source>The pixel format %1 is unknown.</source>
        <translation>像素格式 %1 未知。</translation>
    </message>
    <message>
        <source>The picture has no pixels (%1).</source>
        <translation>图像没有像素（%1）。</translation>
    </message>
    <message>
        <source>The picture is too large (%1).</source>
        <translation>图像太大（%1）。</translation>
    </message>
    <message>
        <source>%1 of %2 pixels are missing.</source>
        <translation>缺少 %1 个像素，共 %2 个。</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture.</source>
        <translation>内存不足，无法显示图像。</translation>
    </message>
</context>
<context>
    <name>PlugMenu</name>
    <message>
        <source>Plug &amp;In and Out</source>
        <translation>插拔(&amp;I)</translation>
    </message>
</context>
<context>
    <name>Script</name>
    <message>
        <source>Cannot write to standard output.</source>
        <translation>无法写入标准输出。</translation>
    </message>
    <message>
        <source>None has come within %1 s.</source>
        <translation>%1 秒内没有收到。</translation>
    </message>
    <message>
        <source>There is no camera.</source>
        <translation>没有相机。</translation>
    </message>
    <message>
        <source>There is no feature &apos;%1&apos; with a value.</source>
        <translation>没有带值的特性“%1”。</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2</source>
        <translation>无法读取“%1”：%2</translation>
    </message>
    <message>
        <source>Cannot set &apos;%1&apos;: %2</source>
        <translation>无法设置“%1”：%2</translation>
    </message>
    <message>
        <source>Cannot execute &apos;%1&apos;: %2</source>
        <translation>无法执行“%1”：%2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not end.</source>
        <translation>“%1”没有结束。</translation>
    </message>
    <message>
        <source>%1: wanted &apos;%2&apos;, has &apos;%3&apos;: %4</source>
        <translation>%1：期望“%2”，实际“%3”：%4</translation>
    </message>
    <message>
        <source>There is no picture: %1</source>
        <translation>没有图像：%1</translation>
    </message>
    <message>
        <source>The picture cannot be shown: %1</source>
        <translation>无法显示图像：%1</translation>
    </message>
    <message>
        <source>The picture cannot be written as PNG.</source>
        <translation>无法将图像写为 PNG。</translation>
    </message>
    <message>
        <source>It was lost on its way.</source>
        <translation>它在途中丢失。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has the value &apos;%2&apos; now.</source>
        <translation>“%1”的值现在为“%2”。</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>It failed without a reason.</source>
        <translation>失败，没有给出原因。</translation>
    </message>
    <message>
        <source>It can only be written.</source>
        <translation>只能写入。</translation>
    </message>
    <message>
        <source>The camera does not have it.</source>
        <translation>相机没有此项。</translation>
    </message>
    <message>
        <source>It can only be read now.</source>
        <translation>目前只能读取。</translation>
    </message>
    <message>
        <source>It is not available now.</source>
        <translation>目前不可用。</translation>
    </message>
    <message>
        <source>The camera has taken another value.</source>
        <translation>相机采用了另一个值。</translation>
    </message>
    <message>
        <source>It is not in the file.</source>
        <translation>文件中没有。</translation>
    </message>
    <message>
        <source>The camera has no feature of that name with a value.</source>
        <translation>相机没有该名称且带值的特性。</translation>
    </message>
    <message>
        <source>It was not tried.</source>
        <translation>未尝试。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be set to &apos;%2&apos;: %3</source>
        <translation>无法将“%1”设为“%2”：%3</translation>
    </message>
    <message>
        <source>Its text has a line break, which no line of a file can hold.</source>
        <translation>其文本含有换行，文件的一行无法容纳。</translation>
    </message>
    <message>
        <source>It could not be put back to &apos;%1&apos;: %2</source>
        <translation>无法恢复为“%1”：%2</translation>
    </message>
    <message>
        <source>The camera marks no feature as a setting: all that can be read and written are saved, except those of its connection.</source>
        <translation>相机没有将任何特性标记为设置：除连接相关的之外，保存所有可读写的特性。</translation>
    </message>
    <message>
        <source>What it selects is saved once only: %1</source>
        <translation>它所选择的内容只保存一次：%1</translation>
    </message>
    <message>
        <source>It has too many entries: not all of them are saved.</source>
        <translation>条目过多：并非全部保存。</translation>
    </message>
    <message>
        <source>What &apos;%1&apos; selects is not saved: %2</source>
        <translation>“%1”所选择的内容未保存：%2</translation>
    </message>
    <message>
        <source>There is nothing that could be saved. %1</source>
        <translation>没有可以保存的内容。%1</translation>
    </message>
    <message>
        <source>The camera does not answer any more: %1</source>
        <translation>相机不再应答：%1</translation>
    </message>
    <message>
        <source>It belongs to the connection, not to the settings.</source>
        <translation>它属于连接，不属于设置。</translation>
    </message>
    <message>
        <source>It was set, and could not be read again: %1</source>
        <translation>已设置，但无法重新读取：%1</translation>
    </message>
    <message>
        <source>Another setting has changed it again.</source>
        <translation>另一项设置又更改了它。</translation>
    </message>
    <message>
        <source>Not all that it selects is saved: %1</source>
        <translation>它所选择的内容未全部保存：%1</translation>
    </message>
    <message>
        <source>Its text would be taken for selectors.</source>
        <translation>其文本会被当作选择器。</translation>
    </message>
    <message>
        <source>It is too large for a file.</source>
        <translation>对文件来说太大。</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>There are no settings in it.</source>
        <translation>其中没有设置。</translation>
    </message>
    <message>
        <source>The head of a settings file is missing.</source>
        <translation>缺少设置文件的文件头。</translation>
    </message>
    <message>
        <source>The line is too long.</source>
        <translation>该行太长。</translation>
    </message>
    <message>
        <source>The line has a NUL byte.</source>
        <translation>该行含有 NUL 字节。</translation>
    </message>
    <message>
        <source>The line is no setting: &apos;%1&apos;.</source>
        <translation>该行不是设置：“%1”。</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;: %2</source>
        <translation>无法读取“%1”：%2</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>文件太大。</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>There is more of that kind.</source>
        <translation>还有更多同类情况。</translation>
    </message>
    <message>
        <source>It has too many lines.</source>
        <translation>行数过多。</translation>
    </message>
</context>
<context>
    <name>SettingsJob</name>
    <message>
        <source>Ending...</source>
        <translation>正在结束...</translation>
    </message>
</context>
<context>
    <name>SettingsMenu</name>
    <message>
        <source>S&amp;ettings</source>
        <translation>设置(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Save Settings...</source>
        <translation>保存设置(&amp;S)...</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>保存设置</translation>
    </message>
    <message>
        <source>&amp;Load Settings...</source>
        <translation>加载设置(&amp;L)...</translation>
    </message>
    <message>
        <source>Load Settings</source>
        <translation>加载设置</translation>
    </message>
    <message>
        <source>&amp;Compare With File...</source>
        <translation>与文件比较(&amp;C)...</translation>
    </message>
    <message>
        <source>Compare With File</source>
        <translation>与文件比较</translation>
    </message>
    <message>
        <source>Write the settings of the camera into a file</source>
        <translation>将相机的设置写入文件</translation>
    </message>
    <message>
        <source>Set the camera as a file says</source>
        <translation>按文件设置相机</translation>
    </message>
    <message>
        <source>Show what differs between the camera and a file</source>
        <translation>显示相机与文件的差异</translation>
    </message>
    <message>
        <source>Compare &amp;Two Files...</source>
        <translation>比较两个文件(&amp;T)...</translation>
    </message>
    <message>
        <source>First File</source>
        <translation>第一个文件</translation>
    </message>
    <message>
        <source>Show what differs between two files</source>
        <translation>显示两个文件的差异</translation>
    </message>
    <message>
        <source>Settings (*.gps *.txt);;All files (*)</source>
        <translation>设置 (*.gps *.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Second File</source>
        <translation>第二个文件</translation>
    </message>
    <message>
        <source>Lines saved in &apos;%1&apos;: %2</source>
        <translation>保存到“%1”的行数：%2</translation>
    </message>
    <message>
        <source>What is missing, and why</source>
        <translation>缺少的内容及原因</translation>
    </message>
    <message>
        <source>The settings are those of another camera: %1.
This one is: %2.</source>
        <translation>这些设置属于另一台相机：%1。
当前相机：%2。</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>加载(&amp;L)</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>期望</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>It has been set.</source>
        <translation>已设置。</translation>
    </message>
    <message>
        <source>%1 of %2 settings have been set, %3 could not be set; the others were so already.</source>
        <translation>共 %2 项设置，已设置 %1 项，%3 项无法设置；其余已是如此。</translation>
    </message>
    <message>
        <source>It was interrupted.</source>
        <translation>已中断。</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Comparing was interrupted.</source>
        <translation>比较被中断。</translation>
    </message>
    <message>
        <source>Only in &apos;%1&apos;.</source>
        <translation>仅在“%1”中。</translation>
    </message>
    <message>
        <source>Differences between &apos;%1&apos; and &apos;%2&apos;: %3</source>
        <translation>“%1”与“%2”的差异：%3</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>The camera sends pictures, which locks some of its settings.</source>
        <translation>相机正在发送图像，部分设置因此被锁定。</translation>
    </message>
    <message>
        <source>&amp;Stop the Pictures</source>
        <translation>停止图像(&amp;S)</translation>
    </message>
    <message>
        <source>%1: the camera does not stop sending pictures.</source>
        <translation>%1：相机没有停止发送图像。</translation>
    </message>
    <message>
        <source>%1 has failed: %2</source>
        <translation>%1失败：%2</translation>
    </message>
    <message>
        <source>Saving was interrupted.</source>
        <translation>保存已中断。</translation>
    </message>
    <message>
        <source>%1 Nothing was written to &apos;%2&apos;.</source>
        <translation>%1 未向“%2”写入任何内容。</translation>
    </message>
    <message>
        <source>Loading was interrupted: nothing has been set.</source>
        <translation>加载已中断：未设置任何内容。</translation>
    </message>
    <message>
        <source>%1 of %2 settings have been put back, %3 could not be put back; the others were so already.</source>
        <translation>%2 项设置中已恢复 %1 项，%3 项无法恢复；其余原本就是如此。</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>另有 %1 项。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no file.</source>
        <translation>“%1”不是文件。</translation>
    </message>
</context>
<context>
    <name>SettingsReport</name>
    <message>
        <source>&amp;Put Back</source>
        <translation>恢复(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the lines that are selected, or all of them</source>
        <translation>复制所选的行，或全部</translation>
    </message>
    <message>
        <source>Write what the camera had before</source>
        <translation>写入相机之前的值</translation>
    </message>
</context>
<context>
    <name>SimulationMenu</name>
    <message>
        <source>&amp;Simulation</source>
        <translation>模拟(&amp;S)</translation>
    </message>
    <message>
        <source>Refuse &amp;All Writes</source>
        <translation>拒绝所有写入(&amp;A)</translation>
    </message>
    <message>
        <source>Re&amp;cover All Features</source>
        <translation>恢复所有特性(&amp;C)</translation>
    </message>
    <message>
        <source>Let Values &amp;Drift</source>
        <translation>让数值漂移(&amp;D)</translation>
    </message>
    <message>
        <source>a Feature</source>
        <translation>某个特性</translation>
    </message>
    <message>
        <source>&apos;%1&apos;</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>Let &amp;Reading %1 Fail</source>
        <translation>让读取 %1 失败(&amp;R)</translation>
    </message>
    <message>
        <source>Let &amp;Writing %1 Fail</source>
        <translation>让写入 %1 失败(&amp;W)</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no register of its own that could fail.</source>
        <translation>“%1”没有可以失败的自身寄存器。</translation>
    </message>
    <message>
        <source>The camera refuses all writes until its features recover.</source>
        <translation>在特性恢复之前，相机拒绝所有写入。</translation>
    </message>
</context>
<context>
    <name>TreeToolsMenu</name>
    <message>
        <source>Feature &amp;Tree</source>
        <translation>特性树(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>查找(&amp;F)...</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>查找下一个(&amp;N)</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>查找上一个(&amp;P)</translation>
    </message>
    <message>
        <source>Fa&amp;vorites Only</source>
        <translation>仅收藏(&amp;V)</translation>
    </message>
    <message>
        <source>Show only favorites, which the menus of the features&apos; rows choose</source>
        <translation>只显示收藏，收藏在各行的菜单中选择</translation>
    </message>
    <message>
        <source>&amp;Changed Only</source>
        <translation>仅已更改(&amp;C)</translation>
    </message>
    <message>
        <source>Show only features whose value differs from the first that was seen</source>
        <translation>只显示数值与首次所见不同的特性</translation>
    </message>
    <message>
        <source>&amp;All Categories</source>
        <translation>所有类别(&amp;A)</translation>
    </message>
    <message>
        <source>End showing one category only</source>
        <translation>结束只显示一个类别</translation>
    </message>
    <message>
        <source>&amp;Mark Changes</source>
        <translation>标记更改(&amp;M)</translation>
    </message>
    <message>
        <source>Show for a moment which values have changed</source>
        <translation>短暂显示哪些数值已更改</translation>
    </message>
</context>
<context>
    <name>WidgetsPage</name>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Spin Boxes</source>
        <translation>数值调节框</translation>
    </message>
    <message>
        <source>64 bits</source>
        <translation>64 位</translation>
    </message>
    <message>
        <source>64 bits, hexadecimal</source>
        <translation>64 位，十六进制</translation>
    </message>
    <message>
        <source>Steps of 8, Return</source>
        <translation>步长 8，回车确认</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Steps of 0.25, Return</source>
        <translation>步长 0.25，回车确认</translation>
    </message>
    <message>
        <source>With decimals</source>
        <translation>带小数</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>滑块</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>线性</translation>
    </message>
    <message>
        <source>Log10</source>
        <translation>Log10</translation>
    </message>
    <message>
        <source>Sqrt</source>
        <translation>平方根</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>双精度</translation>
    </message>
    <message>
        <source>Log10, horizontal</source>
        <translation>Log10，水平</translation>
    </message>
    <message>
        <source>Steps of 0.3</source>
        <translation>步长 0.3</translation>
    </message>
    <message>
        <source>Without labels</source>
        <translation>无标签</translation>
    </message>
    <message>
        <source>Spin Boxes With Sliders</source>
        <translation>带滑块的数值调节框</translation>
    </message>
    <message>
        <source>Pop-&amp;up:</source>
        <translation>弹出(&amp;U)：</translation>
    </message>
    <message>
        <source>Pop-up, &amp;horizontal:</source>
        <translation>弹出，水平(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Read-only:</source>
        <translation>只读(&amp;R)：</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>曝光</translation>
    </message>
    <message>
        <source>&amp;Exposure:</source>
        <translation>曝光(&amp;E)：</translation>
    </message>
    <message>
        <source> us</source>
        <translation> µs</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>&amp;Gain in decibels, steps of a quarter</source>
        <translation>增益（分贝），四分之一步长(&amp;G)</translation>
    </message>
</context>
<context>
    <name>WriteWatch</name>
    <message>
        <source>%1, before: %2</source>
        <translation>%1，之前：%2</translation>
    </message>
    <message>
        <source>executed</source>
        <translation>已执行</translation>
    </message>
    <message>
        <source>written; reading it back failed: %1</source>
        <translation>已写入；读回失败：%1</translation>
    </message>
</context>
</TS>
