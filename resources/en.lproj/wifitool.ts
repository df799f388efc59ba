<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>wifitool</name>
    <message>
        <source>温馨提示：</source>
        <translation>Please note:</translation>
    </message>
    <message>
        <source>是否退出Wi-Fi配置工具?</source>
        <translation>Quit the Wi-Fi setup tool?</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>WEP</source>
        <translation>WEP</translation>
    </message>
    <message>
        <source>WPA-Personal</source>
        <translation>WPA-Personal</translation>
    </message>
    <message>
        <source>WPA-Enterprise</source>
        <translation>WPA-Enterprise</translation>
    </message>
    <message>
        <source>WPA/WPA2-Personal</source>
        <translation>WPA/WPA2-Personal</translation>
    </message>
    <message>
        <source>WPA/WPA2-Enterprise</source>
        <translation>WPA/WPA2-Enterprise</translation>
    </message>
    <message>
        <source>WPA2-Personal</source>
        <translation>WPA2-Personal</translation>
    </message>
    <message>
        <source>WPA2-Enterprise</source>
        <translation>WPA2-Enterprise</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Personal</source>
        <translation>WPA2/WPA3-Personal</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Enterprise</source>
        <translation>WPA2/WPA3-Enterprise</translation>
    </message>
    <message>
        <source>WPA3-Personal</source>
        <translation>WPA3-Personal</translation>
    </message>
    <message>
        <source>WPA3-Enterprise</source>
        <translation>WPA3-Enterprise</translation>
    </message>
    <message>
        <source>OWE</source>
        <translation>Enhanced Open (OWE)</translation>
    </message>
    <message>
        <source>正在唤醒打印机…</source>
        <translation>Waking the printer…</translation>
    </message>
    <message>
        <source>正在检查打印机能否配置无线网络…</source>
        <translation>Checking that the printer can be set up for Wi-Fi…</translation>
    </message>
    <message>
        <source>正在发送网络名称和密码，打印机正在加入网络…</source>
        <translation>Sending name and password; the printer is joining the network…</translation>
    </message>
    <message>
        <source>正在等待打印机的网络地址（第 %d 次，共 %d 次）…</source>
        <translation>Waiting for the printer's address (%d of %d)…</translation>
    </message>
    <message>
        <source>打印机没有应答，您现在可以关闭此窗口。</source>
        <translation>The printer has not answered. You may close this window now.</translation>
    </message>
    <message>
        <source>正在配置打印机</source>
        <translation>Setting up the printer</translation>
    </message>
    <message>
        <source>这可能需要几分钟。请保持打印机开机，不要拔下 USB 数据线。</source>
        <translation>This can take a few minutes. Keep the printer switched on and the USB cable connected.</translation>
    </message>
    <message>
        <source>配置进度</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>打印机最多接受 %d 个字节的密码，请为网络设置较短的密码。</source>
        <translation>The printer takes passwords of at most %d bytes. Give the network a shorter one.</translation>
    </message>
    <message>
        <source>网络名称</source>
        <translation>Network name</translation>
    </message>
    <message>
        <source>网络密码</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>与路由器上显示的名称完全一致，区分大小写。</source>
        <translation>Exactly as your router shows it; capital and small letters differ.</translation>
    </message>
    <message>
        <source>没有密码的网络请留空。</source>
        <translation>Leave it empty for a network without a password.</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Show password</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>上一步</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>打印无线网络信息页</source>
        <translation>Print Wi-Fi information page</translation>
    </message>
    <message>
        <source>输入无线网络</source>
        <translation>Enter your Wi-Fi network</translation>
    </message>
    <message>
        <source>此电脑的无线网络已关闭，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>This computer's Wi-Fi is off, so it cannot list the networks around you. Type the network that the printer is to join.</translation>
    </message>
    <message>
        <source>名称太长：最多 32 个字节。</source>
        <translation>This name is too long: at most 32 bytes.</translation>
    </message>
    <message>
        <source>打印端口被占用，无法打印无线网络信息页。</source>
        <translation>The printer port is in use, so the Wi-Fi information page cannot be printed.</translation>
    </message>
    <message>
        <source>已将无线网络信息页发送给打印机</source>
        <translation>The Wi-Fi information page has been sent to the printer.</translation>
    </message>
</context>
</TS>
