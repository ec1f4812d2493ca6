<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>enrolment_sentence</source>
        <translation>在此查看此设备所属的组织及其管理员。</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>设备注册</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>管理员</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>目前此页面仅显示当前状态。</translation>
    </message>
</context>
</TS>
