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
</context>
<context>
    <name>DeskWindow</name>
    <message>
        <source>Head unit on the desk</source>
        <translation>桌面主机</translation>
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
