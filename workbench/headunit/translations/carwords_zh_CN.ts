<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CarWords</name>
    <message>
        <source>360 view</source>
        <translation>360 全景</translation>
    </message>
    <message>
        <source>A/C</source>
        <translation>A/C</translation>
    </message>
    <message>
        <source>A/C max</source>
        <translation>A/C 最大</translation>
    </message>
    <message>
        <source>Activated</source>
        <translation>已激活</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Advance warning</source>
        <translation>预警</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Amplifier</source>
        <translation>功放</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Angled</source>
        <translation>斜列</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Application none</source>
        <translation>无应用</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>辅助</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Auto compressor</source>
        <translation>自动压缩机</translation>
    </message>
    <message>
        <source>Auto heating driver</source>
        <translation>驾驶席自动加热</translation>
    </message>
    <message>
        <source>Auto heating passenger</source>
        <translation>副驾驶席自动加热</translation>
    </message>
    <message>
        <source>Auto lock</source>
        <translation>自动落锁</translation>
    </message>
    <message>
        <source>Auto recirculation</source>
        <translation>自动内循环</translation>
    </message>
    <message>
        <source>Auto unlock</source>
        <translation>自动解锁</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Average consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Backlight</source>
        <translation>背光</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>倒序</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>左右平衡</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>波段</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation>低音</translation>
    </message>
    <message>
        <source>Beyond</source>
        <translation>超出末尾</translation>
    </message>
    <message>
        <source>Blind spot</source>
        <translation>盲区</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Bonnet</source>
        <translation>发动机盖</translation>
    </message>
    <message>
        <source>Boot</source>
        <translation>后备厢</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>解码盒</translation>
    </message>
    <message>
        <source>Brake</source>
        <translation>制动</translation>
    </message>
    <message>
        <source>Brightest</source>
        <translation>最亮</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Cabin</source>
        <translation>车内</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>接听</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像头</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Car type</source>
        <translation>车型</translation>
    </message>
    <message>
        <source>Centerpoint</source>
        <translation>Centerpoint</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Circulation</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>净化</translation>
    </message>
    <message>
        <source>Climate</source>
        <translation>空调</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>近</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>舒适</translation>
    </message>
    <message>
        <source>Comfort curve</source>
        <translation>舒适曲线</translation>
    </message>
    <message>
        <source>Coming home</source>
        <translation>伴我回家</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>确认提示</translation>
    </message>
    <message>
        <source>Consumers</source>
        <translation>用电设备</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>油耗</translation>
    </message>
    <message>
        <source>Convenience</source>
        <translation>便利</translation>
    </message>
    <message>
        <source>Cursor down</source>
        <translation>光标 下</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>光标 左</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>光标 右</translation>
    </message>
    <message>
        <source>Cursor up</source>
        <translation>光标 上</translation>
    </message>
    <message>
        <source>Darkest</source>
        <translation>最暗</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>天数</translation>
    </message>
    <message>
        <source>Daytime</source>
        <translation>日间</translation>
    </message>
    <message>
        <source>Defrost</source>
        <translation>除霜</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>度数</translation>
    </message>
    <message>
        <source>Digit</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Dipped</source>
        <translation>近光灯</translation>
    </message>
    <message>
        <source>Dipped and fog</source>
        <translation>近光灯和后雾灯</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>Distance warning</source>
        <translation>车距警告</translation>
    </message>
    <message>
        <source>Doors</source>
        <translation>车门</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驾驶</translation>
    </message>
    <message>
        <source>Drive program</source>
        <translation>驾驶程序</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>驾驶员</translation>
    </message>
    <message>
        <source>Driver alert</source>
        <translation>疲劳提醒</translation>
    </message>
    <message>
        <source>Driver stage</source>
        <translation>驾驶席声场</translation>
    </message>
    <message>
        <source>Dual</source>
        <translation>双区</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>动态</translation>
    </message>
    <message>
        <source>ESC</source>
        <translation>ESC</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>早</translation>
    </message>
    <message>
        <source>Eco</source>
        <translation>经济</translation>
    </message>
    <message>
        <source>Eco tips</source>
        <translation>节能提示</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>弹出</translation>
    </message>
    <message>
        <source>Emergency</source>
        <translation>紧急呼叫</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>发动机</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英文</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Factory</source>
        <translation>原车画面</translation>
    </message>
    <message>
        <source>Fader</source>
        <translation>前后平衡</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>风量</translation>
    </message>
    <message>
        <source>Fan auto</source>
        <translation>自动风量</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>远</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>快速</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>First forward</source>
        <translation>首次前进挡</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Follow me</source>
        <translation>伴我回家</translation>
    </message>
    <message>
        <source>Footwell</source>
        <translation>脚部空间</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>快进</translation>
    </message>
    <message>
        <source>Forward gear</source>
        <translation>前进挡</translation>
    </message>
    <message>
        <source>Fresh air cycle</source>
        <translation>新风循环</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>前</translation>
    </message>
    <message>
        <source>Front and around</source>
        <translation>前方和环视</translation>
    </message>
    <message>
        <source>Front and left</source>
        <translation>前方和左侧</translation>
    </message>
    <message>
        <source>Front and right</source>
        <translation>前方和右侧</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Front service</source>
        <translation>前雨刮维护</translation>
    </message>
    <message>
        <source>Front tone</source>
        <translation>前部音调</translation>
    </message>
    <message>
        <source>Front volume</source>
        <translation>前部音量</translation>
    </message>
    <message>
        <source>Front window</source>
        <translation>前车窗</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>满载</translation>
    </message>
    <message>
        <source>Function call</source>
        <translation>功能 接听</translation>
    </message>
    <message>
        <source>Function forward</source>
        <translation>功能 快进</translation>
    </message>
    <message>
        <source>Function hangup</source>
        <translation>功能 挂断</translation>
    </message>
    <message>
        <source>Function next</source>
        <translation>功能 下一曲</translation>
    </message>
    <message>
        <source>Function previous</source>
        <translation>功能 上一曲</translation>
    </message>
    <message>
        <source>Function rewind</source>
        <translation>功能 快退</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>挡位</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>手刹</translation>
    </message>
    <message>
        <source>Hang up</source>
        <translation>挂断</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>车顶</translation>
    </message>
    <message>
        <source>Heating driver</source>
        <translation>驾驶席加热</translation>
    </message>
    <message>
        <source>Heating passenger</source>
        <translation>副驾驶席加热</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Hill descent</source>
        <translation>陡坡缓降</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Illumination</source>
        <translation>照明</translation>
    </message>
    <message>
        <source>In</source>
        <translation>内循环</translation>
    </message>
    <message>
        <source>Indicator</source>
        <translation>转向灯</translation>
    </message>
    <message>
        <source>Indicator volume</source>
        <translation>转向灯音量</translation>
    </message>
    <message>
        <source>Individual</source>
        <translation>个性化</translation>
    </message>
    <message>
        <source>Inspection</source>
        <translation>保养检查</translation>
    </message>
    <message>
        <source>Instruments</source>
        <translation>仪表</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>介绍</translation>
    </message>
    <message>
        <source>Ioniser</source>
        <translation>负离子</translation>
    </message>
    <message>
        <source>Ioniser at start</source>
        <translation>启动时开负离子</translation>
    </message>
    <message>
        <source>Ioniser mode</source>
        <translation>负离子模式</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Key form</source>
        <translation>按键格式</translation>
    </message>
    <message>
        <source>Key position</source>
        <translation>钥匙座椅位置</translation>
    </message>
    <message>
        <source>Known</source>
        <translation>已知</translation>
    </message>
    <message>
        <source>Lane</source>
        <translation>车道</translation>
    </message>
    <message>
        <source>Lane change</source>
        <translation>变道</translation>
    </message>
    <message>
        <source>Lane departure</source>
        <translation>车道偏离</translation>
    </message>
    <message>
        <source>Lane keeping</source>
        <translation>车道保持</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Last distance</source>
        <translation>上次车距</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>晚</translation>
    </message>
    <message>
        <source>Leaving home</source>
        <translation>离家照明</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Left indicator</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Left mirror</source>
        <translation>左后视镜</translation>
    </message>
    <message>
        <source>Left step</source>
        <translation>左侧挡位</translation>
    </message>
    <message>
        <source>Lids</source>
        <translation>箱盖</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>Lighting</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>载荷</translation>
    </message>
    <message>
        <source>Lock sound</source>
        <translation>锁车提示音</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>长</translation>
    </message>
    <message>
        <source>Long term</source>
        <translation>长期</translation>
    </message>
    <message>
        <source>Loss</source>
        <translation>漏气</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Lower reversing</source>
        <translation>倒车下翻</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>记忆</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Mirrors</source>
        <translation>后视镜</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Motorway</source>
        <translation>高速公路</translation>
    </message>
    <message>
        <source>Moving object</source>
        <translation>移动物体</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一曲</translation>
    </message>
    <message>
        <source>Night brightness</source>
        <translation>夜间亮度</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>无信号</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Offroad</source>
        <translation>越野</translation>
    </message>
    <message>
        <source>Offroad climate</source>
        <translation>越野空调</translation>
    </message>
    <message>
        <source>Offroad individual</source>
        <translation>越野个性化</translation>
    </message>
    <message>
        <source>Oil</source>
        <translation>机油</translation>
    </message>
    <message>
        <source>Oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>外循环</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>车外</translation>
    </message>
    <message>
        <source>PA</source>
        <translation>PA</translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation>平行</translation>
    </message>
    <message>
        <source>Parallel parking</source>
        <translation>侧方停车</translation>
    </message>
    <message>
        <source>Parking</source>
        <translation>泊车</translation>
    </message>
    <message>
        <source>Parking picture</source>
        <translation>泊车画面</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Perpendicular parking</source>
        <translation>垂直停车</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>电话</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>电源</translation>
    </message>
    <message>
        <source>Power time</source>
        <translation>供电时间</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>压力</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一曲</translation>
    </message>
    <message>
        <source>Radar</source>
        <translation>雷达</translation>
    </message>
    <message>
        <source>Radar maxima</source>
        <translation>雷达最大值</translation>
    </message>
    <message>
        <source>Radar sound</source>
        <translation>雷达声音</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>雨</translation>
    </message>
    <message>
        <source>Rain wiping</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>续航</translation>
    </message>
    <message>
        <source>Rear</source>
        <translation>后</translation>
    </message>
    <message>
        <source>Rear and around</source>
        <translation>后方和环视</translation>
    </message>
    <message>
        <source>Rear and left</source>
        <translation>后方和左侧</translation>
    </message>
    <message>
        <source>Rear and right</source>
        <translation>后方和右侧</translation>
    </message>
    <message>
        <source>Rear defrost</source>
        <translation>后窗除霜</translation>
    </message>
    <message>
        <source>Rear left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Rear reversing</source>
        <translation>倒车后雨刮</translation>
    </message>
    <message>
        <source>Rear right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Rear seat</source>
        <translation>后排</translation>
    </message>
    <message>
        <source>Rear tone</source>
        <translation>后部音调</translation>
    </message>
    <message>
        <source>Rear volume</source>
        <translation>后部音量</translation>
    </message>
    <message>
        <source>Rear window</source>
        <translation>后车窗</translation>
    </message>
    <message>
        <source>Rear wiping</source>
        <translation>后雨刮</translation>
    </message>
    <message>
        <source>Reasons</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Relax</source>
        <translation>放松</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>遥控</translation>
    </message>
    <message>
        <source>Remote key</source>
        <translation>遥控钥匙</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>快退</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Right indicator</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Right mirror</source>
        <translation>右后视镜</translation>
    </message>
    <message>
        <source>Right step</source>
        <translation>右侧挡位</translation>
    </message>
    <message>
        <source>Roller down</source>
        <translation>滚轮向下</translation>
    </message>
    <message>
        <source>Roller up</source>
        <translation>滚轮向上</translation>
    </message>
    <message>
        <source>SOS</source>
        <translation>SOS</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>刻度</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>扫描</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>座椅</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>感应</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>保养</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>短</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>单侧</translation>
    </message>
    <message>
        <source>Since refuel</source>
        <translation>加油以来</translation>
    </message>
    <message>
        <source>Since start</source>
        <translation>启动以来</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>单门</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>慢速</translation>
    </message>
    <message>
        <source>Smart entry</source>
        <translation>智能进入</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>雪地</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>柔和</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>车速</translation>
    </message>
    <message>
        <source>Speed limit</source>
        <translation>限速提醒</translation>
    </message>
    <message>
        <source>Speed lock</source>
        <translation>行车落锁</translation>
    </message>
    <message>
        <source>Speed volume</source>
        <translation>随速音量</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>车速警告</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Start animation</source>
        <translation>启动动画</translation>
    </message>
    <message>
        <source>Start time</source>
        <translation>启动时间</translation>
    </message>
    <message>
        <source>Start-stop</source>
        <translation>启停</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>启动中</translation>
    </message>
    <message>
        <source>Steering</source>
        <translation>转向</translation>
    </message>
    <message>
        <source>Steering mode</source>
        <translation>转向模式</translation>
    </message>
    <message>
        <source>Steering wheel</source>
        <translation>方向盘</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>挡位</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Sunroof</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Surround</source>
        <translation>环绕</translation>
    </message>
    <message>
        <source>Switch on</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Synchronous</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Tailgate</source>
        <translation>尾门</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>To face</source>
        <translation>吹面</translation>
    </message>
    <message>
        <source>To feet</source>
        <translation>吹脚</translation>
    </message>
    <message>
        <source>To window</source>
        <translation>吹窗</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>交通</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>高音</translation>
    </message>
    <message>
        <source>Trip</source>
        <translation>行程</translation>
    </message>
    <message>
        <source>Tune knob left</source>
        <translation>调谐旋钮 左</translation>
    </message>
    <message>
        <source>Tune knob right</source>
        <translation>调谐旋钮 右</translation>
    </message>
    <message>
        <source>Turning fog</source>
        <translation>转弯雾灯</translation>
    </message>
    <message>
        <source>Twice</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>Tyres</source>
        <translation>轮胎</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Vehicle number</source>
        <translation>车辆识别号</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Very close</source>
        <translation>很近</translation>
    </message>
    <message>
        <source>Very far</source>
        <translation>很远</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>语音</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>容积</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>音量减</translation>
    </message>
    <message>
        <source>Volume knob down</source>
        <translation>音量旋钮 减</translation>
    </message>
    <message>
        <source>Volume knob up</source>
        <translation>音量旋钮 加</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>音量加</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Warning volume</source>
        <translation>警告音量</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>方式</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>迎宾</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Window and roof</source>
        <translation>车窗和天窗</translation>
    </message>
    <message>
        <source>Wiper position</source>
        <translation>雨刮位置</translation>
    </message>
    <message>
        <source>Wipers</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>Wish AM</source>
        <translation>请求 AM</translation>
    </message>
    <message>
        <source>Wish AUX</source>
        <translation>请求 AUX</translation>
    </message>
    <message>
        <source>Wish Bluetooth</source>
        <translation>请求蓝牙</translation>
    </message>
    <message>
        <source>Wish CD</source>
        <translation>请求 CD</translation>
    </message>
    <message>
        <source>Wish FM</source>
        <translation>请求 FM</translation>
    </message>
    <message>
        <source>Wish USB</source>
        <translation>请求 USB</translation>
    </message>
    <message>
        <source>Wish answer</source>
        <translation>请求接听</translation>
    </message>
    <message>
        <source>Wish refuse</source>
        <translation>请求拒接</translation>
    </message>
    <message>
        <source>°C</source>
        <translation>°C</translation>
    </message>
    <message>
        <source>°F</source>
        <translation>°F</translation>
    </message>
</context>
</TS>
