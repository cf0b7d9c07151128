<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AppPage</name>
    <message>
        <source>This picture comes from the car.</source>
        <translation>此画面来自车辆。</translation>
    </message>
</context>
<context>
    <name>BitGrid</name>
    <message>
        <source>The bits are being tried out ...</source>
        <translation>正在逐位测试……</translation>
    </message>
    <message>
        <source>The bits could not be tried out.</source>
        <translation>无法逐位测试。</translation>
    </message>
    <message>
        <source>Bits of a package</source>
        <translation>数据包的各位</translation>
    </message>
    <message>
        <source>Package 0x%1 of %2</source>
        <translation>%2 的数据包 0x%1</translation>
    </message>
</context>
<context>
    <name>BitGridPicture</name>
    <message>
        <source>no effect</source>
        <translation>无作用</translation>
    </message>
    <message>
        <source>only together with %1</source>
        <translation>仅与 %1 一起有效</translation>
    </message>
    <message>
        <source>depends on what the car said before</source>
        <translation>取决于车辆之前的报告</translation>
    </message>
</context>
<context>
    <name>BoxKeysPage</name>
    <message>
        <source>Keys on the steering wheel</source>
        <translation>方向盘按键</translation>
    </message>
    <message>
        <source>Keys on the car&apos;s panel</source>
        <translation>原车面板按键</translation>
    </message>
    <message>
        <source>This car has no keys</source>
        <translation>此车没有按键</translation>
    </message>
    <message>
        <source>Knobs</source>
        <translation>旋钮</translation>
    </message>
</context>
<context>
    <name>BoxPage</name>
    <message>
        <source>Scenario</source>
        <translation>场景</translation>
    </message>
    <message>
        <source>Scenarios (*.scn)</source>
        <translation>场景 (*.scn)</translation>
    </message>
    <message>
        <source>Waits for the unit&apos;s ready</source>
        <translation>等待主机就绪</translation>
    </message>
    <message>
        <source>Talks with the unit</source>
        <translation>正在与主机通信</translation>
    </message>
    <message>
        <source>Silent: the unit did not acknowledge</source>
        <translation>静默：主机未应答</translation>
    </message>
    <message>
        <source>The unit has not opened the port</source>
        <translation>主机尚未打开端口</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>暂无</translation>
    </message>
    <message>
        <source>Box at %1</source>
        <translation>解码盒位于 %1</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Open ...</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>None chosen</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>%1 plays</source>
        <translation>正在播放 %1</translation>
    </message>
    <message>
        <source>Line faults</source>
        <translation>线路故障</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>噪声</translation>
    </message>
    <message>
        <source>Cut a package</source>
        <translation>截断数据包</translation>
    </message>
    <message>
        <source>Corrupt a package</source>
        <translation>损坏数据包</translation>
    </message>
    <message>
        <source>Silence, 3 s</source>
        <translation>静默 3 秒</translation>
    </message>
    <message>
        <source>What the unit told the box</source>
        <translation>主机发送的内容</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>线路日志</translation>
    </message>
    <message>
        <source>Flip a bit</source>
        <translation>翻转一位</translation>
    </message>
    <message>
        <source>Lose a byte</source>
        <translation>丢失一个字节</translation>
    </message>
    <message>
        <source>Double a byte</source>
        <translation>重复一个字节</translation>
    </message>
    <message>
        <source>Wrong length</source>
        <translation>错误长度</translation>
    </message>
    <message>
        <source>Stall, 300 ms</source>
        <translation>停顿 300 毫秒</translation>
    </message>
    <message>
        <source>Garbage</source>
        <translation>乱码</translation>
    </message>
    <message>
        <source>Late answer</source>
        <translation>延迟应答</translation>
    </message>
    <message>
        <source>Cut the update</source>
        <translation>中断升级</translation>
    </message>
    <message>
        <source>Pull the line</source>
        <translation>拔出线路</translation>
    </message>
    <message>
        <source>Plug it in</source>
        <translation>重新插入</translation>
    </message>
    <message>
        <source>Bad line</source>
        <translation>线路不良</translation>
    </message>
    <message>
        <source>Good line</source>
        <translation>线路良好</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Silent by order</source>
        <translation>按指令静默</translation>
    </message>
