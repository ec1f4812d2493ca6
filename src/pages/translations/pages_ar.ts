<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>about_copy</source>
        <translation>نسخ الكل</translation>
    </message>
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
        <source>fact_account</source>
        <translation>حساب المسؤول</translation>
    </message>
    <message>
        <source>fact_user</source>
        <translation>المستخدم الحالي</translation>
    </message>
    <message>
        <source>fact_version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>holds_unknown</source>
        <translation>أقفلت %1 أيضًا الإعداد «%2» الذي لا يعرفه هذا البرنامج.</translation>
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
        <source>licences_sentence</source>
        <translation>هذا البرنامج وما يرافقه، كلٌّ بترخيصه الخاص.</translation>
    </message>
    <message>
        <source>licences_title</source>
        <translation>التراخيص</translation>
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
        <source>network_adapter_none</source>
        <translation>لا يوجد محوّل شبكة متصل.</translation>
    </message>
    <message>
        <source>network_adapter_none_advice</source>
        <translation>صِل كبل الشبكة أو شغّل Wi-Fi.</translation>
    </message>
    <message>
        <source>network_adapter_up</source>
        <translation>قيد الاستخدام: %1.</translation>
    </message>
    <message>
        <source>network_address_found</source>
        <translation>عنوان هذا الجهاز %1.</translation>
    </message>
    <message>
        <source>network_address_none</source>
        <translation>لم تمنح الشبكة هذا الجهاز عنوانًا.</translation>
    </message>
    <message>
        <source>network_address_none_advice</source>
        <translation>اقطع الاتصال بالشبكة ثم أعِده.</translation>
    </message>
    <message>
        <source>network_cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>network_cancelled</source>
        <translation>لم يُفحص لأن الفحص أُلغي.</translation>
    </message>
    <message>
        <source>network_certificate_advice</source>
        <translation>استخدم شبكة أخرى ولا تُدخل كلمات مرور في هذه؛ فقد يتنصت أحد.</translation>
    </message>
    <message>
        <source>network_certificate_bad</source>
        <translation>تعذّر على %1 إثبات هويته: %2</translation>
    </message>
    <message>
        <source>network_certificate_good</source>
        <translation>أثبت %1 هويته.</translation>
    </message>
    <message>
        <source>network_certificate_none</source>
        <translation>لم يُفحص: يُستخدم هذا الخادم بلا تشفير.</translation>
    </message>
    <message>
        <source>network_certificate_unread</source>
        <translation>لم يُنشئ %1 اتصالًا آمنًا.</translation>
    </message>
    <message>
        <source>network_check_failed</source>
        <translation>فشل الفحص عند “%1”.</translation>
    </message>
    <message>
        <source>network_check_no_server</source>
        <translation>لا يوجد خادم للمؤسسة مُعرَّف على هذا الجهاز؛ فُحص المخرج من هذه الشبكة فقط.</translation>
    </message>
    <message>
        <source>network_check_passed</source>
        <translation>لم يجد الفحص عائقًا.</translation>
    </message>
    <message>
        <source>network_clock_advice</source>
        <translation>اضبط الساعة؛ فمع ساعة خاطئة لا يمكن إنشاء اتصال آمن.</translation>
    </message>
    <message>
        <source>network_clock_right</source>
        <translation>الساعة مطابقة لساعة الخادم.</translation>
    </message>
    <message>
        <source>network_clock_unknown</source>
        <translation>لم يُفحص: لم يذكر الخادم الوقت.</translation>
    </message>
    <message>
        <source>network_clock_wrong</source>
        <translation>ساعة هذا الجهاز تختلف عن ساعة الخادم بمقدار %1.</translation>
    </message>
    <message>
        <source>network_days</source>
        <translation>%1 يوم</translation>
    </message>
    <message>
        <source>network_gateway_found</source>
        <translation>المخرج من هذه الشبكة هو %1.</translation>
    </message>
    <message>
        <source>network_gateway_none</source>
        <translation>لا يُعرف مخرج من هذه الشبكة.</translation>
    </message>
    <message>
        <source>network_gateway_none_advice</source>
        <translation>أعد تشغيل الموجّه أو اتصل بشبكة أخرى.</translation>
    </message>
    <message>
        <source>network_hours</source>
        <translation>%1 ساعة</translation>
    </message>
    <message>
        <source>network_link_other_way</source>
        <translation>ربما تستخدم طريقًا آخر أو لم تلاحظ بعد.</translation>
    </message>
    <message>
        <source>network_link_said</source>
        <translation>تقول الخدمة عن الاتصال بالمؤسسة: “%1”.</translation>
    </message>
    <message>
        <source>network_link_unknown</source>
        <translation>لا يمكن معرفة حال الاتصال بالمؤسسة لأن الخدمة على هذا الجهاز لا تعمل.</translation>
    </message>
    <message>
        <source>network_minutes</source>
        <translation>%1 دقيقة</translation>
    </message>
    <message>
        <source>network_name_advice</source>
        <translation>تحقق من خادم الأسماء الذي تستخدمه هذه الشبكة أو جرّب شبكة أخرى.</translation>
    </message>
    <message>
        <source>network_name_by_proxy</source>
        <translation>الوكيل هو من يبحث عن الأسماء.</translation>
    </message>
    <message>
        <source>network_name_found</source>
        <translation>‏%1 معروف بالعنوان %2.</translation>
    </message>
    <message>
        <source>network_name_not_found</source>
        <translation>تعذّر العثور على الاسم %1.</translation>
    </message>
    <message>
        <source>network_name_not_needed</source>
        <translation>الخادم مُعرَّف بعنوانه، ولا حاجة إلى البحث عن اسم.</translation>
    </message>
    <message>
        <source>network_no_server</source>
        <translation>لم يُفحص: لا يوجد خادم مُعرَّف على هذا الجهاز.</translation>
    </message>
    <message>
        <source>network_pipe_advice</source>
        <translation>أعد تشغيل هذا الجهاز.</translation>
    </message>
    <message>
        <source>network_pipe_down</source>
        <translation>الخدمة على هذا الجهاز لا تعمل.</translation>
    </message>
    <message>
        <source>network_pipe_up</source>
        <translation>الخدمة على هذا الجهاز تعمل.</translation>
    </message>
    <message>
        <source>network_proxy_advice</source>
        <translation>تحقق من الوكيل في إعدادات النظام.</translation>
    </message>
    <message>
        <source>network_proxy_none</source>
        <translation>لا يُستخدم وكيل.</translation>
    </message>
    <message>
        <source>network_proxy_not_found</source>
        <translation>اسم الوكيل %1 غير معروف.</translation>
    </message>
    <message>
        <source>network_proxy_not_reached</source>
        <translation>الوكيل %1 لا يستجيب.</translation>
    </message>
    <message>
        <source>network_proxy_own_advice</source>
        <translation>هذا الوكيل محدد في إعدادات البرنامج، ويجب تصحيحه هناك.</translation>
    </message>
    <message>
        <source>network_proxy_reached</source>
        <translation>يمكن الوصول إلى الوكيل %1.</translation>
    </message>
    <message>
        <source>network_seconds</source>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>network_sentence</source>
        <translation>هنا ترى كيف يصل هذا الجهاز إلى خدمة الإدارة.</translation>
    </message>
    <message>
        <source>network_server_advice</source>
        <translation>ربما الخادم متوقف أو يعترضه جدار حماية. حاول لاحقًا.</translation>
    </message>
    <message>
        <source>network_server_by_proxy</source>
        <translation>الوكيل لا يسمح لهذا الجهاز بالوصول إلى %1.</translation>
    </message>
    <message>
        <source>network_server_by_proxy_advice</source>
        <translation>يحتاج الوكيل إلى قاعدة لهذا العنوان أو يطلب اسم مستخدم.</translation>
    </message>
    <message>
        <source>network_server_reached</source>
        <translation>‏%1 يقبل الاتصالات.</translation>
    </message>
    <message>
        <source>network_server_refused</source>
        <translation>‏%1 يرفض الاتصالات.</translation>
    </message>
    <message>
        <source>network_server_silent</source>
        <translation>‏%1 لا يستجيب.</translation>
    </message>
    <message>
        <source>network_sign_in_advice</source>
        <translation>افتح متصفحًا وسجّل الدخول إلى الشبكة.</translation>
    </message>
    <message>
        <source>network_sign_in_needed</source>
        <translation>تطلب هذه الشبكة تسجيل الدخول أولًا في %1.</translation>
    </message>
    <message>
        <source>network_sign_in_none</source>
        <translation>لا توجد صفحة تسجيل دخول تعترض الطريق.</translation>
    </message>
    <message>
        <source>network_skipped</source>
        <translation>لم يُفحص لأن خطوة سابقة فشلت.</translation>
    </message>
    <message>
        <source>network_start</source>
        <translation>الفحص مجددًا</translation>
    </message>
    <message>
        <source>network_state_failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>network_state_not_checked</source>
        <translation>لم يُفحص</translation>
    </message>
    <message>
        <source>network_state_passed</source>
        <translation>سليم</translation>
    </message>
    <message>
        <source>network_state_running</source>
        <translation>جارٍ الفحص …</translation>
    </message>
    <message>
        <source>network_state_waiting</source>
        <translation>في الانتظار</translation>
    </message>
    <message>
        <source>network_step_adapter</source>
        <translation>محوّل الشبكة</translation>
    </message>
    <message>
        <source>network_step_address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>network_step_certificate</source>
        <translation>الشهادة</translation>
    </message>
    <message>
        <source>network_step_clock</source>
        <translation>الساعة</translation>
    </message>
    <message>
        <source>network_step_gateway</source>
        <translation>البوابة</translation>
    </message>
    <message>
        <source>network_step_name</source>
        <translation>تحليل الأسماء</translation>
    </message>
    <message>
        <source>network_step_pipe</source>
        <translation>الخدمة على هذا الجهاز</translation>
    </message>
    <message>
        <source>network_step_proxy</source>
        <translation>الوكيل</translation>
    </message>
    <message>
        <source>network_step_server</source>
        <translation>الخادم</translation>
    </message>
    <message>
        <source>network_step_sign_in</source>
        <translation>صفحة تسجيل الدخول</translation>
    </message>
    <message>
        <source>network_tell_administrator</source>
        <translation>إن لم ينفع ذلك فأبلغ مسؤول مؤسستك.</translation>
    </message>
    <message>
        <source>network_tell_support</source>
        <translation>إن لم ينفع ذلك فأبلغ %1.</translation>
    </message>
    <message>
        <source>network_timed_out</source>
        <translation>لا توجد نتيجة خلال خمس ثوانٍ.</translation>
    </message>
    <message>
        <source>network_timed_out_advice</source>
        <translation>ربما الشبكة مثقلة. افحص مجددًا.</translation>
    </message>
    <message>
        <source>network_title</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>network_verdict_cancelled</source>
        <translation>أُلغي الفحص.</translation>
    </message>
    <message>
        <source>network_verdict_running</source>
        <translation>يجري فحص الطريق إلى خوادم مؤسستك …</translation>
    </message>
    <message>
        <source>settings_language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>settings_not_kept</source>
        <translation>تعذّر حفظ اختيارك؛ وهو سارٍ حتى ينتهي البرنامج.</translation>
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
    <message>
        <source>support_mail</source>
        <translation>كتابة بريد</translation>
    </message>
    <message>
        <source>support_nobody</source>
        <translation>لا توجد جهة اتصال محددة على هذا الجهاز. اسأل مسؤول مؤسستك.</translation>
    </message>
    <message>
        <source>support_page</source>
        <translation>فتح صفحة الويب</translation>
    </message>
    <message>
        <source>support_title</source>
        <translation>الدعم</translation>
    </message>
    <message>
        <source>support_trace_hint</source>
        <translation>يُظهر سجل الاتصال لمن يساعدك الرسائل المتبادلة دون محتواها.</translation>
    </message>
    <message>
        <source>text_copied</source>
        <translation>تم النسخ.</translation>
    </message>
    <message>
        <source>text_copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>text_exists</source>
        <translation>“%1” موجود بالفعل. اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>text_not_saved</source>
        <translation>تعذّر حفظ “%1”.</translation>
    </message>
    <message>
        <source>text_save</source>
        <translation>حفظ …</translation>
    </message>
    <message>
        <source>text_save_type</source>
        <translation>ملف نصي</translation>
    </message>
    <message>
        <source>text_saved</source>
        <translation>حُفظ باسم “%1”.</translation>
    </message>
    <message>
        <source>trace_sentence</source>
        <translation>آخر 500 رسالة بين هذا البرنامج والخدمة على هذا الجهاز: الوقت والاتجاه والمفتاح والاسم والحجم. لا يُحتفظ بمحتواها.</translation>
    </message>
    <message>
        <source>trace_title</source>
        <translation>سجل الاتصال</translation>
    </message>
    <message>
        <source>update_available</source>
        <translation>الإصدار %1 متاح.</translation>
    </message>
    <message>
        <source>update_available_size</source>
        <translation>الإصدار %1 متاح (%2).</translation>
    </message>
    <message>
        <source>update_bytes</source>
        <translation>جارٍ التنزيل: %1 حتى الآن</translation>
    </message>
    <message>
        <source>update_check</source>
        <translation>التحقق مجددًا</translation>
    </message>
    <message>
        <source>update_failed</source>
        <translation>فشل التحديث.</translation>
    </message>
    <message>
        <source>update_forced</source>
        <translation>تطلب مؤسستك تثبيته.</translation>
    </message>
    <message>
        <source>update_later</source>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>update_no_answer</source>
        <translation>طُلب من الخدمة التحديث ولم تُجب منذ دقيقة.</translation>
    </message>
    <message>
        <source>update_no_service</source>
        <translation>الخدمة على هذا الجهاز لا تعمل، وهي وحدها من يبحث عن التحديثات.</translation>
    </message>
    <message>
        <source>update_now</source>
        <translation>تحديث الآن</translation>
    </message>
    <message>
        <source>update_old</source>
        <translation>انقطع الاتصال بالخدمة بعد ذلك؛ هذا ما قالته في %1.</translation>
    </message>
    <message>
        <source>update_percent</source>
        <translation>جارٍ التنزيل: %1٪</translation>
    </message>
    <message>
        <source>update_ready</source>
        <translation>نُزّل التحديث. تثبّته الخدمة.</translation>
    </message>
    <message>
        <source>update_requested</source>
        <translation>طُلب من الخدمة التحديث. في الانتظار …</translation>
    </message>
    <message>
        <source>update_retry</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>update_silent</source>
        <translation>تثبّته الخدمة بنفسها، ولا حاجة إلى فعل شيء.</translation>
    </message>
    <message>
        <source>update_stalled</source>
        <translation>لم يتحرك شيء منذ دقيقة.</translation>
    </message>
    <message>
        <source>update_title</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>update_told</source>
        <translation>حتى %1</translation>
    </message>
    <message>
        <source>update_unknown</source>
        <translation>في انتظار الخدمة …</translation>
    </message>
    <message>
        <source>update_up_to_date</source>
        <translation>هذا البرنامج محدَّث.</translation>
    </message>
</context>
</TS>
