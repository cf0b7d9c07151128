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
</context>
</TS>
