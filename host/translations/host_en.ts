<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ChangeSetTitle</name>
    <message numerus="yes">
        <source>Properties of %n node(s)</source>
        <translation>
            <numerusform>Properties of %n node</numerusform>
            <numerusform>Properties of %n nodes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Recording folders of %n camera(s)</source>
        <translation>
            <numerusform>Recording folder of %n camera</numerusform>
            <numerusform>Recording folders of %n cameras</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>User and password of %n node(s)</source>
        <translation>
            <numerusform>User and password of %n node</numerusform>
            <numerusform>User and password of %n nodes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Adding %n node(s)</source>
        <translation>
            <numerusform>Adding %n node</numerusform>
            <numerusform>Adding %n nodes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removing %n node(s)</source>
        <translation>
            <numerusform>Removing %n node</numerusform>
            <numerusform>Removing %n nodes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) said</source>
        <translation>
            <numerusform>What %n camera said</numerusform>
            <numerusform>What %n cameras said</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>New addresses of %n device(s)</source>
        <translation>
            <numerusform>New address of %n device</numerusform>
            <numerusform>New addresses of %n devices</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A scan found %n device(s)</source>
        <translation>
            <numerusform>A scan found %n device</numerusform>
            <numerusform>A scan found %n devices</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) are known by</source>
        <translation>
            <numerusform>What %n camera is known by</numerusform>
            <numerusform>What %n cameras are known by</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 and %n other</numerusform>
            <numerusform>%1 and %n others</numerusform>
        </translation>
    </message>
</context>
</TS>