</context>
<context>
    <name>CarPage</name>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Mid left</source>
        <translation>左中</translation>
    </message>
    <message>
        <source>Mid right</source>
        <translation>右中</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
</context>
<context>
    <name>CarPicker</name>
    <message>
        <source>Which car?</source>
        <translation>哪款车？</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Virtual box</source>
        <translation>虚拟盒</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The decoder that is fitted</source>
        <translation>已安装的解码盒</translation>
    </message>
    <message>
        <source>Its line: a virtual box, or a serial device of this computer</source>
        <translation>线路：虚拟盒，或本机的串口设备</translation>
    </message>
    <message>
        <source>%1 (no virtual box)</source>
        <translation>%1（无虚拟盒）</translation>
    </message>
</context>
<context>
    <name>CarView</name>
    <message>
        <source>Front left door open</source>
        <translation>左前门未关</translation>
    </message>
    <message>
        <source>Front right door open</source>
        <translation>右前门未关</translation>
    </message>
    <message>
        <source>Rear left door open</source>
        <translation>左后门未关</translation>
    </message>
    <message>
        <source>Rear right door open</source>
        <translation>右后门未关</translation>
    </message>
    <message>
        <source>Doors open</source>
        <translation>车门未关</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停车</translation>
    </message>
    <message>
        <source>All doors closed</source>
        <translation>车门已全部关闭</translation>
    </message>
    <message>
        <source>Steering %1°</source>
        <translation>转向 %1°</translation>
    </message>
    <message>
        <source>Doors not reported</source>
        <translation>车门未上报</translation>
    </message>
    <message>
        <source>The car has reported nothing yet</source>
        <translation>车辆尚未上报任何信息</translation>
    </message>
</context>
<context>
    <name>DeskWindow</name>
    <message>
        <source>Head unit on the desk</source>
        <translation>桌面主机</translation>
    </message>
    <message>
        <source>Not sure: %1</source>
        <translation>不确定：%1</translation>
    </message>
    <message>
        <source>Hello said: the box was sent the ready command</source>
        <translation>已问候：已向盒子发送就绪命令</translation>
    </message>
    <message>
        <source>There is no open line to say hello on</source>
        <translation>没有已打开的线路</translation>
    </message>
    <message>
        <source>Saved the last 60 s: %1</source>
        <translation>已保存最近 60 秒：%1</translation>
    </message>
    <message>
        <source>Show the panel (F9)</source>
        <translation>显示面板 (F9)</translation>
    </message>
    <message>
        <source>Fold the panel away (F9)</source>
        <translation>收起面板 (F9)</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Keep the filter</source>
        <translation>保留筛选</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>筛选：%1</translation>
    </message>
    <message>
        <source>All words must fit: cmd=0x28, cmd=climate, dir=in, bad, changed, explained, call=set*, screen=Air*, hex=2e28, d2=0x1f, d0.6=1, ack&gt;20, ack=none, t&lt;9.5; ! turns a word round</source>
        <translation>所有词都须符合：cmd=0x28、cmd=climate、dir=in、bad、changed、explained、call=set*、screen=Air*、hex=2e28、d2=0x1f、d0.6=1、ack&gt;20、ack=none、t&lt;9.5；! 表示取反</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Keeps this filter under a name</source>
        <translation>以名称保留此筛选</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Forgets the kept filter</source>
        <translation>删除已保留的筛选</translation>
    </message>
    <message>
        <source>Unexplained</source>
        <translation>未解释</translation>
    </message>
    <message>
        <source>Hides what is explained</source>
        <translation>隐藏已解释的内容</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>变化</translation>
    </message>
    <message>
        <source>Hides packages that are as the one of their command before</source>
        <translation>隐藏与同命令上一包相同的包</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>InspectionFilter</name>
    <message>
        <source>a command is at most 0xff, not %1</source>
        <translation>命令最大为 0xff，而不是 %1</translation>
    </message>
    <message>
        <source>dir= takes in or out, not &apos;%1&apos;</source>
        <translation>dir= 只能是 in 或 out，而不是“%1”</translation>
    </message>
    <message>
        <source>hex= takes pairs of hexadecimal digits, not &apos;%1&apos;</source>
        <translation>hex= 需要成对的十六进制数字，而不是“%1”</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes a byte</source>
        <translation>“%1”需要一个字节</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes a bit 0 to 7 and 0 or 1</source>
        <translation>“%1”需要 0 到 7 的位以及 0 或 1</translation>
    </message>
    <message>
        <source>ack takes &lt; or &gt; and milliseconds, or =none</source>
        <translation>ack 需要 &lt; 或 &gt; 加毫秒数，或 =none</translation>
    </message>
    <message>
        <source>t takes &lt; or &gt; and seconds</source>
        <translation>t 需要 &lt; 或 &gt; 加秒数</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lacks its value</source>
        <translation>“%1”缺少值</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no word of a filter; there are %2</source>
        <translation>“%1”不是筛选词；可用的有 %2</translation>
    </message>
