<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>LogEntry</name>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 and another one</numerusform>
            <numerusform>%1 and %n others</numerusform>
        </translation>
    </message>
</context>
</TS>
