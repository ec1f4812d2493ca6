<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>button_back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>button_close</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>button_ok</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>device_location_title_v2</source>
        <translation>تحديد موقع هذا الجهاز</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>عناوين الشبكة</translation>
    </message>
    <message>
        <source>fact_device_name</source>
        <translation>اسم الجهاز</translation>
    </message>
    <message>
        <source>fact_management_service</source>
        <translation>خدمة الإدارة</translation>
    </message>
    <message>
        <source>fact_none</source>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>fact_organisation</source>
        <translation>المؤسسة</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>يُرجى الانتظار…</translation>
    </message>
    <message>
        <source>organisation_unnamed</source>
        <translation>مؤسستك</translation>
    </message>
    <message>
        <source>permission_held</source>
        <translation>هذا الإعداد مقفل من %1. لا يغيّره إلا من يعرف الأرقام الستة.</translation>
    </message>
    <message>
        <source>permission_held_opened</source>
        <translation>هذا الإعداد مقفل من %1. يمكن تغييره حتى تغادر هذه الصفحة.</translation>
    </message>
    <message>
        <source>permission_no_service</source>
        <translation>يتعذر الوصول إلى الخدمة على هذا الجهاز: لا يمكن تغيير شيء الآن، وهذه آخر حالة معروفة.</translation>
    </message>
    <message>
        <source>permission_old</source>
        <translation>هذه آخر حالة معروفة. لم تؤكدها الخدمة منذ إعادة الاتصال.</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_tip</source>
        <translation>يرى المسؤولون ما يظهر على هذه الشاشة.</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_title</source>
        <translation>عرض الشاشة</translation>
    </message>
    <message>
        <source>settings_monitor_tip_v2</source>
        <translation>يستخدم المسؤولون فأرة هذا الجهاز ولوحة مفاتيحه. ويتطلب ذلك عرض الشاشة.</translation>
    </message>
    <message>
        <source>settings_monitor_title_v2</source>
        <translation>التحكم عن بُعد</translation>
    </message>
    <message>
        <source>status_connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>status_connecting</source>
        <translation>جارٍ الاتصال…</translation>
    </message>
    <message>
        <source>status_disconnected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>status_no_service</source>
        <translation>الخدمة متوقفة</translation>
    </message>
    <message>
        <source>status_not_enrolled</source>
        <translation>غير مسجَّل</translation>
    </message>
    <message>
        <source>web_error_bad_answer</source>
        <translation>تعذّر فهم رد الخدمة.</translation>
    </message>
    <message>
        <source>web_error_cancelled</source>
        <translation>أُلغي.</translation>
    </message>
    <message>
        <source>web_error_file</source>
        <translation>تعذّرت قراءة الملف أو تغيّر أثناء ذلك.</translation>
    </message>
    <message>
        <source>web_error_not_allowed</source>
        <translation>هذا العنوان غير مسموح به.</translation>
    </message>
    <message>
        <source>web_error_not_configured</source>
        <translation>لم يُضبط الاتصال بالخدمة على هذا الجهاز ضبطًا صحيحًا.</translation>
    </message>
    <message>
        <source>web_error_not_trusted</source>
        <translation>تعذّر التحقق من هوية الخادم.</translation>
    </message>
    <message>
        <source>web_error_other</source>
        <translation>حدث خطأ ما.</translation>
    </message>
    <message>
        <source>web_error_refused</source>
        <translation>رفضت الخدمة الطلب.</translation>
    </message>
    <message>
        <source>web_error_timed_out</source>
        <translation>لم ترد الخدمة في الوقت المناسب.</translation>
    </message>
    <message>
        <source>web_error_too_large</source>
        <translation>الملف كبير جدًا.</translation>
    </message>
    <message>
        <source>web_error_unreachable</source>
        <translation>تعذّر الوصول إلى الخدمة.</translation>
    </message>
</context>
</TS>
