<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CanBus_Raise_Volkswagen</name>
    <message>
        <source>Car infos</source>
        <translation>车辆信息</translation>
    </message>
</context>
<context>
    <name>SelectDialog</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>VWFunctionSetting</name>
    <message>
        <source>Factory settings</source>
        <translation>出厂设置</translation>
    </message>
    <message>
        <source>Are you sure restore</source>
        <translation>确定要将</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>恢复到出厂状态吗</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>行车数据</translation>
    </message>
    <message>
        <source>Are you sure </source>
        <translation>确定要</translation>
    </message>
    <message>
        <source>The car has not told its value</source>
        <translation>车辆尚未报告当前值</translation>
    </message>
    <message>
        <source>%1 %2 %3 ?</source>
        <translation>%1“%2”%3？</translation>
    </message>
    <message>
        <source>?</source>
        <translation>吗？</translation>
    </message>
</context>
<context>
    <name>VolkswagenWindow</name>
    <message>
        <source>Car infos</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>行车数据</translation>
    </message>
    <message>
        <source>Tire pressure</source>
        <translation>胎压</translation>
    </message>
    <message>
        <source>Car status</source>
        <translation>车辆状态</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>油耗</translation>
    </message>
    <message>
        <source>Avg. consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>里程</translation>
    </message>
    <message>
        <source>Avg. speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Tire pressure status</source>
        <translation>胎压状态</translation>
    </message>
    <message>
        <source>Since start</source>
        <translation>启动以来</translation>
    </message>
    <message>
        <source>Since refueling</source>
        <translation>加油以来</translation>
    </message>
    <message>
        <source>Long-term</source>
        <translation>长期</translation>
    </message>
    <message>
        <source>Normal pressure</source>
        <translation>胎压正常</translation>
    </message>
    <message>
        <source>Low pressure</source>
        <translation>胎压过低</translation>
    </message>
    <message>
        <source>Hight pressure</source>
        <translation>胎压过高</translation>
    </message>
    <message>
        <source>Tire pressure is normal</source>
        <translation>胎压正常</translation>
    </message>
    <message>
        <source>Please check the tire pressure</source>
        <translation>请检查胎压</translation>
    </message>
    <message>
        <source>Tire pressure is too low</source>
        <translation>胎压过低</translation>
    </message>
    <message>
        <source>Tire pressure loss</source>
        <translation>轮胎漏气</translation>
    </message>
    <message>
        <source>mi</source>
        <translation>mi</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>L/100km</source>
        <translation>L/100km</translation>
    </message>
    <message>
        <source>km/L</source>
        <translation>km/L</translation>
    </message>
    <message>
        <source>mph(UK)</source>
        <translation>mpg(UK)</translation>
    </message>
    <message>
        <source>mph(US)</source>
        <translation>mpg(US)</translation>
    </message>
    <message>
        <source>Service overdue</source>
        <translation>保养已逾期</translation>
    </message>
    <message>
        <source>Time (h:min)</source>
        <translation>行驶时间（时:分）</translation>
    </message>
    <message>
        <source>not in this car</source>
        <translation>本车不支持</translation>
    </message>
