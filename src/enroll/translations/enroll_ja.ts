<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_success</source>
        <translation>このデバイスは登録されました。</translation>
    </message>
    <message>
        <source>device_location_title_v2</source>
        <translation>このデバイスの位置を調べる</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>enrolment_sentence</source>
        <translation>このデバイスが属する組織と管理者を確認できます。</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>デバイス登録</translation>
    </message>
    <message>
        <source>error_tip_uncheck_privacy</source>
        <translation>先に契約を読んで同意してください。</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>管理者</translation>
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
        <source>page_note_state_only</source>
        <translation>現在のところ、このページには状態のみが表示されます。</translation>
    </message>
    <message>
        <source>permission_done</source>
        <translation>完了</translation>
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
        <source>settings_monitor_screen_preview_tip</source>
        <translation>管理者はこの画面の内容を見ることができます。</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_title</source>
        <translation>画面を見る</translation>
    </message>
    <message>
        <source>settings_monitor_tip_v2</source>
        <translation>管理者はこのデバイスのマウスとキーボードを操作できます。そのためには画面を見る許可が必要です。</translation>
    </message>
    <message>
        <source>settings_monitor_title_v2</source>
        <translation>遠隔操作</translation>
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
        <source>view_register_windows_tag_hint</source>
        <translation>タグを追加</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>追加</translation>
    </message>
</context>
</TS>