</context>
<context>
    <name>InspectionModel</name>
    <message>
        <source>Time, s</source>
        <translation>时间，秒</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>数据包</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>应答</translation>
    </message>
    <message>
        <source>Caused</source>
        <translation>引起</translation>
    </message>
    <message>
        <source>BAD %1</source>
        <translation>错误 %1</translation>
    </message>
    <message>
        <source>NO PACKAGE</source>
        <translation>非数据包</translation>
    </message>
    <message>
        <source>LINE</source>
        <translation>线路</translation>
    </message>
    <message>
        <source>CALL</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>按键</translation>
    </message>
</context>
<context>
    <name>InspectorView</name>
    <message>
        <source>Choose a package to see all of it.</source>
        <translation>选择一个数据包以查看详情。</translation>
    </message>
    <message>
        <source>answered in %1</source>
        <translation>%1 内应答</translation>
    </message>
    <message>
        <source>Further calls: %1</source>
        <translation>其余调用：%1</translation>
    </message>
    <message>
        <source>The unit made nothing of it</source>
        <translation>主机未作处理</translation>
    </message>
    <message>
        <source>The unit did not take it</source>
        <translation>主机未接收</translation>
    </message>
    <message>
        <source>Calls: %1</source>
        <translation>调用：%1</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Search: 2e 21, setTemperature, climate</source>
        <translation>搜索：2e 21、setTemperature、climate</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Calls and rates as well (F8)</source>
        <translation>还有调用和频率（F8）</translation>
    </message>
    <message>
        <source>Calls (a click goes to the package)</source>
        <translation>调用（点击转到数据包）</translation>
    </message>
    <message>
        <source>Commands (a double click filters)</source>
        <translation>命令（双击筛选）</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>per s</source>
        <translation>每秒</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>变化</translation>
    </message>
    <message>
        <source>Bad</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Bits</source>
        <translation>位</translation>
    </message>
    <message>
        <source>What each bit of the chosen package does</source>
        <translation>所选数据包中每一位的作用</translation>
    </message>
</context>
<context>
    <name>KeyCard</name>
    <message>
        <source>Last key</source>
        <translation>最近的按键</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>尚无</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>按键 %1</translation>
    </message>
    <message>
        <source>held, %1×</source>
        <translation>按住，%1 次</translation>
    </message>
