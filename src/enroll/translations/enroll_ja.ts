<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_result_disconnect_error_tip</source>
        <translation>組織に接続されていません</translation>
    </message>
    <message>
        <source>bind_result_error_area</source>
        <translation>デバイスは登録されませんでした。入力内容を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>bind_result_no_match_error_tip</source>
        <translation>コードとメールアドレスが一致しません。</translation>
    </message>
    <message>
        <source>bind_result_no_net_error_tip</source>
        <translation>管理サービスに接続できません。ネットワークを確認してください。</translation>
    </message>
    <message>
        <source>bind_success</source>
        <translation>このデバイスは登録されました。</translation>
    </message>
    <message>
        <source>dialog_bind_fail_text</source>
        <translation>うまくいきませんでした</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>dialog_connect_fail_content_text</source>
        <translation>デバイスは可能になり次第、自動的に接続します。接続されない場合は、ネットワークが原因かもしれません。</translation>
    </message>
    <message>
        <source>dialog_detect_text</source>
        <translation>ネットワークを確認</translation>
    </message>
    <message>
        <source>dialog_disconnect_content_text</source>
        <translation>このデバイスのサービスに接続できませんでした。ネットワークを確認するか、もう一度お試しください。</translation>
    </message>
    <message>
        <source>enrolment_sentence</source>
        <translation>このデバイスが属する組織と管理者を確認できます。</translation>
    </message>
    <message>
        <source>enrolment_sentence_form</source>
        <translation>組織から受け取った情報を入力してください。その後、このデバイスは組織によって管理されます。</translation>
    </message>
    <message>
        <source>enrolment_state_enrolled</source>
        <translation>このデバイスは登録されています。</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>デバイス登録</translation>
    </message>
    <message>
        <source>error .</source>
        <translation>エラーです。</translation>
    </message>
    <message>
        <source>error_tip_uncheck_privacy</source>
        <translation>先に契約を読んで同意してください。</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>list too long</source>
        <translation>リストが長すぎます。タグは %1 個までです。</translation>
    </message>
    <message>
        <source>Modified successfully</source>
        <translation>変更しました</translation>
    </message>
    <message>
        <source>permission_done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>permission_held_elsewhere</source>
        <translation>ロックされた設定は「%1」ページで変更します。</translation>
    </message>
    <message>
        <source>permission_not_changed</source>
        <translation>サービスに接続できません。何も変更されていません。</translation>
    </message>
    <message>
        <source>setting_dialog_title</source>
        <translation>組織に許可する操作</translation>
    </message>
    <message>
        <source>setting_permission_bottom_tip</source>
        <translation>変更はすぐに反映されます。</translation>
    </message>
    <message>
        <source>tag_refused_blank</source>
        <translation>先にタグを入力してください。</translation>
    </message>
    <message>
        <source>tag_refused_duplicate</source>
        <translation>このタグはすでに付いています。</translation>
    </message>
    <message>
        <source>tag_refused_too_long</source>
        <translation>タグは %1 文字までです。</translation>
    </message>
    <message>
        <source>tag_remove</source>
        <translation>タグ %1 を削除</translation>
    </message>
    <message>
        <source>The &lt;b&gt;Privacy Policy&lt;/b&gt; tells which data of this device the organisation receives.</source>
        <translation>&lt;b&gt;プライバシーポリシー&lt;/b&gt;には、組織が受け取るこのデバイスのデータが記載されています。</translation>
    </message>
    <message>
        <source>The &lt;b&gt;User Agreement&lt;/b&gt; tells what you accept when you enrol this device.</source>
        <translation>&lt;b&gt;利用規約&lt;/b&gt;には、このデバイスを登録する際に同意する内容が記載されています。</translation>
    </message>
    <message>
        <source>Unable to bind.</source>
        <translation>登録できません。</translation>
    </message>
    <message>
        <source>Unable to UnEnroll.</source>
        <translation>登録を解除できません。</translation>
    </message>
    <message>
        <source>usb_bind_failed</source>
        <translation>USB ドライブに登録用のファイルが見つかりましたが、このデバイスはすでに登録されています。</translation>
    </message>
    <message>
        <source>usb_enroll_alert_content</source>
        <translation>ファイル %1 の内容をフォームに入力しました。内容を確認し、契約に同意してデバイスを登録してください。</translation>
    </message>
    <message>
        <source>usb_enroll_alert_title</source>
        <translation>USB ドライブから入力しました</translation>
    </message>
    <message>
        <source>usb_file_incomplete</source>
        <translation>USB ドライブの登録ファイルにコードまたはアカウントがありません。</translation>
    </message>
    <message>
        <source>usb_file_not_json</source>
        <translation>USB ドライブの登録ファイルは UTF-8 の JSON ではありません。</translation>
    </message>
    <message>
        <source>usb_file_not_regular</source>
        <translation>USB ドライブの登録ファイルはリンクで、ファイルではありません。</translation>
    </message>
    <message>
        <source>usb_file_too_large</source>
        <translation>USB ドライブの登録ファイルが %1 KiB を超えています。</translation>
    </message>
    <message>
        <source>usb_file_unreadable</source>
        <translation>USB ドライブの登録ファイルを読み取れません。</translation>
    </message>
    <message>
        <source>usb_file_wrong_format</source>
        <translation>USB ドライブの登録ファイルの形式が正しくありません。</translation>
    </message>
    <message>
        <source>view_register_admin_account</source>
        <translation>管理者のメールアドレス</translation>
    </message>
    <message>
        <source>view_register_admin_account_hint</source>
        <translation>name@school.example</translation>
    </message>
    <message>
        <source>view_register_agree</source>
        <translation>両方を読み、同意します。</translation>
    </message>
    <message>
        <source>view_register_device_name</source>
        <translation>デバイス名</translation>
    </message>
    <message>
        <source>view_register_device_name_hint</source>
        <translation>例：教室 4.12</translation>
    </message>
    <message>
        <source>view_register_device_prefix</source>
        <translation>名前の前半</translation>
    </message>
    <message>
        <source>view_register_device_suffix</source>
        <translation>名前の後半</translation>
    </message>
    <message>
        <source>view_register_input_error_email_input</source>
        <translation>メールアドレスが正しくありません。</translation>
    </message>
    <message>
        <source>view_register_input_error_empty</source>
        <translation>入力してください。</translation>
    </message>
    <message>
        <source>view_register_input_error_length_error</source>
        <translation>コードはちょうど 6 文字です。</translation>
    </message>
    <message>
        <source>view_register_name_parts</source>
        <translation>2 つの欄で入力</translation>
    </message>
    <message>
        <source>view_register_name_whole</source>
        <translation>1 つの欄で入力</translation>
    </message>
    <message>
        <source>view_register_privacy_policy</source>
        <translation>プライバシーポリシー</translation>
    </message>
    <message>
        <source>view_register_school_code</source>
        <translation>組織コード</translation>
    </message>
    <message>
        <source>view_register_school_code_hint</source>
        <translation>6 文字</translation>
    </message>
    <message>
        <source>view_register_user_agreement</source>
        <translation>利用規約</translation>
    </message>
    <message>
        <source>view_register_windows_button_connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>view_register_windows_tag_hint</source>
        <translation>タグを追加</translation>
    </message>
    <message>
        <source>view_register_windows_title_bind_state</source>
        <translation>登録</translation>
    </message>
    <message>
        <source>view_register_windows_title_unbind_state</source>
        <translation>登録を解除</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>追加</translation>
    </message>
</context>
</TS>
