<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>feedback_note</source>
        <translation>لا يمكن إرسال التقارير من هذا الإصدار بعد. حتى ذلك الحين يُرجى إبلاغ المسؤول مباشرة.</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>من هنا توصف المشكلة وتُبلَّغ إلى المسؤول مع سجلات هذا الجهاز.</translation>
    </message>
    <message>
        <source>feedback_title</source>
        <translation>تقرير السجل</translation>
    </message>
</context>
</TS>
