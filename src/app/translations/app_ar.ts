<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>header_no_organisation</source>
        <translation>لا تديره أي مؤسسة بعد</translation>
    </message>
    <message>
        <source>header_status_name</source>
        <translation>الاتصال بخدمة الإدارة: %1</translation>
    </message>
    <message>
        <source>launcher_button</source>
        <translation>تسجيل هذا الجهاز</translation>
    </message>
    <message>
        <source>launcher_no_service</source>
        <translation>الخدمة على هذا الجهاز متوقفة. يمكن بدء التسجيل حالما تعود.</translation>
    </message>
    <message>
        <source>launcher_sentence</source>
        <translation>يتيح Velmora RYX لمؤسستك العناية بهذا الجهاز: تحديثه، والمساعدة عند حدوث خلل، وحمايته في غيابك.</translation>
    </message>
    <message>
        <source>launcher_step_code</source>
        <translation>جهّز رمز المؤسسة المكوّن من ستة أحرف والبريد الإلكتروني للمسؤول.</translation>
    </message>
    <message>
        <source>launcher_step_done</source>
        <translation>تم: تظهر في الأعلى كلمة «متصل».</translation>
    </message>
    <message>
        <source>launcher_step_enrol</source>
        <translation>سجّل هذا الجهاز. يستغرق ذلك نحو دقيقة.</translation>
    </message>
    <message>
        <source>launcher_title</source>
        <translation>مرحبًا بك في Velmora RYX</translation>
    </message>
    <message>
        <source>live_vanished</source>
        <translation>القناة «%1» التي كانت قيد التشغيل لم تعد متاحة.</translation>
    </message>
    <message>
        <source>menu_about</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>menu_enrolment</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>menu_features</source>
        <translation>الميزات</translation>
    </message>
    <message>
        <source>menu_feedback</source>
        <translation>الملاحظات</translation>
    </message>
    <message>
        <source>menu_live_channels</source>
        <translation>القنوات المباشرة</translation>
    </message>
    <message>
        <source>menu_mark_disconnected</source>
        <translation>يتعذّر الوصول إلى خدمة الإدارة</translation>
    </message>
    <message>
        <source>menu_mark_managed</source>
        <translation>تدير مؤسستك بعض الإعدادات</translation>
    </message>
    <message>
        <source>menu_mark_update</source>
        <translation>توجد أخبار عن تحديث</translation>
    </message>
    <message>
        <source>menu_name</source>
        <translation>القائمة الرئيسية</translation>
    </message>
    <message>
        <source>menu_network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Please contact IT administrator</source>
        <translation>يُرجى التواصل مع مسؤول تقنية المعلومات</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>الإبلاغ عن مشكلة</translation>
    </message>
    <message>
        <source>toast_channel_switched</source>
        <translation>تم تغيير قناة هذا الجهاز.</translation>
    </message>
    <message>
        <source>toast_wifi_composition</source>
        <translation>%1 «%2». %3.</translation>
    </message>
    <message>
        <source>tray_link_state</source>
        <translation>الاتصال: %1</translation>
    </message>
    <message>
        <source>Unable to connect to</source>
        <translation>تعذّر الاتصال بالشبكة</translation>
    </message>
</context>
</TS>
