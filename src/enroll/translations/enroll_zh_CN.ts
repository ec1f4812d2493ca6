<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Ryx</name>
    <message>
        <source>bind_success</source>
        <translation>此设备已注册。</translation>
    </message>
    <message>
        <source>device_location_title_v2</source>
        <translation>定位此设备</translation>
    </message>
    <message>
        <source>dialog_close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>enrolment_sentence</source>
        <translation>在此查看此设备所属的组织及其管理员。</translation>
    </message>
    <message>
        <source>enrolment_title</source>
        <translation>设备注册</translation>
    </message>
    <message>
        <source>error_tip_uncheck_privacy</source>
        <translation>请先阅读并接受协议。</translation>
    </message>
    <message>
        <source>fact_administrator</source>
        <translation>管理员</translation>
    </message>
    <message>
        <source>fact_tags</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>list too long</source>
        <translation>列表过长：一台设备最多 %1 个标签。</translation>
    </message>
    <message>
        <source>Modified successfully</source>
        <translation>修改成功</translation>
    </message>
    <message>
        <source>page_note_state_only</source>
        <translation>目前此页面仅显示当前状态。</translation>
    </message>
    <message>
        <source>permission_done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>permission_not_changed</source>
        <translation>无法连接服务。未作任何更改。</translation>
    </message>
    <message>
        <source>setting_dialog_title</source>
        <translation>您的组织可以做什么？</translation>
    </message>
    <message>
        <source>setting_permission_bottom_tip</source>
        <translation>每次更改立即生效。</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_tip</source>
        <translation>管理员可以看到此屏幕上的内容。</translation>
    </message>
    <message>
        <source>settings_monitor_screen_preview_title</source>
        <translation>查看屏幕</translation>
    </message>
    <message>
        <source>settings_monitor_tip_v2</source>
        <translation>管理员可以使用此设备的鼠标和键盘。为此需要能够查看屏幕。</translation>
    </message>
    <message>
        <source>settings_monitor_title_v2</source>
        <translation>远程控制</translation>
    </message>
    <message>
        <source>tag_refused_blank</source>
        <translation>请先输入标签。</translation>
    </message>
    <message>
        <source>tag_refused_duplicate</source>
        <translation>设备已有此标签。</translation>
    </message>
    <message>
        <source>tag_refused_too_long</source>
        <translation>标签最多 %1 个字符。</translation>
    </message>
    <message>
        <source>tag_remove</source>
        <translation>移除标签 %1</translation>
    </message>
    <message>
        <source>usb_enroll_alert_content</source>
        <translation>表单已按文件 %1 的内容填写。请检查，接受协议，然后注册此设备。</translation>
    </message>
    <message>
        <source>usb_enroll_alert_title</source>
        <translation>已从 USB 驱动器填写</translation>
    </message>
    <message>
        <source>usb_file_incomplete</source>
        <translation>USB 驱动器上的注册文件缺少代码或帐户。</translation>
    </message>
    <message>
        <source>usb_file_not_json</source>
        <translation>USB 驱动器上的注册文件不是 UTF-8 编码的 JSON 文本。</translation>
    </message>
    <message>
        <source>usb_file_not_regular</source>
        <translation>USB 驱动器上的注册文件是链接，而不是文件。</translation>
    </message>
    <message>
        <source>usb_file_too_large</source>
        <translation>USB 驱动器上的注册文件大于 %1 KiB。</translation>
    </message>
    <message>
        <source>usb_file_unreadable</source>
        <translation>无法读取 USB 驱动器上的注册文件。</translation>
    </message>
    <message>
        <source>usb_file_wrong_format</source>
        <translation>USB 驱动器上的注册文件格式不正确。</translation>
    </message>
    <message>
        <source>view_register_windows_tag_hint</source>
        <translation>添加标签</translation>
    </message>
    <message>
        <source>view_tag_add</source>
        <translation>添加</translation>
    </message>
</context>
</TS>
