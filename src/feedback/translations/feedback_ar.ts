<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>+ Add attachments (Optional)</source>
        <translation>+ إضافة مرفقات (اختياري)</translation>
    </message>
    <message>
        <source>attachment_cancel</source>
        <translation>إلغاء رفع %1</translation>
    </message>
    <message>
        <source>attachment_choose</source>
        <translation>اختيار المرفقات</translation>
    </message>
    <message>
        <source>attachment_empty</source>
        <translation>الملف فارغ.</translation>
    </message>
    <message>
        <source>attachment_folder</source>
        <translation>هذا مجلد.</translation>
    </message>
    <message>
        <source>attachment_note</source>
        <translation>حتى %1 ملفات، كل منها حتى %2. يمكنك أيضًا إفلات الملفات هنا أو لصق صورة.</translation>
    </message>
    <message>
        <source>attachment_refused</source>
        <translation>لم يُرفق «%1»: %2</translation>
    </message>
    <message>
        <source>attachment_refused_together</source>
        <translation>لم تُرفق: %1. والسبب لكل منها: %2</translation>
    </message>
    <message>
        <source>attachment_remove</source>
        <translation>إزالة %1</translation>
    </message>
    <message>
        <source>attachment_retry</source>
        <translation>إعادة رفع %1</translation>
    </message>
    <message>
        <source>attachment_too_large</source>
        <translation>حجمه أكبر من %1.</translation>
    </message>
    <message>
        <source>attachment_too_many</source>
        <translation>يوجد %1 مرفقات بالفعل.</translation>
    </message>
    <message>
        <source>attachment_twice</source>
        <translation>الملف مرفق بالفعل.</translation>
    </message>
    <message>
        <source>attachment_unreadable</source>
        <translation>تعذّرت قراءته.</translation>
    </message>
    <message>
        <source>attachment_uploaded</source>
        <translation>رُفع، %1</translation>
    </message>
    <message>
        <source>attachment_uploading</source>
        <translation>جارٍ الرفع، %1٪ من %2</translation>
    </message>
    <message>
        <source>attachment_waiting</source>
        <translation>في الانتظار، %1</translation>
    </message>
    <message>
        <source>feedback_cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>feedback_cancelled</source>
        <translation>أُلغي التقرير.</translation>
    </message>
    <message>
        <source>feedback_close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>feedback_crash</source>
        <translation>توقف البرنامج بشكل غير متوقع في %1. يُرفق بالتقرير سجل بالموضع الذي توقف عنده.</translation>
    </message>
    <message>
        <source>feedback_discard</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>feedback_failed_advice</source>
        <translation>لم يُفقد شيء: أعد المحاولة، أو احفظ التقرير وسلّمه بطريقة أخرى.</translation>
    </message>
    <message>
        <source>feedback_failed_notice</source>
        <translation>لم يُرسل تقريرك. تجد السبب في صفحة «الملاحظات».</translation>
    </message>
    <message>
        <source>feedback_failed_pack</source>
        <translation>تعذّر ضغط سجلات هذا الجهاز.</translation>
    </message>
    <message>
        <source>feedback_failed_title</source>
        <translation>لم يُرسل التقرير</translation>
    </message>
    <message>
        <source>feedback_goes_on</source>
        <translation>يستمر العمل على التقرير، وستُبلَّغ بالنتيجة.</translation>
    </message>
    <message>
        <source>feedback_leave_content</source>
        <translation>لم يُرسل بعد، وسيُفقد ما كتبته وأرفقته.</translation>
    </message>
    <message>
        <source>feedback_leave_title</source>
        <translation>هل تريد تجاهل هذا التقرير؟</translation>
    </message>
    <message>
        <source>feedback_replace</source>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>feedback_replace_content</source>
        <translation>الملف «%1» موجود بالفعل وسيُفقد محتواه.</translation>
    </message>
    <message>
        <source>feedback_replace_title</source>
        <translation>هل تريد استبدال هذا الملف؟</translation>
    </message>
    <message>
        <source>feedback_retry</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>feedback_save</source>
        <translation>حفظ التقرير…</translation>
    </message>
    <message>
        <source>feedback_save_no_attachment</source>
        <translation>لم تعد قراءة أحد المرفقات ممكنة.</translation>
    </message>
    <message>
        <source>feedback_save_no_place</source>
        <translation>تتعذّر الكتابة في ذلك المكان.</translation>
    </message>
    <message>
        <source>feedback_save_no_room</source>
        <translation>لا توجد مساحة كافية في ذلك المكان.</translation>
    </message>
    <message>
        <source>feedback_save_type</source>
        <translation>أرشيف ZIP</translation>
    </message>
    <message>
        <source>feedback_saving</source>
        <translation>جارٍ حفظ التقرير…</translation>
    </message>
    <message>
        <source>feedback_sending</source>
        <translation>جارٍ إرسال التقرير…</translation>
    </message>
    <message>
        <source>feedback_sent_content</source>
        <translation>شكرًا لك. وصل التقرير إلى المسؤول.</translation>
    </message>
    <message>
        <source>feedback_sent_title</source>
        <translation>أُرسل التقرير</translation>
    </message>
    <message>
        <source>feedback_sentence</source>
        <translation>صِف المشكلة هنا. يصل التقرير إلى المسؤول مع سجلات هذا الجهاز.</translation>
    </message>
    <message>
        <source>feedback_service_says</source>
        <translation>رسالة الخدمة: %1</translation>
    </message>
    <message>
        <source>feedback_stay</source>
        <translation>متابعة الكتابة</translation>
    </message>
    <message>
        <source>feedback_unknown_advice</source>
        <translation>لم تؤكد الخدمة استلامه، وربما وصل بالفعل؛ وقد تؤدي إعادة المحاولة إلى إرساله مرتين. يمكنك أيضًا حفظ التقرير وتسليمه بطريقة أخرى.</translation>
    </message>
    <message>
        <source>feedback_unknown_title</source>
        <translation>لا يُعرف هل أُرسل التقرير</translation>
    </message>
    <message>
        <source>feedback_uploads_pending</source>
        <translation>يمكن إرسال التقرير بعد رفع المرفقات.</translation>
    </message>
    <message>
        <source>feedback_without_content</source>
        <translation>لم تُرفع هذه المرفقات:
