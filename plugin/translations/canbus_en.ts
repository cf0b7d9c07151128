<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- What a driver reads in place of the texts that the system misspells; all others are English as they stand. Kept by hand. -->
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>VolkswagenWindow</name>
    <message>
        <source>Hight pressure</source>
        <translation>High pressure</translation>
    </message>
    <message>
        <source>mph(UK)</source>
        <translation>mpg(UK)</translation>
    </message>
    <message>
        <source>mph(US)</source>
        <translation>mpg(US)</translation>
    </message>
</context>
<context>
    <name>Vw</name>
    <message>
        <source>Vehice status Start-stop</source>
        <translation>Vehicle status Start-stop</translation>
    </message>
    <message>
        <source>Vehice status reports</source>
        <translation>Vehicle status reports</translation>
    </message>
    <message>
        <source>Vehice Start-stop</source>
        <translation>Vehicle Start-stop</translation>
    </message>
    <message>
        <source>Vehice reports</source>
        <translation>Vehicle reports</translation>
    </message>
    <message>
        <source>Activa automatically</source>
        <translation>Activate automatically</translation>
    </message>
    <message>
        <source>Foowell light</source>
        <translation>Footwell light</translation>
    </message>
    <message>
        <source>All window</source>
        <translation>All windows</translation>
    </message>
    <message>
        <source>Start-stop system is currently not  available</source>
        <translation>Start-stop system is currently not available</translation>
    </message>
    <message>
        <source>Power consumption is hight</source>
        <translation>Power consumption is high</translation>
    </message>
    <message>
        <source>Manoeuvering mode</source>
        <translation>Manoeuvring mode</translation>
    </message>
    <message>
        <source>Wndscreen heating is switched on</source>
        <translation>Windscreen heating is switched on</translation>
    </message>
    <message>
        <source>System protection intervention Buttonlever activated too often</source>
        <translation>System protection intervention: button/lever activated too often</translation>
    </message>
    <message>
        <source>Steering whell heating</source>
        <translation>Steering wheel heating</translation>
    </message>
</context>
</TS>
