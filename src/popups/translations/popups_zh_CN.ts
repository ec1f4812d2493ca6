<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>在此查看此设备上被拦截的弹出窗口。</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>功能</translation>
    </message>
</context>
</TS>