%1</translation>
    </message>
    <message>
        <source>feedback_without_send</source>
        <translation>إرسال من دونها</translation>
    </message>
    <message>
        <source>feedback_without_title</source>
        <translation>هل تريد الإرسال من دون هذه المرفقات؟</translation>
    </message>
    <message>
        <source>log_contract_email_hint</source>
        <translation>name@example.com</translation>
    </message>
    <message>
        <source>log_contract_email_title</source>
        <translation>البريد الإلكتروني للاستفسار (اختياري)</translation>
    </message>
    <message>
        <source>log_description_hint</source>
        <translation>ماذا حدث، وماذا فعلت قبل ذلك؟</translation>
    </message>
    <message>
        <source>log_description_title</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>log_export_log_failed</source>
        <translation>تعذّر حفظ التقرير.</translation>
    </message>
    <message>
        <source>log_export_log_success</source>
        <translation>حُفظ التقرير.</translation>
    </message>
    <message>
        <source>log_files_content</source>
        <translation>إلى جانب ما تكتبه وترفقه، يحمل التقرير اسم هذا الجهاز (%1) وهويته لدى الخدمة وملفات سجلاته: العدد %2، والحجم الإجمالي %3.</translation>
    </message>
    <message>
        <source>log_files_end_only</source>
        <translation>تُعرض آخر %1 من الملف، ويُرسل كاملًا.</translation>
    </message>
    <message>
        <source>log_files_no_text</source>
        <translation>لا يحتوي هذا الملف على نص. وهو يبيّن للمطورين الموضع الذي توقف عنده البرنامج.</translation>
    </message>
    <message>
        <source>log_files_none</source>
        <translation>لا توجد ملفات سجل على هذا الجهاز.</translation>
    </message>
    <message>
        <source>log_files_open</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>log_files_open_name</source>
        <translation>عرض %1</translation>
    </message>
    <message>
        <source>log_files_title</source>
        <translation>ما الذي سيُرسل</translation>
    </message>
    <message>
        <source>log_files_unreadable</source>
        <translation>تعذّرت قراءة هذا الملف، ولن يتضمنه التقرير.</translation>
    </message>
    <message>
        <source>log_report_title</source>
        <translation>تقرير السجل</translation>
    </message>
    <message>
        <source>log_submit</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>log_submit_tip</source>
        <translation>تُرسل سجلات هذا الجهاز مع التقرير.</translation>
    </message>
</context>
</TS>