</context>
<context>
    <name>Vw</name>
    <message>
        <source>No entries available</source>
        <translation>没有记录</translation>
    </message>
    <message>
        <source>overdue by</source>
        <translation>已超过</translation>
    </message>
    <message>
        <source>Start-stop system is deactivated</source>
        <translation>启停系统已关闭</translation>
    </message>
    <message>
        <source>Start-stop system is activated</source>
        <translation>启停系统已激活</translation>
    </message>
    <message>
        <source>Report code</source>
        <translation>报告代码</translation>
    </message>
    <message>
        <source>days</source>
        <translation>天</translation>
    </message>
    <message>
        <source>mi</source>
        <translation>mi</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Activated</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>ESC sport</source>
        <translation>ESC运动</translation>
    </message>
    <message>
        <source>Esc system</source>
        <translation>ESC系统</translation>
    </message>
    <message>
        <source>Tyres</source>
        <translation>轮胎</translation>
    </message>
    <message>
        <source>Driver assistance</source>
        <translation>驾驶辅助</translation>
    </message>
    <message>
        <source>Parking and manoeuvring</source>
        <translation>泊车和挪车</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>Mirrors and wipers</source>
        <translation>后视镜和雨刮器</translation>
    </message>
    <message>
        <source>Opening and closing</source>
        <translation>打开和关闭</translation>
    </message>
    <message>
        <source>Multifunction display</source>
        <translation>多功能显示</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>保养</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Seat driver profile</source>
        <translation>座椅和驾驶员配置</translation>
    </message>
    <message>
        <source>Vehice status Start-stop</source>
        <translation>车辆状态：启停系统</translation>
    </message>
    <message>
        <source>Vehice status reports</source>
        <translation>车辆状态：报告</translation>
    </message>
    <message>
        <source>Convenience consumer</source>
        <translation>舒适用电器</translation>
    </message>
    <message>
        <source>Factory settings</source>
        <translation>出厂设置</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>Comfortable</source>
        <translation>舒适</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Full load</source>
        <translation>满载</translation>
    </message>
    <message>
        <source>Speed warning</source>
        <translation>车速警告</translation>
    </message>
    <message>
        <source>Warning speed</source>
        <translation>警告车速</translation>
    </message>
    <message>
        <source>TPMS SET</source>
        <translation>胎压设定</translation>
    </message>
    <message>
        <source>Direct tyres pressure monitoring</source>
        <translation>直接式胎压监测</translation>
    </message>
    <message>
        <source>Eco</source>
        <translation>经济</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>Very close</source>
        <translation>很近</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>近</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>远</translation>
    </message>
    <message>
        <source>Very far</source>
        <translation>很远</translation>
    </message>
    <message>
        <source>Lane assist</source>
        <translation>车道辅助</translation>
    </message>
    <message>
        <source>Lane keeping assist system</source>
        <translation>车道保持辅助系统</translation>
    </message>
    <message>
        <source>Driver alert system</source>
        <translation>驾驶员疲劳监测</translation>
    </message>
    <message>
        <source>Front assist</source>
        <translation>前部辅助</translation>
    </message>
    <message>
        <source>Advance warning</source>
        <translation>预警</translation>
    </message>
    <message>
        <source>Display distance warning</source>
        <translation>显示车距警告</translation>
    </message>
    <message>
        <source>Adaptive cruise control</source>
        <translation>自适应巡航</translation>
    </message>
    <message>
        <source>Last distance selected</source>
        <translation>上次选择的车距</translation>
    </message>
    <message>
        <source>Drive program</source>
        <translation>驾驶程序</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>Hill Descent Control</source>
        <translation>陡坡缓降</translation>
    </message>
    <message>
        <source>Activa automatically</source>
        <translation>自动激活</translation>
    </message>
    <message>
        <source>Parking brake function</source>
        <translation>泊车制动功能</translation>
    </message>
    <message>
        <source>Front volume</source>
        <translation>前部音量</translation>
    </message>
    <message>
        <source>Front tone setting</source>
        <translation>前部音调</translation>
    </message>
    <message>
        <source>Rear volume</source>
        <translation>后部音量</translation>
    </message>
    <message>
        <source>Rear tone setting</source>
        <translation>后部音调</translation>
    </message>
    <message>
        <source>Radar sound</source>
        <translation>雷达声音</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>早</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>晚</translation>
    </message>
    <message>
        <source>Right traffic</source>
        <translation>右侧通行</translation>
    </message>
    <message>
        <source>Left traffic</source>
        <translation>左侧通行</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Switch-on time</source>
        <translation>开启时间</translation>
    </message>
    <message>
        <source>Automatic headlight control in rain</source>
        <translation>雨天自动大灯</translation>
    </message>
    <message>
        <source>Lane change flash</source>
        <translation>变道闪烁</translation>
    </message>
    <message>
        <source>Instrument/switch lighting</source>
        <translation>仪表/开关照明</translation>
    </message>
    <message>
        <source>Coming home function</source>
        <translation>回家照明功能</translation>
    </message>
    <message>
        <source>Leaving home function</source>
        <translation>离家照明功能</translation>
    </message>
    <message>
        <source>Travel mode</source>
        <translation>旅行模式</translation>
    </message>
    <message>
        <source>Door ambient light</source>
        <translation>车门氛围灯</translation>
    </message>
    <message>
        <source>Foowell light</source>
        <translation>脚部空间照明</translation>
    </message>
    <message>
        <source>Head light</source>
        <translation>车顶灯光</translation>
    </message>
    <message>
        <source>Front light</source>
        <translation>前部灯光</translation>
    </message>
    <message>
        <source>All light</source>
        <translation>全部灯光</translation>
    </message>
    <message>
        <source>Motorway light</source>
        <translation>高速公路灯光</translation>
    </message>
    <message>
        <source>Dynamic light assist</source>
        <translation>动态灯光辅助</translation>
    </message>
    <message>
        <source>Interior environment lighting color</source>
        <translation>车内氛围灯颜色</translation>
    </message>
    <message>
        <source>Headlight illumination distance</source>
        <translation>大灯照射距离</translation>
    </message>
    <message>
        <source>Daytime running lights</source>
        <translation>日间行车灯</translation>
    </message>
    <message>
        <source>Synchronous adjustment</source>
        <translation>同步调节</translation>
    </message>
    <message>
        <source>Lower while reversing</source>
        <translation>倒车时下翻</translation>
    </message>
    <message>
        <source>Automatic wiping in rain</source>
        <translation>雨天自动刮水</translation>
    </message>
    <message>
        <source>Rear window wiping in reverse gear</source>
        <translation>倒挡时后窗刮水</translation>
    </message>
    <message>
        <source>Fold away after parking</source>
        <translation>驻车后折叠</translation>
    </message>
    <message>
        <source>Driver window</source>
        <translation>驾驶员车窗</translation>
    </message>
    <message>
        <source>All window</source>
        <translation>全部车窗</translation>
    </message>
    <message>
        <source>Vehicle side</source>
        <translation>车辆一侧</translation>
    </message>
    <message>
        <source>Single door</source>
        <translation>单个车门</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>全部车门</translation>
    </message>
    <message>
        <source>Convenience opening</source>
        <translation>便捷开启</translation>
    </message>
    <message>
        <source>Door unlocking</source>
        <translation>车门解锁</translation>
    </message>
    <message>
        <source>Automatic locking</source>
        <translation>自动上锁</translation>
    </message>
    <message>
        <source>Inductive rear tailgate</source>
        <translation>感应式后备箱</translation>
    </message>
    <message>
        <source>Acoustic confirmation</source>
        <translation>声音确认</translation>
    </message>
    <message>
        <source>Front window</source>
        <translation>前车窗</translation>
    </message>
    <message>
        <source>Rear window</source>
        <translation>后车窗</translation>
    </message>
    <message>
        <source>Sliding sunroof</source>
        <translation>滑动天窗</translation>
    </message>
    <message>
        <source>Current consumption</source>
        <translation>当前油耗</translation>
    </message>
    <message>
        <source>Average consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Convenience consumption</source>
        <translation>舒适用电器油耗</translation>
    </message>
    <message>
        <source>Eco tips</source>
        <translation>节能提示</translation>
    </message>
    <message>
        <source>Travelling time</source>
        <translation>行驶时间</translation>
    </message>
    <message>
        <source>Distance travelled</source>
        <translation>行驶里程</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Digital speed display</source>
        <translation>数字车速显示</translation>
    </message>
    <message>
        <source>Oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Vehicle NO.</source>
        <translation>车架号</translation>
    </message>
    <message>
        <source>Inspection days</source>
        <translation>保养（时间）</translation>
    </message>
    <message>
        <source>Inspection distance</source>
        <translation>保养（里程）</translation>
    </message>
    <message>
        <source>Oil change service days</source>
        <translation>换机油（时间）</translation>
    </message>
    <message>
        <source>Oil change service distance</source>
        <translation>换机油（里程）</translation>
    </message>
    <message>
        <source>Wiper in maintenance position</source>
        <translation>雨刮器保养位置</translation>
    </message>
    <message>
        <source>Reset &quot;Since start&quot;</source>
        <translation>重置“启动以来”</translation>
    </message>
    <message>
        <source>Reset &quot;Long-term&quot;</source>
        <translation>重置“长期”</translation>
    </message>
    <message>
        <source>Reset maintenance cycle</source>
        <translation>重置保养周期</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>℃</source>
        <translation>℃</translation>
    </message>
    <message>
        <source>℉</source>
        <translation>℉</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>gal(UK)</source>
        <translation>gal(UK)</translation>
    </message>
    <message>
        <source>gal(US)</source>
        <translation>gal(US)</translation>
    </message>
    <message>
        <source>mpg(UK)</source>
        <translation>mpg(UK)</translation>
    </message>
    <message>
        <source>L/100km</source>
        <translation>L/100km</translation>
    </message>
    <message>
        <source>mpg(US)</source>
        <translation>mpg(US)</translation>
    </message>
    <message>
        <source>km/L</source>
        <translation>km/L</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>kPa</source>
        <translation>kPa</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>容积</translation>
    </message>
    <message>
        <source>Consumption</source>
        <translation>油耗</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>压力</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>全部设置</translation>
    </message>
    <message>
        <source>ECO</source>
        <translation>经济</translation>
    </message>
    <message>
        <source>Individual</source>
        <translation>个性化</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>雪地</translation>
    </message>
    <message>
        <source>Off-road</source>
        <translation>越野</translation>
    </message>
    <message>
        <source>Off-road individual</source>
        <translation>越野个性化</translation>
    </message>
    <message>
        <source>Remote key activated</source>
        <translation>遥控钥匙已激活</translation>
    </message>
    <message>
        <source>Remote key memory matching</source>
        <translation>遥控钥匙记忆匹配</translation>
    </message>
    <message>
        <source>Driving mode</source>
        <translation>驾驶模式</translation>
    </message>
    <message>
        <source>Steering</source>
        <translation>转向</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>发动机</translation>
    </message>
    <message>
        <source>Climate</source>
        <translation>空调</translation>
    </message>
    <message>
        <source>Front lighting</source>
        <translation>前部照明</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Car Setting</source>
        <translation>车辆设置</translation>
    </message>
    <message>
        <source>Vehice Start-stop</source>
        <translation>车辆启停系统</translation>
    </message>
    <message>
        <source>Vehice reports</source>
        <translation>车辆报告</translation>
    </message>
    <message>
        <source>Trailer mode</source>
        <translation>挂车模式</translation>
    </message>
    <message>
        <source>Windscreen could become fogged</source>
        <translation>前挡风玻璃可能起雾</translation>
    </message>
    <message>
        <source>Operating temperature not maintained</source>
        <translation>未达到工作温度</translation>
    </message>
    <message>
        <source>No driver detected</source>
        <translation>未检测到驾驶员</translation>
    </message>
    <message>
        <source>Gearbox requires engine to be running</source>
        <translation>变速箱需要发动机运转</translation>
    </message>
    <message>
        <source>Power consumption is high</source>
        <translation>耗电量高</translation>
    </message>
    <message>
        <source>Starting start-stop system</source>
        <translation>启停系统正在启动</translation>
    </message>
    <message>
        <source>Engine must be running</source>
        <translation>发动机必须运转</translation>
    </message>
    <message>
        <source>Gradient too steep</source>
        <translation>坡度过大</translation>
    </message>
    <message>
        <source>Start-stop system is currently not  available</source>
        <translation>启停系统当前不可用</translation>
    </message>
    <message>
        <source>Emergency brake function intervention</source>
        <translation>紧急制动功能介入</translation>
    </message>
    <message>
        <source>Brake requires engine to be running</source>
        <translation>制动系统需要发动机运转</translation>
    </message>
    <message>
        <source>Power consumption is hight</source>
        <translation>耗电量高</translation>
    </message>
    <message>
        <source>Air conditioning requires engine to be running</source>
        <translation>空调需要发动机运转</translation>
    </message>
    <message>
        <source>Steering angle too great</source>
        <translation>转向角过大</translation>
    </message>
    <message>
        <source>Manoeuvering mode</source>
        <translation>挪车模式</translation>
    </message>
    <message>
        <source>Defrost function is switched on</source>
        <translation>除霜功能已开启</translation>
    </message>
    <message>
        <source>Driver seatbelt not fastened</source>
        <translation>驾驶员安全带未系</translation>
    </message>
    <message>
        <source>Driver door open</source>
        <translation>驾驶员车门打开</translation>
    </message>
    <message>
        <source>Accelerator is depressed</source>
        <translation>油门踏板已踩下</translation>
    </message>
    <message>
        <source>Wndscreen heating is switched on</source>
        <translation>前挡风玻璃加热已开启</translation>
    </message>
    <message>
        <source>Maximum air conditioning requires engine to be running</source>
        <translation>最大制冷需要发动机运转</translation>
    </message>
    <message>
        <source>Bonnet has been opened</source>
        <translation>发动机盖已打开</translation>
    </message>
    <message>
        <source>Engine stop currently not possible</source>
        <translation>当前无法停止发动机</translation>
    </message>
    <message>
        <source>Off-road mode is activated</source>
        <translation>越野模式已激活</translation>
    </message>
    <message>
        <source>System protection intervention Buttonlever activated too often</source>
        <translation>系统保护介入：按键/操纵杆操作过于频繁</translation>
    </message>
    <message>
        <source>Gear is engaged</source>
        <translation>已挂挡</translation>
    </message>
    <message>
        <source>Start-stop button pressed</source>
        <translation>已按下启停按键</translation>
    </message>
    <message>
        <source>ACC intervention</source>
        <translation>ACC介入</translation>
    </message>
    <message>
        <source>Park Assist is activated</source>
        <translation>泊车辅助已激活</translation>
    </message>
    <message>
        <source>ESC is switched off</source>
        <translation>ESC已关闭</translation>
    </message>
    <message>
        <source>Start-stop system requires engine to be running</source>
        <translation>启停系统需要发动机运转</translation>
    </message>
    <message>
        <source>Air conditioning</source>
        <translation>空调</translation>
    </message>
    <message>
        <source>Auxiliary heater</source>
        <translation>辅助加热器</translation>
    </message>
    <message>
        <source>Rear window heating</source>
        <translation>后窗加热</translation>
    </message>
    <message>
        <source>Left seat heating</source>
        <translation>左侧座椅加热</translation>
    </message>
    <message>
        <source>Right seat heating</source>
        <translation>右侧座椅加热</translation>
    </message>
    <message>
        <source>Left seat ventilation</source>
        <translation>左侧座椅通风</translation>
    </message>
    <message>
        <source>Right seat ventilation</source>
        <translation>右侧座椅通风</translation>
    </message>
    <message>
        <source>Left head area heating</source>
        <translation>左侧头部区域加热</translation>
    </message>
    <message>
        <source>Right head area heating</source>
        <translation>右侧头部区域加热</translation>
    </message>
    <message>
        <source>Front fog light</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Rear fog light</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Windscreen heating</source>
        <translation>前挡风玻璃加热</translation>
    </message>
    <message>
        <source>Steering whell heating</source>
        <translation>方向盘加热</translation>
    </message>
    <message>
        <source>Mirror heating</source>
        <translation>后视镜加热</translation>
    </message>
    <message>
        <source>Rear seat heating</source>
        <translation>后排座椅加热</translation>
    </message>
    <message>
        <source>Rear seat ventilation</source>
        <translation>后排座椅通风</translation>
    </message>
    <message>
        <source>Socket</source>
        <translation>插座</translation>
    </message>
    <message>
        <source>Drink holder</source>
        <translation>杯架</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>已发送</translation>
    </message>
    <message>
        <source>Waiting for the car</source>
        <translation>正在等待车辆</translation>
    </message>
    <message>
        <source>Last report %1 min ago</source>
        <translation>%1 分钟前的数据</translation>
    </message>
    <message>
        <source>Last report %1 h ago</source>
        <translation>%1 小时前的数据</translation>
    </message>
