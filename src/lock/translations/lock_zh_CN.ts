<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>lock_cannot_hold</source>
        <translation>此桌面不允许窗口始终位于最上层，因此锁定在此无法保持。</translation>
    </message>
    <message>
        <source>lock_digit_name</source>
        <translation>第 %1 位，共 6 位</translation>
    </message>
    <message>
        <source>lock_erase_digit</source>
        <translation>删除最后一位</translation>
    </message>
    <message>
        <source>lock_password_title</source>
        <translation>输入六位数字密码</translation>
    </message>
    <message>
        <source>lock_show_password</source>
        <translation>显示密码</translation>
    </message>
    <message>
        <source>lock_waits_for_service</source>
        <translation>正在等待此设备上的服务。服务响应后，输入的数字才会生效。</translation>
    </message>
    <message>
        <source>lock_window_title</source>
        <translation>屏幕锁定</translation>
    </message>
    <message>
        <source>remote_x_btn_enter_pwd</source>
        <translation>输入密码</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg</source>
        <translation>%1 已锁定此屏幕，直到 %2。</translation>
    </message>
    <message>
        <source>remote_x_screen_lock_msg_without_time</source>
        <translation>%1 已锁定此屏幕。</translation>
    </message>
</context>
</TS>
