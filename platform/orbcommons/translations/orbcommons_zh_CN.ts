<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AirConditionDlg</name>
    <message>
        <source>OFF</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>AUTO</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>A/C</source>
        <translation>空调</translation>
    </message>
    <message>
        <source>PTC</source>
        <translation>电加热</translation>
    </message>
</context>
<context>
    <name>OrbChoiceDialog</name>
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
    <name>OrbCommons</name>
    <message>
        <source>Radio</source>
        <translation>收音机</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>电话</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>导航</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>CAN information</source>
        <translation>CAN信息</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Update available</source>
        <translation>有可用更新</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>正在更新</translation>
    </message>
    <message>
        <source>Update has stalled</source>
        <translation>更新停滞</translation>
    </message>
    <message>
        <source>Update finished</source>
        <translation>更新完成</translation>
    </message>
    <message>
        <source>Update failed</source>
        <translation>更新失败</translation>
    </message>
    <message>
        <source>Do not remove the disk and do not switch off the ignition.</source>
        <translation>请勿移除磁盘，也不要关闭点火开关。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>New firmware for the CAN decoder was found on the disk. Update now?</source>
        <translation>在磁盘上找到了 CAN 解码器的新固件。现在更新吗？</translation>
    </message>
    <message>
        <source>New firmware was found on the disk. Update now?</source>
        <translation>在磁盘上找到了新固件。现在更新吗？</translation>
    </message>
    <message>
        <source>The new firmware is being transferred.</source>
        <translation>正在传输新固件。</translation>
    </message>
    <message>
        <source>No more data is being asked for. Wait a minute; if it does not go on, try again.</source>
        <translation>设备不再请求数据。请等待一分钟；若仍无进展，请重试。</translation>
    </message>
    <message>
        <source>All data was transferred. The disk can be removed.</source>
        <translation>所有数据已传输。可以移除磁盘。</translation>
    </message>
    <message>
        <source>The update was interrupted (code %1). Check the disk.</source>
        <translation>更新中断（代码 %1）。请检查磁盘。</translation>
    </message>
</context>
</TS>
