<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>features_sentence</source>
        <translation>هنا ترى النوافذ المنبثقة المحظورة على هذا الجهاز.</translation>
    </message>
    <message>
        <source>features_title</source>
        <translation>الميزات</translation>
    </message>
    <message>
        <source>file_publish_cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>popups_dropped</source>
        <translation>هذه القاعدة لم تعد سارية</translation>
    </message>
    <message>
        <source>popups_fact_state</source>
        <translation>الحظر</translation>
    </message>
    <message>
        <source>popups_fact_today</source>
        <translation>طُلب إغلاقها اليوم</translation>
    </message>
    <message>
        <source>popups_list_empty</source>
        <translation>لم يُطلب إغلاق أي نافذة حتى الآن.</translation>
    </message>
    <message>
        <source>popups_list_title</source>
        <translation>النوافذ التي طُلب إغلاقها</translation>
    </message>
    <message>
        <source>popups_no_answer</source>
        <translation>لم تردّ الخدمة. لم يتغير شيء.</translation>
    </message>
    <message>
        <source>popups_none</source>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>popups_notice</source>
        <translation>طُلب من نافذة منبثقة للبرنامج %1 أن تُغلق. اضغط هنا لمعرفة السبب.</translation>
    </message>
    <message>
        <source>popups_off</source>
        <translation>متوقف: تم إيقافه</translation>
    </message>
    <message>
        <source>popups_off_unenrolled</source>
        <translation>متوقف: هذا الجهاز غير مسجل</translation>
    </message>
    <message>
        <source>popups_older</source>
        <translation>عرض الأقدم (%1)</translation>
    </message>
    <message>
        <source>popups_on</source>
        <translation>مفعّل، القواعد السارية: %1</translation>
    </message>
    <message>
        <source>popups_pick_busy</source>
        <translation>لم يصل بعدُ ردّ على البلاغ الأخير. حاول مرة أخرى بعد دقيقة.</translation>
    </message>
    <message>
        <source>popups_pick_list</source>
        <translation>الاختيار من قائمة</translation>
    </message>
    <message>
        <source>popups_pick_point</source>
        <translation>أشِر إليها</translation>
    </message>
    <message>
        <source>popups_pick_sentence</source>
        <translation>سيرى المسؤول صورة النافذة ويمكنه جعلها تُغلق من الآن فصاعدًا.</translation>
    </message>
    <message>
        <source>popups_pick_title</source>
        <translation>الإبلاغ عن نافذة منبثقة</translation>
    </message>
    <message>
        <source>popups_rule</source>
        <translation>القاعدة: فئة النافذة %1، المنتج %2</translation>
    </message>
    <message>
        <source>popups_still_open</source>
        <translation>طُلب إغلاقها وما زالت مفتوحة</translation>
    </message>
    <message>
        <source>popups_switch</source>
        <translation>إغلاق النوافذ المنبثقة غير المرغوبة</translation>
    </message>
    <message>
        <source>popups_switch_nobody</source>
        <translation>يمكن طلب ذلك بعد تسجيل الجهاز والوصول إلى خدمته.</translation>
    </message>
    <message>
        <source>popups_switch_tip</source>
        <translation>القرار لخدمة مؤسستك، والمفتاح يعرض ما تقوله.</translation>
    </message>
    <message>
        <source>popups_switch_waiting</source>
        <translation>تم إرسال الطلب إلى الخدمة ولم تردّ بعد.</translation>
    </message>
    <message>
        <source>popups_times</source>
        <translation>%1، عدد المرات %2</translation>
    </message>
    <message>
        <source>popups_unknown</source>
        <translation>لم تُبلغ الخدمة بذلك بعد</translation>
    </message>
    <message>
        <source>popups_windows_none</source>
        <translation>لا توجد نافذة مفتوحة يمكن الإبلاغ عنها.</translation>
    </message>
    <message>
        <source>popups_windows_title</source>
        <translation>أي نافذة؟</translation>
    </message>
    <message>
        <source>popups_wrong</source>
        <translation>كان هذا خطأ</translation>
    </message>
    <message>
        <source>popups_wrong_name</source>
        <translation>كان هذا خطأ: %1، %2</translation>
    </message>
    <message>
        <source>report_click_pop_ups_block</source>
        <translation>انقر على النافذة المنبثقة التي تريد الإبلاغ عنها</translation>
    </message>
    <message>
        <source>str_pop_ups_</source>
        <translation>نافذة منبثقة من</translation>
    </message>
    <message>
        <source>str_report</source>
        <translation>إبلاغ</translation>
    </message>
    <message>
        <source>str_this_pop_ups_no_support</source>
        <translation>لا يمكن الإبلاغ عن هذه النافذة</translation>
    </message>
</context>
</TS>
