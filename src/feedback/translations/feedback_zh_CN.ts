<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>feedback_note</source>
        <translation>此版本尚不能发送报告，请先直接联系管理员。</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>可在此描述问题，并连同此设备的日志一起报告给管理员。</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <translation>日志报告</translation>
    </message>
</context>
</TS>
