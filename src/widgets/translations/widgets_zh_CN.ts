<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>button_back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>button_close</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>button_ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>请稍候……</translation>
    </message>
</context>
</TS>
