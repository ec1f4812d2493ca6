<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>app_lock_view_content</source>
        <translation>組織がこのデバイスの設定をロックしています。開くには 6 桁のパスワードを入力してください。</translation>
    </message>
    <message>
        <source>app_lock_view_tip</source>
        <translation>パスワードは管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>app_lock_view_title</source>
        <translation>%1はロックされています</translation>
    </message>
    <message>
        <source>lock_cannot_hold</source>
        <translation>このデスクトップではウィンドウを常に最前面に置けないため、ロックを維持できません。</translation>
    </message>
    <message>
        <source>lock_digit_name</source>
        <translation>6 桁中 %1 桁目</translation>
    </message>
    <message>
        <source>lock_erase_digit</source>
        <translation>最後の数字を消去</translation>
    </message>
    <message>
        <source>lock_password_title</source>
        <translation>6 桁のパスワードを入力してください</translation>
    </message>
    <message>
        <source>lock_show_password</source>
        <translation>パスワードを表示</translation>
    </message>
    <message>
        <source>lock_waits_for_service</source>
        <translation>このデバイスのサービスを待っています。応答があると数字が有効になります。</translation>
    </message>
    <message>
        <source>lock_window_title</source>
        <translation>画面ロック</translation>
    </message>
    <message>
        <source>menu_settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>remote_x_btn_enter_pwd</source>
        <translation>パスワードを入力</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg</source>
        <translation>%1 により、この画面は %2 までロックされています。</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg_without_time</source>
        <translation>%1 により、この画面はロックされています。</translation>
    </message>
    <message>
        <source>setting_permission_content</source>
        <translation>管理者がこの設定をロックしています。変更するには 6 桁のパスワードを入力してください。</translation>
    </message>
    <message>
        <source>setting_permission_title</source>
        <translation>この設定はロックされています</translation>
    </message>
    <message>
        <source>unbind_lock_tip</source>
        <translation>組織はこのデバイスを管理しなくなります。</translation>
    </message>
    <message>
        <source>view_lock_button_connect</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>view_lock_password_error</source>
        <translation>パスワードが正しくありません。</translation>
    </message>
    <message>
        <source>view_lock_password_lock_tip</source>
        <translation>パスワードの誤りが多すぎます。キャンセルして 1 分後にもう一度お試しください。</translation>
    </message>
    <message>
        <source>view_lock_tip</source>
        <translation>続けるには 6 桁のパスワードを入力してください。</translation>
    </message>
    <message>
        <source>view_lock_tip_2</source>
        <translation>管理者に確認してください。</translation>
    </message>
    <message>
        <source>view_register_windows_button_cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
</TS>