</context>
<context>
    <name>XinHangSettings</name>
    <message>
        <source>Original car</source>
        <translation>原车</translation>
    </message>
    <message>
        <source>360</source>
        <translation>360</translation>
    </message>
    <message>
        <source>Add camera</source>
        <translation>加装摄像头</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>AfterMarket Camera</source>
        <translation>加装摄像头</translation>
    </message>
    <message>
        <source>OE Camera</source>
        <translation>原厂摄像头</translation>
    </message>
    <message>
        <source>AfterMarket 360</source>
        <translation>加装360</translation>
    </message>
    <message>
        <source>CVBS</source>
        <translation>CVBS</translation>
    </message>
    <message>
        <source>VGA</source>
        <translation>VGA</translation>
    </message>
    <message>
        <source>Parking Key</source>
        <translation>泊车键</translation>
    </message>
    <message>
        <source>Reverse State</source>
        <translation>倒车状态</translation>
    </message>
    <message>
        <source>Gear Position</source>
        <translation>挡位</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Horizontal and vertical</source>
        <translation>水平和垂直</translation>
    </message>
    <message>
        <source>Reversing camera</source>
        <translation>倒车摄像头</translation>
    </message>
    <message>
        <source>Right camera</source>
        <translation>右侧摄像头</translation>
    </message>
    <message>
        <source>Reversing track</source>
        <translation>倒车轨迹</translation>
    </message>
    <message>
        <source>Reversing radar</source>
        <translation>倒车雷达</translation>
    </message>
    <message>
        <source>Car type</source>
        <translation>车型</translation>
    </message>
    <message>
        <source>Display type</source>
        <translation>屏幕类型</translation>
    </message>
    <message>
        <source>Sound type</source>
        <translation>声音类型</translation>
    </message>
    <message>
        <source>Reverse camera</source>
        <translation>倒车摄像头类型</translation>
    </message>
    <message>
        <source>Starting front view</source>
        <translation>启动时前视</translation>
    </message>
    <message>
        <source>Steering front view</source>
        <translation>转向时前视</translation>
    </message>
    <message>
        <source>Reversing front view</source>
        <translation>倒车后前视</translation>
    </message>
    <message>
        <source>Dedicated right view</source>
        <translation>独立右视</translation>
    </message>
    <message>
        <source>Front view after right view</source>
        <translation>右视后前视</translation>
    </message>
    <message>
        <source>Rear video format</source>
        <translation>后视视频格式</translation>
    </message>
    <message>
        <source>Reverse condition</source>
        <translation>倒车判断依据</translation>
    </message>
    <message>
        <source>Front view mirror</source>
        <translation>前视镜像</translation>
    </message>
    <message>
        <source>Right view mirror</source>
        <translation>右视镜像</translation>
    </message>
    <message>
        <source>Rear view mirror</source>
        <translation>后视镜像</translation>
    </message>
    <message>
        <source>Reverse track</source>
        <translation>倒车轨迹</translation>
    </message>
    <message>
        <source>Reverse radar</source>
        <translation>倒车雷达</translation>
    </message>
</context>
<context>
    <name>XinHangSettingsWindow</name>
    <message>
        <source>Car Setting</source>
        <translation>车辆设置</translation>
    </message>
</context>
</TS>