</context>
<context>
    <name>KeyTesterCard</name>
    <message>
        <source>%1 %2 has been down for %3 s and does not come up</source>
        <translation>%1 %2 已按下 %3 秒且未松开</translation>
    </message>
    <message>
        <source>no press</source>
        <translation>无按下</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Steering wheel</source>
        <translation>方向盘</translation>
    </message>
    <message>
        <source>Car&apos;s panel</source>
        <translation>汽车面板</translation>
    </message>
    <message>
        <source>Knob</source>
        <translation>旋钮</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>主机</translation>
    </message>
    <message>
        <source>Pressed at %1 s, held %2 times</source>
        <translation>%1 秒按下，保持 %2 次</translation>
    </message>
    <message>
        <source>Still down</source>
        <translation>仍按下</translation>
    </message>
    <message>
        <source>Came up at %1 s</source>
        <translation>%1 秒松开</translation>
    </message>
    <message>
        <source>Becomes: %1</source>
        <translation>变为：%1</translation>
    </message>
    <message>
        <source>After redefinition: %1</source>
        <translation>重定义后：%1</translation>
    </message>
    <message>
        <source>the same</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>Key tester</source>
        <translation>按键测试</translation>
    </message>
    <message>
        <source>Press each key of the car, or of the unit, once: here stands what becomes of it.</source>
        <translation>将汽车或主机的每个按键按一次：此处显示其结果。</translation>
    </message>
    <message>
        <source>Copy as a key table</source>
        <translation>复制为按键表</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Pressed, s</source>
        <translation>按下，秒</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Becomes</source>
        <translation>变为</translation>
    </message>
</context>
<context>
    <name>LinePage</name>
    <message>
        <source>Line</source>
        <translation>线路</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>线路 %1</translation>
    </message>
    <message>
        <source>Packages: %1, %2 a second</source>
        <translation>数据包：%1，每秒 %2</translation>
    </message>
    <message>
        <source>Last package: %1</source>
        <translation>最近的数据包：%1</translation>
    </message>
    <message>
        <source>Acknowledged in: %1</source>
        <translation>应答用时：%1</translation>
    </message>
    <message>
        <source>Bad checksums: %1</source>
        <translation>校验和错误：%1</translation>
    </message>
    <message>
        <source>Skipped bytes: %1</source>
        <translation>跳过的字节：%1</translation>
    </message>
    <message>
        <source>Repetitions: %1</source>
        <translation>重复：%1</translation>
    </message>
    <message>
        <source>Say hello</source>
        <translation>问候</translation>
    </message>
    <message>
        <source>Sends the box the ready command again</source>
        <translation>再次向盒子发送就绪命令</translation>
    </message>
    <message>
        <source>Save 60 s</source>
        <translation>保存 60 秒</translation>
    </message>
    <message>
        <source>Line log</source>
        <translation>线路日志</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>检查器</translation>
    </message>
</context>
<context>
    <name>LineStatus</name>
    <message>
        <source>the serial library in use tells nothing</source>
        <translation>所用的串口库不提供信息</translation>
    </message>
    <message>
        <source>the unit has opened no line</source>
        <translation>主机未打开线路</translation>
    </message>
    <message>
        <source>no such device</source>
        <translation>没有该设备</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>no permission: join the group %1</source>
        <translation>没有权限：请加入用户组 %1</translation>
    </message>
    <message>
        <source>in use by another process</source>
        <translation>被其他进程占用</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>被 %1 占用</translation>
    </message>
    <message>
        <source>no serial device</source>
        <translation>不是串口设备</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>无法打开：%1</translation>
    </message>
    <message>
        <source>line lost: was the adapter pulled out?</source>
        <translation>线路丢失：适配器被拔出了吗？</translation>
    </message>
    <message>
        <source>bytes but no packages: other baud rate?</source>
        <translation>有字节但无数据包：波特率不对？</translation>
    </message>
    <message>
        <source>waiting for the box&apos;s first word</source>
        <translation>等待盒子的第一条消息</translation>
    </message>
    <message>
        <source>talking</source>
        <translation>通信中</translation>
    </message>
    <message>
        <source>silent for %1 s</source>
        <translation>已静默 %1 秒</translation>
    </message>
    <message>
        <source>unit too slow: box repeats</source>
        <translation>主机太慢：盒子在重发</translation>
    </message>
    <message>
        <source>box stopped</source>
        <translation>盒子已停止</translation>
    </message>
    <message>
        <source>box silent by order</source>
        <translation>盒子按指令静默</translation>
    </message>
</context>
<context>
    <name>LineStrip</name>
    <message>
        <source>Save the last 60 s</source>
        <translation>保存最近 60 秒</translation>
    </message>
