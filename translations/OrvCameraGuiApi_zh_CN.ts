<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AccessReason</name>
    <message>
        <source>not implemented by the camera</source>
        <translation>相机未实现</translation>
    </message>
    <message>
        <source>not implemented, says %1</source>
        <translation>根据 %1 未实现</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>当前不可用</translation>
    </message>
    <message>
        <source>not available now because of %1</source>
        <translation>由于 %1，当前不可用</translation>
    </message>
    <message>
        <source>locked by %1</source>
        <translation>被 %1 锁定</translation>
    </message>
    <message>
        <source>the acquisition is running (%1)</source>
        <translation>正在采集 (%1)</translation>
    </message>
    <message>
        <source>the camera lets it be read only</source>
        <translation>相机只允许读取</translation>
    </message>
    <message>
        <source>&lt;i&gt;Not writable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;不可写：&lt;/i&gt; %1</translation>
    </message>
</context>
<context>
    <name>DeviceTreeModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
</context>
<context>
    <name>EntryGuard</name>
    <message>
        <source>Enter a number from %1 to %2.</source>
        <translation>请输入 %1 到 %2 之间的数值。</translation>
    </message>
</context>
<context>
    <name>FeatureMenu</name>
    <message>
        <source>Copy &amp;GenICam Name</source>
        <translation>复制 GenICam 名称(&amp;G)</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>复制值(&amp;V)</translation>
    </message>
    <message>
        <source>Copy &amp;Row</source>
        <translation>复制行(&amp;R)</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>重新读取(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Execute</source>
        <translation>执行(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Favorite</source>
        <translation>收藏(&amp;F)</translation>
    </message>
    <message>
        <source>Go to &amp;Selector</source>
        <translation>转到选择器(&amp;S)</translation>
    </message>
    <message>
        <source>Show &amp;Only This Category</source>
        <translation>仅显示此类别(&amp;O)</translation>
    </message>
    <message>
        <source>Show A&amp;ll Categories</source>
        <translation>显示所有类别(&amp;L)</translation>
    </message>
    <message>
        <source>Go to Selecte&amp;d Feature</source>
        <translation>转到所选特性(&amp;D)</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... 还有 %1 个</translation>
    </message>
    <message>
        <source>Favor&amp;ites Only</source>
        <translation>仅收藏(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Changed Only</source>
        <translation>仅已更改(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FilterOptions</name>
    <message>
        <source>Case Sensitive</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>Whole Words Only</source>
        <translation>全字匹配</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Find Features</source>
        <translation>查找特性</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>第 %1 个，共 %2 个</translation>
    </message>
    <message>
        <source>Previous match</source>
        <translation>上一个匹配</translation>
    </message>
    <message>
        <source>Previous match (Shift+F3)</source>
        <translation>上一个匹配 (Shift+F3)</translation>
    </message>
    <message>
        <source>Next match</source>
        <translation>下一个匹配</translation>
    </message>
    <message>
        <source>Next match (F3)</source>
        <translation>下一个匹配 (F3)</translation>
    </message>
    <message>
        <source>Close search</source>
        <translation>关闭查找</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>关闭 (Esc)</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>找到 %1 个</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>未找到</translation>
    </message>
</context>
<context>
    <name>GenErrorsDlg</name>
    <message>
        <source>Gen&lt;i&gt;Cam errors</source>
        <translation>Gen&lt;i&gt;Cam 错误</translation>
    </message>
    <message>
        <source>No Errors</source>
        <translation>无错误</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
<context>
    <name>GenParamTreeModel</name>
    <message>
        <source>True</source>
        <translation>真</translation>
    </message>
    <message>
        <source>False</source>
        <translation>假</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>Unknown Error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>&lt;Value not available&gt;</source>
        <translation>&lt;值不可用&gt;</translation>
    </message>
    <message>
        <source>&lt;Value not readable&gt;</source>
        <translation>&lt;值不可读&gt;</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>&lt;i&gt;Limits&lt;/i&gt;: Min: %1, Max: %2</source>
        <translation>&lt;i&gt;范围&lt;/i&gt;：最小：%1，最大：%2</translation>
    </message>
    <message>
        <source>&lt;i&gt;Name:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;名称：&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Description:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;说明：&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Streamable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;可作为设置保存：&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Cachable:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;缓存方式：&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Selectors:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;选择器：&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Type:&lt;/i&gt; %1</source>
        <translation>&lt;i&gt;类型：&lt;/i&gt; %1</translation>
    </message>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮点数</translation>
    </message>
    <message>
        <source>String</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>枚举</translation>
    </message>
    <message>
        <source>&lt;i&gt;Increment&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;步长&lt;/i&gt;：%1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Valid values&lt;/i&gt;: %1</source>
        <translation>&lt;i&gt;有效值&lt;/i&gt;：%1</translation>
    </message>
    <message>
        <source>&lt;i&gt;Enumeration entries&lt;/i&gt;:</source>
        <translation>&lt;i&gt;枚举项&lt;/i&gt;：</translation>
    </message>
    <message>
        <source>NoCache</source>
        <translation>不缓存</translation>
    </message>
    <message>
        <source>WriteThrough</source>
        <translation>直写</translation>
    </message>
    <message>
        <source>WriteAround</source>
        <translation>绕写</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>未定义</translation>
    </message>
</context>
<context>
    <name>GenParamTreeView</name>
    <message>
        <source>Collapse All</source>
        <translation>全部折叠</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <source>Filter by feature name.
Using of wildcard is possible.</source>
        <translation>按特性名称筛选。
可使用通配符。</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Visibility:</source>
        <translation>可见性：</translation>
    </message>
    <message>
        <source>Level of feature visibility</source>
        <translation>特性的可见级别</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>初级</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>专家</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>大师</translation>
    </message>
    <message>
        <source>Show Error Dialog</source>
        <translation>显示错误</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>可见性</translation>
    </message>
    <message>
        <source>No errors</source>
        <translation>无错误</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>特性</translation>
    </message>
    <message>
        <source>Description of the feature</source>
        <translation>特性说明</translation>
    </message>
</context>
<context>
    <name>InfoPane</name>
    <message>
        <source>ReadWrite</source>
        <translation>可读写</translation>
    </message>
    <message>
        <source>ReadOnly</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>NO ACCESS</source>
        <translation>无法访问</translation>
    </message>
    <message>
        <source>IP Subnet Mismatch</source>
        <translation>IP 子网不匹配</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>USB3 Vision</source>
        <translation>USB3 Vision</translation>
    </message>
    <message>
        <source>GigE Vision</source>
        <translation>GigE Vision</translation>
    </message>
    <message>
        <source>CameraLink</source>
        <translation>CameraLink</translation>
    </message>
    <message>
        <source>CoaXPress</source>
        <translation>CoaXPress</translation>
    </message>
    <message>
        <source>HD-SDI</source>
        <translation>HD-SDI</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigAboutDialog</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Device Information</source>
        <translation>设备信息</translation>
    </message>
    <message>
        <source>Device Firmware Version:</source>
        <translation>设备固件版本：</translation>
    </message>
    <message>
        <source>Device Model Name:</source>
        <translation>设备型号名称：</translation>
    </message>
    <message>
        <source>Device Manufacturer Info:</source>
        <translation>设备制造商信息：</translation>
    </message>
    <message>
        <source>Device Serial Number:</source>
        <translation>设备序列号：</translation>
    </message>
    <message>
        <source>Device User Defined Name:</source>
        <translation>用户定义的设备名称：</translation>
    </message>
    <message>
        <source>Device Family Name:</source>
        <translation>设备系列名称：</translation>
    </message>
    <message>
        <source>Device Vendor Name:</source>
        <translation>设备供应商名称：</translation>
    </message>
    <message>
        <source>Device Version:</source>
        <translation>设备版本：</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Firmware Image:</source>
        <translation>固件映像：</translation>
    </message>
    <message>
        <source>CustomerID:</source>
        <translation>客户 ID：</translation>
    </message>
    <message>
        <source>Xml Version:</source>
        <translation>XML 版本：</translation>
    </message>
    <message>
        <source>RgsID:</source>
        <translation>RGS ID：</translation>
    </message>
    <message>
        <source>FpgaID:</source>
        <translation>FPGA ID：</translation>
    </message>
    <message>
        <source>EpcsID:</source>
        <translation>EPCS ID：</translation>
    </message>
    <message>
        <source>Sensor Type:</source>
        <translation>传感器类型：</translation>
    </message>
    <message>
        <source>FamilyID:</source>
        <translation>系列 ID：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigColorDialog</name>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>白平衡</translation>
    </message>
    <message>
        <source>Tracking Speed</source>
        <translation>跟踪速度</translation>
    </message>
    <message>
        <source>Manual WB Coef.</source>
        <translation>手动白平衡系数</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Unity</source>
        <translation>置一</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Red coef.:</source>
        <translation>红色系数：</translation>
    </message>
    <message>
        <source>Green coef.:</source>
        <translation>绿色系数：</translation>
    </message>
    <message>
        <source>Blue coef.:</source>
        <translation>蓝色系数：</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>白平衡</translation>
    </message>
    <message>
        <source>Tracking speed</source>
        <translation>跟踪速度</translation>
    </message>
    <message>
        <source>Red coefficient</source>
        <translation>红色系数</translation>
    </message>
    <message>
        <source>Set red to unity</source>
        <translation>将红色系数置一</translation>
    </message>
    <message>
        <source>Green coefficient</source>
        <translation>绿色系数</translation>
    </message>
    <message>
        <source>Set green to unity</source>
        <translation>将绿色系数置一</translation>
    </message>
    <message>
        <source>Blue coefficient</source>
        <translation>蓝色系数</translation>
    </message>
    <message>
        <source>Set blue to unity</source>
        <translation>将蓝色系数置一</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigFrameABDialog</name>
    <message>
        <source>Frame A/B</source>
        <translation>帧 A/B</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>帧</translation>
    </message>
    <message>
        <source>Frame Mode:</source>
        <translation>帧模式：</translation>
    </message>
    <message>
        <source>Frames in a Row:</source>
        <translation>连续帧数：</translation>
    </message>
    <message>
        <source>A:</source>
        <translation>A：</translation>
    </message>
    <message>
        <source>B:</source>
        <translation>B：</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>传感器</translation>
    </message>
    <message>
        <source>Shutter Mode:</source>
        <translation>快门模式：</translation>
    </message>
    <message>
        <source>Bit Depth:</source>
        <translation>位深：</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>帧 A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>帧 B</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>曝光</translation>
    </message>
    <message>
        <source>Lines:</source>
        <translation>行数：</translation>
    </message>
    <message>
        <source>Clocks [pclk]:</source>
        <translation>时钟数 [pclk]：</translation>
    </message>
    <message>
        <source>Frame Period</source>
        <translation>帧周期</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>Period [μs]:</source>
        <translation>周期 [μs]：</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>Analog Gain:</source>
        <translation>模拟增益：</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Size of the Image:</source>
        <translation>图像尺寸：</translation>
    </message>
    <message>
        <source>Decimation</source>
        <translation>抽取</translation>
    </message>
    <message>
        <source>Subsampling M:</source>
        <translation>下采样 M：</translation>
    </message>
    <message>
        <source>P:</source>
        <translation>P：</translation>
    </message>
    <message>
        <source>Averaging:</source>
        <translation>平均：</translation>
    </message>
    <message>
        <source>Wide Dynamic Range</source>
        <translation>宽动态范围</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Level 1:</source>
        <translation>电平 1：</translation>
    </message>
    <message>
        <source>Exposure 1:</source>
        <translation>曝光 1：</translation>
    </message>
    <message>
        <source>Level 2:</source>
        <translation>电平 2：</translation>
    </message>
    <message>
        <source>Exposure 2:</source>
        <translation>曝光 2：</translation>
    </message>
    <message>
        <source>Level 3:</source>
        <translation>电平 3：</translation>
    </message>
    <message>
        <source>Exposure 3:</source>
        <translation>曝光 3：</translation>
    </message>
    <message>
        <source>Frame mode</source>
        <translation>帧模式</translation>
    </message>
    <message>
        <source>Number of frames A in a row</source>
        <translation>帧 A 的连续帧数</translation>
    </message>
    <message>
        <source>Number of frames B in a row</source>
        <translation>帧 B 的连续帧数</translation>
    </message>
    <message>
        <source>Dual video line time in pixel clocks</source>
        <translation>双视频行时间（像素时钟）</translation>
    </message>
    <message>
        <source>Exposure time in microseconds</source>
        <translation>曝光时间（微秒）</translation>
    </message>
    <message>
        <source>Exposure lines</source>
        <translation>曝光行数</translation>
    </message>
    <message>
        <source>Exposure pixel clocks</source>
        <translation>曝光像素时钟数</translation>
    </message>
    <message>
        <source>Line time in pixel clocks</source>
        <translation>行时间（像素时钟）</translation>
    </message>
    <message>
        <source>Fixed frame period</source>
        <translation>固定帧周期</translation>
    </message>
    <message>
        <source>Frame period in microseconds</source>
        <translation>帧周期（微秒）</translation>
    </message>
    <message>
        <source>Digital gain</source>
        <translation>数字增益</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>黑电平</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>水平偏移</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>垂直偏移</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Subsampling M</source>
        <translation>下采样 M</translation>
    </message>
    <message>
        <source>Subsampling P</source>
        <translation>下采样 P</translation>
    </message>
    <message>
        <source>Averaging</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Wide dynamic range</source>
        <translation>宽动态范围</translation>
    </message>
    <message>
        <source>Level 1 of the wide dynamic range</source>
        <translation>宽动态范围的电平 1</translation>
    </message>
    <message>
        <source>Exposure 1 of the wide dynamic range</source>
        <translation>宽动态范围的曝光 1</translation>
    </message>
    <message>
        <source>Level 2 of the wide dynamic range</source>
        <translation>宽动态范围的电平 2</translation>
    </message>
    <message>
        <source>Exposure 2 of the wide dynamic range</source>
        <translation>宽动态范围的曝光 2</translation>
    </message>
    <message>
        <source>Level 3 of the wide dynamic range</source>
        <translation>宽动态范围的电平 3</translation>
    </message>
    <message>
        <source>Exposure 3 of the wide dynamic range</source>
        <translation>宽动态范围的曝光 3</translation>
    </message>
    <message>
        <source>Shutter mode</source>
        <translation>快门模式</translation>
    </message>
    <message>
        <source>Bit depth</source>
        <translation>位深</translation>
    </message>
    <message>
        <source>Exposure control</source>
        <translation>曝光控制</translation>
    </message>
    <message>
        <source>Analog gain</source>
        <translation>模拟增益</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigMainWindow</name>
    <message>
        <source>CamConfig</source>
        <translation>相机配置</translation>
    </message>
    <message>
        <source>Camera Information</source>
        <translation>相机信息</translation>
    </message>
    <message>
        <source>Frame A</source>
        <translation>帧 A</translation>
    </message>
    <message>
        <source>Frame B</source>
        <translation>帧 B</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>PxL</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>FPS</source>
        <translation>帧率</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>帧/秒</translation>
    </message>
    <message>
        <source>FTM</source>
        <translation>帧时间</translation>
    </message>
    <message>
        <source>EXP</source>
        <translation>曝光时间</translation>
    </message>
    <message>
        <source>TMP</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Frame A/B</source>
        <translation>帧 A/B</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>触发</translation>
    </message>
    <message>
        <source>Pulse</source>
        <translation>脉冲</translation>
    </message>
    <message>
        <source>Strobe</source>
        <translation>频闪</translation>
    </message>
    <message>
        <source>Data Out</source>
        <translation>数据输出</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Size of frame A</source>
        <translation>帧 A 的尺寸</translation>
    </message>
    <message>
        <source>Size of frame B</source>
        <translation>帧 B 的尺寸</translation>
    </message>
    <message>
        <source>Frames per second of frame A</source>
        <translation>帧 A 的帧率</translation>
    </message>
    <message>
        <source>Frames per second of frame B</source>
        <translation>帧 B 的帧率</translation>
    </message>
    <message>
        <source>Frame time of frame A</source>
        <translation>帧 A 的帧时间</translation>
    </message>
    <message>
        <source>Frame time of frame B</source>
        <translation>帧 B 的帧时间</translation>
    </message>
    <message>
        <source>Exposure time of frame A</source>
        <translation>帧 A 的曝光时间</translation>
    </message>
    <message>
        <source>Exposure time of frame B</source>
        <translation>帧 B 的曝光时间</translation>
    </message>
    <message>
        <source>Temperature of the camera</source>
        <translation>相机温度</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigOutputDialog</name>
    <message>
        <source>Data Output</source>
        <translation>数据输出</translation>
    </message>
    <message>
        <source>Camera Link Output</source>
        <translation>Camera Link 输出</translation>
    </message>
    <message>
        <source>Taps:</source>
        <translation>抽头数：</translation>
    </message>
    <message>
        <source>Depth:</source>
        <translation>深度：</translation>
    </message>
    <message>
        <source>Pixel Type</source>
        <translation>像素类型</translation>
    </message>
    <message>
        <source>Pixel Format:</source>
        <translation>像素格式：</translation>
    </message>
    <message>
        <source>LUT Settings</source>
        <translation>查找表设置</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Corrections</source>
        <translation>校正</translation>
    </message>
    <message>
        <source>DPC:</source>
        <translation>DPC：</translation>
    </message>
    <message>
        <source>HPC:</source>
        <translation>HPC：</translation>
    </message>
    <message>
        <source>Image Flip</source>
        <translation>图像翻转</translation>
    </message>
    <message>
        <source>H.Mirror</source>
        <translation>水平镜像</translation>
    </message>
    <message>
        <source>V.Mirror</source>
        <translation>垂直镜像</translation>
    </message>
    <message>
        <source>Test Mode</source>
        <translation>测试模式</translation>
    </message>
    <message>
        <source>Test Pattern:</source>
        <translation>测试图案：</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>抽头数</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深度</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>像素格式</translation>
    </message>
    <message>
        <source>Enable the look-up table</source>
        <translation>启用查找表</translation>
    </message>
    <message>
        <source>Look-up table</source>
        <translation>查找表</translation>
    </message>
    <message>
        <source>Defect pixel correction</source>
        <translation>坏点校正</translation>
    </message>
    <message>
        <source>Dynamic threshold of the defect pixel correction</source>
        <translation>坏点校正的动态阈值</translation>
    </message>
    <message>
        <source>Hot pixel correction</source>
        <translation>热像素校正</translation>
    </message>
    <message>
        <source>Dynamic threshold of the hot pixel correction</source>
        <translation>热像素校正的动态阈值</translation>
    </message>
    <message>
        <source>Horizontal mirror</source>
        <translation>水平镜像</translation>
    </message>
    <message>
        <source>Vertical mirror</source>
        <translation>垂直镜像</translation>
    </message>
    <message>
        <source>Test pattern</source>
        <translation>测试图案</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigPulseDialog</name>
    <message>
        <source>Pulse Control</source>
        <translation>脉冲控制</translation>
    </message>
    <message>
        <source>Internal Pulse Generator</source>
        <translation>内部脉冲发生器</translation>
    </message>
    <message>
        <source>Granularity:</source>
        <translation>粒度：</translation>
    </message>
    <message>
        <source>Period [%1s]:</source>
        <translation>周期 [%1s]：</translation>
    </message>
    <message>
        <source>Width [%1s]:</source>
        <translation>宽度 [%1s]：</translation>
    </message>
    <message>
        <source>Delay [%1s]:</source>
        <translation>延迟 [%1s]：</translation>
    </message>
    <message>
        <source>Freq. [Hz]:</source>
        <translation>频率 [Hz]：</translation>
    </message>
    <message>
        <source>Number of Pulses</source>
        <translation>脉冲数</translation>
    </message>
    <message>
        <source>Continious</source>
        <translation>连续</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Number of pulses</source>
        <translation>脉冲数</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>过程</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Granularity</source>
        <translation>粒度</translation>
    </message>
    <message>
        <source>Period in microseconds</source>
        <translation>周期（微秒）</translation>
    </message>
    <message>
        <source>Width in microseconds</source>
        <translation>宽度（微秒）</translation>
    </message>
    <message>
        <source>Delay in microseconds</source>
        <translation>延迟（微秒）</translation>
    </message>
    <message>
        <source>Frequency in hertz</source>
        <translation>频率（赫兹）</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigStrobeDialog</name>
    <message>
        <source>Strobe Control</source>
        <translation>频闪控制</translation>
    </message>
    <message>
        <source>Strobe 1</source>
        <translation>频闪 1</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>模式：</translation>
    </message>
    <message>
        <source>Reference:</source>
        <translation>参考：</translation>
    </message>
    <message>
        <source>Strobe 2</source>
        <translation>频闪 2</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Out1:</source>
        <translation>输出 1：</translation>
    </message>
    <message>
        <source>Polarity of output 1</source>
        <translation>输出 1 的极性</translation>
    </message>
    <message>
        <source>Signal on output 1</source>
        <translation>输出 1 的信号</translation>
    </message>
    <message>
        <source>Out2:</source>
        <translation>输出 2：</translation>
    </message>
    <message>
        <source>Polarity of output 2</source>
        <translation>输出 2 的极性</translation>
    </message>
    <message>
        <source>Signal on output 2</source>
        <translation>输出 2 的信号</translation>
    </message>
    <message>
        <source>Mode of strobe 1</source>
        <translation>频闪 1 的模式</translation>
    </message>
    <message>
        <source>Reference of strobe 1</source>
        <translation>频闪 1 的参考</translation>
    </message>
    <message>
        <source>Delay of strobe 1 in microseconds</source>
        <translation>频闪 1 的延迟（微秒）</translation>
    </message>
    <message>
        <source>Width of strobe 1 in microseconds</source>
        <translation>频闪 1 的宽度（微秒）</translation>
    </message>
    <message>
        <source>Mode of strobe 2</source>
        <translation>频闪 2 的模式</translation>
    </message>
    <message>
        <source>Reference of strobe 2</source>
        <translation>频闪 2 的参考</translation>
    </message>
    <message>
        <source>Delay of strobe 2 in microseconds</source>
        <translation>频闪 2 的延迟（微秒）</translation>
    </message>
    <message>
        <source>Width of strobe 2 in microseconds</source>
        <translation>频闪 2 的宽度（微秒）</translation>
    </message>
</context>
<context>
    <name>OrvCamConfigTriggerDialog</name>
    <message>
        <source>Trigger Control</source>
        <translation>触发控制</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Trigger Source:</source>
        <translation>触发源：</translation>
    </message>
    <message>
        <source>Edge:</source>
        <translation>边沿：</translation>
    </message>
    <message>
        <source>Debounce:</source>
        <translation>去抖动：</translation>
    </message>
    <message>
        <source>Software
Trigger</source>
        <translation>软件
触发</translation>
    </message>
    <message>
        <source>Enable the trigger</source>
        <translation>启用触发</translation>
    </message>
    <message>
        <source>Trigger source</source>
        <translation>触发源</translation>
    </message>
    <message>
        <source>Edge</source>
        <translation>边沿</translation>
    </message>
    <message>
        <source>Debounce</source>
        <translation>去抖动</translation>
    </message>
    <message>
        <source>Software trigger</source>
        <translation>软件触发</translation>
    </message>
</context>
<context>
    <name>OrvCameraSelectorDialog</name>
    <message>
        <source>Select camera</source>
        <translation>选择相机</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>&amp;Interface info</source>
        <translation>接口信息(&amp;I)</translation>
    </message>
    <message>
        <source>Interface info</source>
        <translation>接口信息</translation>
    </message>
    <message>
        <source>&amp;Device info</source>
        <translation>设备信息(&amp;D)</translation>
    </message>
    <message>
        <source>Device info</source>
        <translation>设备信息</translation>
    </message>
    <message>
        <source>Give the camera an IP address of its network adapter&apos;s subnet</source>
        <translation>为相机分配其网络适配器所在子网的 IP 地址</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>设置 IP 地址</translation>
    </message>
    <message>
        <source>Look for cameras that come and go, once a second</source>
        <translation>每秒查找一次接入和断开的相机</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>轮询</translation>
    </message>
</context>
<context>
    <name>OrvGui::ControlWatch</name>
    <message>
        <source>Not taken. The camera&apos;s value cannot be read.</source>
        <translation>未生效。无法读取相机的值。</translation>
    </message>
    <message>
        <source>Not taken. The camera has %1.</source>
        <translation>未生效。相机的值为 %1。</translation>
    </message>
    <message>
        <source>The camera&apos;s value is %1.</source>
        <translation>相机的值为 %1。</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfig</name>
    <message>
        <source>Select a device</source>
        <translation>选择设备</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened: %2</source>
        <translation>无法打开“%1”：%2</translation>
    </message>
    <message>
        <source>Not read at present: the camera shows &quot;%1&quot;</source>
        <translation>当前未读取：相机显示“%1”</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigAboutDialog</name>
    <message>
        <source>Copyright %1 %2, the authors of OrvCameraGuiApi</source>
        <translation>版权所有 %1 %2，OrvCameraGuiApi 作者</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>不适用</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigFrameABDialog</name>
    <message>
        <source>Dual Video
Line Time [pclk]:</source>
        <translation>双视频
行时间 [pclk]：</translation>
    </message>
    <message>
        <source>Line Time [pclk]:</source>
        <translation>行时间 [pclk]：</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>偏移 X：</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>偏移 Y：</translation>
    </message>
    <message>
        <source>Width: </source>
        <translation>宽度： </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度：</translation>
    </message>
    <message>
        <source>Digital Gain:</source>
        <translation>数字增益：</translation>
    </message>
    <message>
        <source>Black Level:</source>
        <translation>黑电平：</translation>
    </message>
    <message>
        <source>Exposure Time [%1s]:</source>
        <translation>曝光时间 [%1s]：</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigMapper</name>
    <message>
        <source>Unknown code</source>
        <translation>未知代码</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>找不到文件</translation>
    </message>
    <message>
        <source>File read error</source>
        <translation>文件读取错误</translation>
    </message>
    <message>
        <source>Wrong configuration</source>
        <translation>配置错误</translation>
    </message>
    <message>
        <source>Invalid index</source>
        <translation>无效的索引</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>没有设备</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>无效的参数值</translation>
    </message>
    <message>
        <source>Invalid state</source>
        <translation>无效的状态</translation>
    </message>
    <message>
        <source>Flash erase error</source>
        <translation>闪存擦除错误</translation>
    </message>
    <message>
        <source>GenICam: Generic error</source>
        <translation>GenICam：一般错误</translation>
    </message>
    <message>
        <source>GenICam: Tree error</source>
        <translation>GenICam：树错误</translation>
    </message>
    <message>
        <source>GenICam: Access error</source>
        <translation>GenICam：访问错误</translation>
    </message>
    <message>
        <source>GenICam: Parameter type is invalid</source>
        <translation>GenICam：参数类型无效</translation>
    </message>
    <message>
        <source>GenICam: Parameter is out of range</source>
        <translation>GenICam：参数超出范围</translation>
    </message>
    <message>
        <source>GenICam: Unknown param</source>
        <translation>GenICam：未知参数</translation>
    </message>
    <message>
        <source>GenICam: Invalid argument</source>
        <translation>GenICam：无效的参数值</translation>
    </message>
    <message>
        <source>Error while working with &apos;%1&apos; parameter!<byte value="xd"/>
Description: %2</source>
        <translation>处理参数“%1”时出错！<byte value="xd"/>
说明：%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigOutputDialog</name>
    <message>
        <source>Dyn.Thres.:</source>
        <translation>动态阈值：</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigPulseDialog</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Pulses</source>
        <translation>脉冲</translation>
    </message>
    <message>
        <source>Pulses are generated</source>
        <translation>正在生成脉冲</translation>
    </message>
    <message>
        <source>No pulses are generated</source>
        <translation>未生成脉冲</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCamConfigStrobeDialog</name>
    <message>
        <source>Both strobes count from the start of the readout</source>
        <translation>两路频闪均从读出开始时计时</translation>
    </message>
    <message>
        <source>Strobe 1 counts from the start of the readout, strobe 2 from that of the exposure</source>
        <translation>频闪 1 从读出开始时计时，频闪 2 从曝光开始时计时</translation>
    </message>
    <message>
        <source>Strobe 1 counts from the start of the exposure, strobe 2 from that of the readout</source>
        <translation>频闪 1 从曝光开始时计时，频闪 2 从读出开始时计时</translation>
    </message>
    <message>
        <source>Both strobes count from the start of the exposure</source>
        <translation>两路频闪均从曝光开始时计时</translation>
    </message>
    <message>
        <source>Delay [%1s]:</source>
        <translation>延迟 [%1s]：</translation>
    </message>
    <message>
        <source>Width [%1s]:</source>
        <translation>宽度 [%1s]：</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvCameraSelectorDialog</name>
    <message>
        <source>&amp;Rescan</source>
        <translation>重新扫描(&amp;R)</translation>
    </message>
    <message>
        <source>Look for cameras once, while polling is off</source>
        <translation>轮询关闭时查找一次相机</translation>
    </message>
    <message>
        <source>Set IP Address</source>
        <translation>设置 IP 地址</translation>
    </message>
    <message>
        <source>IP Configuration Warning</source>
        <translation>IP 配置警告</translation>
    </message>
    <message>
        <source>Specified IP Configuraion is not correct, camera may become undiscoverable
Press OK to skip the IP Configuration, or press Ignore to confirm</source>
        <translation>指定的 IP 配置不正确，可能导致无法发现相机。
按“确定”跳过 IP 配置，或按“忽略”确认。</translation>
    </message>
    <message>
        <source>Can&apos;t set IP address</source>
        <translation>无法设置 IP 地址</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvFeatureTreeTools</name>
    <message>
        <source>There is no feature &apos;%1&apos;.</source>
        <translation>没有特性“%1”。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not meant to be shown.</source>
        <translation>“%1”不用于显示。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is shown at the level %2.</source>
        <translation>“%1”在级别 %2 中显示。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is hidden by the filter.</source>
        <translation>“%1”被筛选隐藏。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not shown.</source>
        <translation>“%1”未显示。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not shown: %2.</source>
        <translation>“%1”未显示：%2。</translation>
    </message>
</context>
<context>
    <name>OrvGui::OrvGenParamTreeView</name>
    <message>
        <source>Clear filter</source>
        <translation>清除筛选</translation>
    </message>
    <message>
        <source>Filter options</source>
        <translation>筛选选项</translation>
    </message>
    <message>
        <source>There are errors</source>
        <translation>有错误</translation>
    </message>
    <message>
        <source>No errors</source>
        <translation>无错误</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
<context>
    <name>QtOrvSpinBox</name>
    <message>
        <source>Slider</source>
        <translation>滑块</translation>
    </message>
    <message>
        <source>%1 slider</source>
        <translation>%1 滑块</translation>
    </message>
</context>
<context>
    <name>SetIpDialog</name>
    <message>
        <source>Set IP Address</source>
        <translation>设置 IP 地址</translation>
    </message>
    <message>
        <source>Network Adapter IP Configuration</source>
        <translation>网络适配器 IP 配置</translation>
    </message>
    <message>
        <source>MAC Address        </source>
        <translation>MAC 地址        </translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>子网掩码</translation>
    </message>
    <message>
        <source>Camera IP Configuration</source>
        <translation>相机 IP 配置</translation>
    </message>
    <message>
        <source>IP &amp;Address</source>
        <translation>IP 地址(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Subnet Mask</source>
        <translation>子网掩码(&amp;S)</translation>
    </message>
    <message>
        <source>Default &amp;Gateway</source>
        <translation>默认网关(&amp;G)</translation>
    </message>
    <message>
        <source>Subnet mask mismatch!</source>
        <translation>子网掩码不匹配！</translation>
    </message>
    <message>
        <source>IP Configuration OK</source>
        <translation>IP 配置正确</translation>
    </message>
    <message>
        <source>Incorrect IP address!</source>
        <translation>IP 地址不正确！</translation>
    </message>
    <message>
        <source>Subnet IP mismatch!</source>
        <translation>IP 子网不匹配！</translation>
    </message>
    <message>
        <source>MAC address of the network adapter</source>
        <translation>网络适配器的 MAC 地址</translation>
    </message>
    <message>
        <source>IP address of the network adapter</source>
        <translation>网络适配器的 IP 地址</translation>
    </message>
    <message>
        <source>Subnet mask of the network adapter</source>
        <translation>网络适配器的子网掩码</translation>
    </message>
    <message>
        <source>MAC address of the camera</source>
        <translation>相机的 MAC 地址</translation>
    </message>
    <message>
        <source>IP address of the camera</source>
        <translation>相机的 IP 地址</translation>
    </message>
    <message>
        <source>Subnet mask of the camera</source>
        <translation>相机的子网掩码</translation>
    </message>
    <message>
        <source>Default gateway of the camera</source>
        <translation>相机的默认网关</translation>
    </message>
    <message>
        <source>The IP address is not complete.</source>
        <translation>IP 地址不完整。</translation>
    </message>
    <message>
        <source>The default gateway is not complete.</source>
        <translation>默认网关不完整。</translation>
    </message>
    <message>
        <source>The subnet mask is not complete.</source>
        <translation>子网掩码不完整。</translation>
    </message>
    <message>
        <source>This is the address of the subnet itself.</source>
        <translation>这是子网本身的地址。</translation>
    </message>
    <message>
        <source>This is the subnet&apos;s broadcast address.</source>
        <translation>这是子网的广播地址。</translation>
    </message>
    <message>
        <source>This is the gateway&apos;s address.</source>
        <translation>这是网关的地址。</translation>
    </message>
</context>
</TS>
