<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_sentence</source>
        <translation>الجزء الذي تراه من إدارة الجهاز. يعمل مع خدمة على هذا الجهاز.</translation>
    </message>
    <message>
        <source>about_title</source>
        <translation>حول Velmora RYX</translation>
    </message>
    <message>
        <source>act_clock</source>
        <translation>ضُبط تنسيق الساعة.</translation>
    </message>
    <message>
        <source>act_locked</source>
        <translation>قُفلت الشاشة.</translation>
    </message>
    <message>
        <source>act_message</source>
        <translation>وصلت رسالة أو ملف من المسؤول.</translation>
    </message>
    <message>
        <source>act_permissions</source>
        <translation>تغيّر ما يُسمح للمؤسسة به.</translation>
    </message>
    <message>
        <source>act_unenrolled</source>
        <translation>لم يعد الجهاز تحت إدارة المؤسسة.</translation>
    </message>
    <message>
        <source>act_unlocked</source>
        <translation>فُتح قفل الشاشة.</translation>
    </message>
    <message>
        <source>act_wallpaper</source>
        <translation>ضُبطت خلفية الشاشة.</translation>
    </message>
    <message>
        <source>act_windows</source>
        <translation>نوافذ برامج أخرى طُلب إغلاقها: %1</translation>
    </message>
    <message>
        <source>acts_none</source>
        <translation>لا شيء حتى الآن.</translation>
    </message>
    <message>
        <source>acts_older</source>
        <translation>عرض الأقدم (%1)</translation>
    </message>
    <message>
        <source>acts_title</source>
        <translation>ما تم فعله هنا</translation>
    </message>
    <message>
        <source>fact_addresses</source>
        <translation>عناوين الشبكة</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>live_no_player</source>
        <translation>لا يوجد على هذا الجهاز برنامج يشغّل عناوين «%1».</translation>
    </message>
    <message>
        <source>live_no_service</source>
        <translation>يتعذر الوصول إلى الخدمة على هذا الجهاز: لا يمكن تشغيل القنوات أو إيقافها الآن.</translation>
    </message>
    <message>
        <source>live_none</source>
        <translation>لا تقدم مؤسستك أي قنوات حاليًا.</translation>
    </message>
    <message>
        <source>live_not_enrolled</source>
        <translation>تظهر القنوات هنا بعد تسجيل هذا الجهاز.</translation>
    </message>
    <message>
        <source>live_old</source>
        <translation>هذه القائمة تعود إلى ما قبل انقطاع الاتصال.</translation>
    </message>
    <message>
        <source>live_play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>live_playing</source>
        <translation>قيد التشغيل</translation>
    </message>
    <message>
        <source>live_refused</source>
        <translation>لا يمكن تشغيل عنوان هذه القناة. أبلغ المسؤول.</translation>
    </message>
    <message>
        <source>live_sentence</source>
        <translation>تُشغَّل هنا وتُوقف القنوات التي ترسلها مؤسستك إلى هذه الشاشة.</translation>
    </message>
    <message>
        <source>live_stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>live_stopped</source>
        <translation>متوقفة</translation>
    </message>
    <message>
        <source>live_stopped_told</source>
        <translation>أُوقفت القناة. إذا كان المشغّل لا يزال مفتوحًا فأغلقه بنفسك.</translation>
    </message>
    <message>
        <source>live_title</source>
        <translation>القنوات المباشرة</translation>
    </message>
    <message>
        <source>live_unnamed</source>
        <translation>القناة %1</translation>
    </message>
    <message>
        <source>live_waiting</source>
        <translation>لم تُبلغ الخدمة بعد بالقنوات المتاحة.</translation>
    </message>
    <message>
        <source>may_control</source>
        <translation>يمكن لـ %1 استخدام فأرة هذا الجهاز ولوحة مفاتيحه.</translation>
    </message>
    <message>
        <source>may_desktop</source>
        <translation>يمكن لـ %1 ضبط تنسيق الساعة وخلفية الشاشة.</translation>
    </message>
    <message>
        <source>may_location</source>
        <translation>يمكن لـ %1 معرفة مكان هذا الجهاز.</translation>
    </message>
    <message>
        <source>may_lock</source>
        <translation>يمكن لـ %1 قفل هذه الشاشة وإعدادات النظام.</translation>
    </message>
    <message>
        <source>may_message</source>
        <translation>يمكن لـ %1 عرض رسائل وصور هنا وإرسال ملفات إليك، ولا يُفتح أي منها تلقائيًا.</translation>
    </message>
    <message>
        <source>may_nobody</source>
        <translation>لا تدير أي مؤسسة هذا الجهاز: لا يمكن لأحد فعل شيء هنا عبر هذا البرنامج.</translation>
    </message>
    <message>
        <source>may_not_control</source>
        <translation>لا يمكن لـ %1 استخدام فأرة هذا الجهاز ولوحة مفاتيحه.</translation>
    </message>
    <message>
        <source>may_not_files</source>
        <translation>لا يرسل هذا البرنامج أيًا من ملفاتك وصورك إلا إذا أرسلتها بنفسك في تقرير.</translation>
    </message>
    <message>
        <source>may_not_location</source>
        <translation>لا يمكن لـ %1 معرفة مكان هذا الجهاز.</translation>
    </message>
    <message>
        <source>may_not_typing</source>
        <translation>لا يسجل هذا البرنامج ما تكتبه في البرامج الأخرى.</translation>
    </message>
    <message>
        <source>may_not_view</source>
        <translation>لا يمكن لـ %1 رؤية ما يظهر على هذه الشاشة.</translation>
    </message>
    <message>
        <source>may_popups</source>
        <translation>يمكن لـ %1 إغلاق نوافذ برامج أخرى تحددها قواعدها، وتُبلَّغ بها.</translation>
    </message>
    <message>
        <source>may_unknown</source>
        <translation>مُنحت %1 أيضًا الإذن «%2» الذي لا يعرفه هذا البرنامج.</translation>
    </message>
    <message>
        <source>may_view</source>
        <translation>يمكن لـ %1 رؤية ما يظهر على هذه الشاشة.</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>هنا ترى كيف يصل هذا الجهاز إلى خدمة الإدارة.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>settings_sentence</source>
        <translation>مظهر هذا البرنامج ولغته، وما يُسمح لمؤسستك بفعله على هذا الجهاز.</translation>
    </message>
    <message>
        <source>settings_text_large</source>
        <translation>كبير</translation>
    </message>
    <message>
        <source>settings_text_larger</source>
        <translation>كبير جدًا</translation>
    </message>
    <message>
        <source>settings_text_normal</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>settings_text_size</source>
        <translation>حجم النص</translation>
    </message>
    <message>
        <source>settings_theme</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>settings_theme_dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>settings_theme_light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>settings_theme_system</source>
        <translation>مثل النظام</translation>
    </message>
    <message>
        <source>settings_title</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>transparency_title</source>
        <translation>ماذا يعني ذلك</translation>
    </message>
</context>
</TS>