</context>
<context>
    <name>LineWords</name>
    <message>
        <source>%1 packages/s</source>
        <translation>%1 包/秒</translation>
    </message>
    <message>
        <source>%1 bad</source>
        <translation>%1 个错误</translation>
    </message>
    <message>
        <source>%1 bytes skipped</source>
        <translation>跳过 %1 字节</translation>
    </message>
    <message>
        <source>%1 repeated</source>
        <translation>重复 %1</translation>
    </message>
    <message>
        <source>answered in %1</source>
        <translation>应答 %1</translation>
    </message>
    <message>
        <source>never</source>
        <translation>从未</translation>
    </message>
    <message>
        <source>%1 s ago</source>
        <translation>%1 秒前</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>尚无</translation>
    </message>
</context>
<context>
    <name>ObservationWords</name>
    <message>
        <source>Source</source>
        <translation>音源</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音效</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>时钟</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像头</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>收音机</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>蓝牙</translation>
    </message>
    <message>
        <source>another one</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>ReplayCard</name>
    <message>
        <source>%1 s of the log, %2 packages</source>
        <translation>记录的第 %1 秒，%2 个数据包</translation>
    </message>
    <message>
        <source>Replay: at its end</source>
        <translation>回放：已结束</translation>
    </message>
    <message>
        <source>Replay: paused</source>
        <translation>回放：已暂停</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>回放</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>空格键</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>单步</translation>
    </message>
    <message>
        <source>Plays the next bytes and pauses (full stop)</source>
        <translation>播放下一段字节并暂停（句点键）</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Car</source>
        <translation>车辆</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>解码盒</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>主机</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线路</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
</context>
<context>
    <name>UnitControls</name>
    <message>
        <source>Radio</source>
        <translation>收音机</translation>
    </message>
    <message>
        <source>USB music</source>
        <translation>USB 音乐</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>蓝牙</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>导航</translation>
    </message>
    <message>
        <source>In a call</source>
        <translation>通话中</translation>
    </message>
    <message>
        <source>Listening …</source>
        <translation>正在聆听…</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>已静音</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>音量 %1</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>曲目 %1</translation>
    </message>
    <message>
        <source>Plays</source>
        <translation>正在播放</translation>
    </message>
    <message>
        <source>Pauses</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>No call</source>
        <translation>无通话</translation>
    </message>
    <message>
        <source>For the window in front</source>
        <translation>传给最前面的窗口</translation>
    </message>
    <message>
        <source>No effect on the desk</source>
        <translation>桌面不处理此键</translation>
    </message>
</context>
<context>
    <name>UnitKey</name>
    <message>
        <source>Vol −</source>
        <translation>音量−</translation>
    </message>
    <message>
        <source>Vol +</source>
        <translation>音量+</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一曲</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一曲</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>快退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>快进</translation>
    </message>
    <message>
        <source>Previous track</source>
        <translation>上一曲目</translation>
    </message>
    <message>
        <source>Next track</source>
        <translation>下一曲目</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Play/pause</source>
        <translation>播放/暂停</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>语音</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>接听</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>挂断</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
</context>
<context>
    <name>UnitPage</name>
    <message>
        <source>Folder behind the disk</source>
        <translation>磁盘对应的文件夹</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>U 盘</translation>
    </message>
    <message>
        <source>Choose the folder that is on the disk.</source>
        <translation>请选择 U 盘中的文件夹。</translation>
    </message>
    <message>
        <source>Plugged in: %1</source>
        <translation>已插入：%1</translation>
    </message>
    <message>
        <source>Pulled out: %1</source>
        <translation>已拔出：%1</translation>
    </message>
    <message>
        <source>Folder ...</source>
        <translation>文件夹…</translation>
    </message>
    <message>
        <source>Pull out</source>
        <translation>拔出</translation>
    </message>
    <message>
        <source>Put in</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
</context>
<context>
    <name>UnitShell</name>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Application %1</source>
        <translation>应用 %1</translation>
    </message>
</context>
</TS>
