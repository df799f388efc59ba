<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>wifitool</name>
    <message>
        <source>温馨提示：</source>
        <translation>Please note</translation>
    </message>
    <message>
        <source>是否退出Wi-Fi配置工具?</source>
        <translation>Quit Wi-Fi Tool?</translation>
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
        <translation>Waiting for the printer’s address (%d of %d)…</translation>
    </message>
    <message>
        <source>打印机没有应答，您现在可以关闭此窗口。</source>
        <translation>The printer has not answered. Close this window, restart the printer and try again.</translation>
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
        <translation>This password is too long for the printer: at most %d bytes, one for each ordinary letter or digit. Give the network a shorter one.</translation>
    </message>
    <message>
        <source>网络名称</source>
        <translation>Network n&amp;ame</translation>
    </message>
    <message>
        <source>网络密码</source>
        <translation>Pass&amp;word</translation>
    </message>
    <message>
        <source>与路由器上显示的名称完全一致，区分大小写。</source>
        <translation>Exactly as your router shows it; upper and lower case matter.</translation>
    </message>
    <message>
        <source>没有密码的网络请留空。</source>
        <translation>Leave empty for a network without a password.</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>&amp;Show password</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>&amp;Next</translation>
    </message>
    <message>
        <source>上一步</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>打印无线网络信息页</source>
        <translation>&amp;Print Wi-Fi information page</translation>
    </message>
    <message>
        <source>输入无线网络</source>
        <translation>Enter your Wi-Fi network</translation>
    </message>
    <message>
        <source>此电脑的无线网络已关闭，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>This computer’s Wi-Fi is off, so it cannot list the networks nearby. Enter the network that the printer should join.</translation>
    </message>
    <message>
        <source>名称太长：最多 32 个字节。</source>
        <translation>This name is too long: at most 32 bytes.</translation>
    </message>
    <message>
        <source>打印端口被占用，无法打印无线网络信息页。</source>
        <translation>The printer is busy. Wait until it has finished, then try again.</translation>
    </message>
    <message>
        <source>已将无线网络信息页发送给打印机</source>
        <translation>The Wi-Fi information page has been sent to the printer.</translation>
    </message>
    <message>
        <source>不过它可能打印不出来：%@</source>
        <translation>It may not be printed, though: %@</translation>
    </message>
    <message>
        <source>完成并退出</source>
        <translation>&amp;Finish and quit</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Set up</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>第%d步，共%d步：%@</source>
        <translation>Step %d of %d: %@</translation>
    </message>
    <message>
        <source>第%d步</source>
        <translation>Step %d</translation>
    </message>
    <message>
        <source>Wi-Fi配置工具</source>
        <translation>Wi-Fi Tool</translation>
    </message>
    <message>
        <source>让打印机连上无线网络</source>
        <translation>Connect your printer to Wi-Fi</translation>
    </message>
    <message>
        <source>请打开打印机电源，然后选择配置方式。</source>
        <translation>Switch the printer on, then choose how to set it up.</translation>
    </message>
    <message>
        <source>USB数据线</source>
        <translation>USB cable</translation>
    </message>
    <message>
        <source>用数据线连接打印机和电脑。适合第一次使用。</source>
        <translation>Connect the printer to this computer with a cable. Best for the first time.</translation>
    </message>
    <message>
        <source>WPS一键配网</source>
        <translation>WPS</translation>
    </message>
    <message>
        <source>路由器有WPS按钮时可用，不需要数据线和密码。</source>
        <translation>For routers with a WPS button. Needs neither cable nor password.</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi按钮</source>
        <translation>Wi-Fi button</translation>
    </message>
    <message>
        <source>打印机没有显示屏时使用，与路由器上的WPS按钮配合。</source>
        <translation>For printers without a display, together with the WPS button on the router.</translation>
    </message>
    <message>
        <source>打印机的菜单</source>
        <translation>Printer menu</translation>
    </message>
    <message>
        <source>打印机有显示屏和菜单时使用。</source>
        <translation>For printers with a display and a menu.</translation>
    </message>
    <message>
        <source>从哪里启动WPS？</source>
        <translation>Where do you want to start WPS?</translation>
    </message>
    <message>
        <source>看一看您的打印机：它有显示屏和菜单，还是只有Wi-Fi按钮？</source>
        <translation>Look at your printer: does it have a display with a menu, or only a Wi-Fi button?</translation>
    </message>
    <message>
        <source>按钮方式（PBC）</source>
        <translation>Push button (PBC)</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮即可。</source>
        <translation>Just press the WPS button on the router.</translation>
    </message>
    <message>
        <source>PIN码方式</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>路由器没有WPS按钮时，在它的设置页面输入PIN码。</source>
        <translation>For routers without a WPS button: type the printer’s PIN on the router’s settings page.</translation>
    </message>
    <message>
        <source>选择WPS的方式</source>
        <translation>Choose how to use WPS</translation>
    </message>
    <message>
        <source>两种方式都在打印机的菜单里。路由器上有WPS按钮时，按钮方式最简单。</source>
        <translation>Both are in the printer’s menu. If your router has a WPS button, the push button is easier.</translation>
    </message>
    <message>
        <source>用按钮连接</source>
        <translation>Connect with the buttons</translation>
    </message>
    <message>
        <source>请在两分钟内完成前两步。</source>
        <translation>Do the first two steps within two minutes.</translation>
    </message>
    <message>
        <source>按住打印机上的Wi-Fi按钮约3秒，直到指示灯开始闪烁。</source>
        <translation>Hold the Wi-Fi button on the printer for about 3 seconds, until its light blinks.</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮。</source>
        <translation>Press the WPS button on the router.</translation>
    </message>
    <message>
        <source>等待最多两分钟。指示灯不再闪烁时，点击“下一步”。</source>
        <translation>Wait up to two minutes. When the light stops blinking, click “Next” in this window.</translation>
    </message>
    <message>
        <source>在打印机菜单中使用按钮方式</source>
        <translation>Use the push button from the printer’s menu</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PBC，然后按OK确认。</source>
        <translation>On the printer’s display choose Menu › Network › WPS › PBC and confirm with OK.</translation>
    </message>
    <message>
        <source>等待最多两分钟。显示屏显示结果后，点击“下一步”。</source>
        <translation>Wait up to two minutes. When the display shows the result, click “Next” in this window.</translation>
    </message>
    <message>
        <source>在打印机菜单中使用PIN码</source>
        <translation>Use a PIN from the printer’s menu</translation>
    </message>
    <message>
        <source>PIN码几分钟后失效，请先准备好路由器的设置页面。</source>
        <translation>The PIN expires after a few minutes, so open the router’s settings page first.</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PIN，显示屏会显示一个8位数字。</source>
        <translation>On the printer’s display choose Menu › Network › WPS › PIN. It then shows a number of 8 digits.</translation>
    </message>
    <message>
        <source>在路由器设置页面的WPS栏输入这个PIN码，然后开始连接。</source>
        <translation>Type this PIN into the WPS section of the router’s settings page, and start the connection there.</translation>
    </message>
    <message>
        <source>打印机的显示屏显示什么？</source>
        <translation>What does the printer’s display say?</translation>
    </message>
    <message>
        <source>请看打印机的显示屏，选择您看到的结果。</source>
        <translation>Look at the printer’s display and choose what you see.</translation>
    </message>
    <message>
        <source>连接成功</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>显示屏显示“连接成功”或IP地址。</source>
        <translation>The display says that it is connected, or shows an IP address.</translation>
    </message>
    <message>
        <source>连接失败</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>显示屏显示“连接失败”或“超时”。请返回，再试一次。</source>
        <translation>The display says that it failed or timed out. Go back and try again.</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi指示灯怎么样？</source>
        <translation>What does the printer’s Wi-Fi light do?</translation>
    </message>
    <message>
        <source>请看打印机的Wi-Fi指示灯，选择您看到的样子。</source>
        <translation>Look at the Wi-Fi light on the printer and choose what you see.</translation>
    </message>
    <message>
        <source>指示灯常亮</source>
        <translation>Steady light</translation>
    </message>
    <message>
        <source>打印机已经连上无线网络。</source>
        <translation>The printer is connected to Wi-Fi.</translation>
    </message>
    <message>
        <source>指示灯闪烁或熄灭</source>
        <translation>Blinking or off</translation>
    </message>
    <message>
        <source>没有连上。请返回，再试一次。</source>
        <translation>It did not connect. Go back and try again.</translation>
    </message>
    <message>
        <source>打开系统的添加打印机窗口</source>
        <translation>&amp;Open the system’s “Add printer” window</translation>
    </message>
    <message>
        <source>恭喜，您完成了无线网络配置！</source>
        <translation>Congratulations, your printer’s Wi-Fi is set up!</translation>
    </message>
    <message>
        <source>现在可以拔掉USB数据线了。要在这台电脑上打印，请把打印机添加到系统：勾选下面的选项，然后点击“完成并退出”。</source>
        <translation>You can now unplug the USB cable. To print from this computer, add the printer to the system: tick the box below and click “Finish and quit”.</translation>
    </message>
    <message>
        <source>打印机已连上无线网络</source>
        <translation>The printer is connected to Wi-Fi</translation>
    </message>
    <message>
        <source>打印机没有连上无线网络</source>
        <translation>The printer is not connected to Wi-Fi</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机网络未开启，无法进行配网。</source>
        <translation>Setup failed: Wi-Fi is switched off on the printer.</translation>
    </message>
    <message>
        <source>配网失败</source>
        <translation>Network setup failed.</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机Wi-Fi模块未装配，无法进行配网。</source>
        <translation>Setup failed: the printer has no Wi-Fi module.</translation>
    </message>
    <message>
        <source>Wi-Fi故障，打印机配置失败。</source>
        <translation>Setup failed: the printer’s Wi-Fi is faulty.</translation>
    </message>
    <message>
        <source>打印机配置失败，系统升级过程中，不允许配置网络。</source>
        <translation>Setup failed: the printer is updating its system and cannot be set up now.</translation>
    </message>
    <message>
        <source>请检查打印机是否已开机、数据线是否插好、网络名称和密码是否正确，然后重新打开本工具再试一次。</source>
        <translation>Check that the printer is on, that the cable is plugged in firmly, and that the network name and password are right. Then start this program again.</translation>
    </message>
    <message>
        <source>这台打印机没有安装Wi-Fi模块。请继续使用USB数据线打印，或向经销商咨询Wi-Fi模块。</source>
        <translation>Keep printing over the USB cable, or ask your dealer for a Wi-Fi module.</translation>
    </message>
    <message>
        <source>请关闭打印机，等待10秒后重新打开，再试一次。如果问题依旧，请联系售后服务。</source>
        <translation>Switch the printer off, wait 10 seconds, switch it on and try again. If that does not help, please contact customer service.</translation>
    </message>
    <message>
        <source>请等待打印机升级完成，期间不要关闭电源，然后再试一次。</source>
        <translation>Wait until the printer has finished its update, without switching it off, then try again.</translation>
    </message>
    <message>
        <source>请在打印机上打开Wi-Fi功能，重新启动打印机，然后再试一次。</source>
        <translation>Switch Wi-Fi on at the printer, restart the printer, then try again.</translation>
    </message>
    <message>
        <source>您可以这样做</source>
        <translation>What you can do</translation>
    </message>
    <message>
        <source>运行日志：%@</source>
        <translation>Log files: %@</translation>
    </message>
    <message>
        <source>配置没有成功</source>
        <translation>Setup did not succeed</translation>
    </message>
    <message>
        <source>打印机没有接受这次配置。</source>
        <translation>The printer did not accept the settings.</translation>
    </message>
    <message>
        <source>请检查网络名称和密码（注意大小写），并确认打印机已开机、数据线已插好、离路由器不太远。然后返回，再试一次。</source>
        <translation>Check the network name and the password; upper and lower case matter. Check that the printer is on, plugged in and near the router. Then go back and try again.</translation>
    </message>
    <message>
        <source>没有连接打印机</source>
        <translation>No printer is connected</translation>
    </message>
    <message>
        <source>没有找到支持无线网络的打印机。</source>
        <translation>No printer with Wi-Fi was found.</translation>
    </message>
    <message>
        <source>请打开打印机电源，用 USB 数据线把它连到这台电脑，等待几秒。然后返回，再试一次。</source>
        <translation>Switch the printer on, connect it to this computer with a USB cable and wait a few seconds. Then go back and try again.</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Hide password</translation>
    </message>
    <message>
        <source>大写锁定已打开</source>
        <translation>Caps Lock is on</translation>
    </message>
    <message>
        <source>too common</source>
        <translation>Too common</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>Too short</translation>
    </message>
    <message>
        <source>insecure</source>
        <translation>Insecure</translation>
    </message>
    <message>
        <source>weak</source>
        <translation>Weak</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>Fair</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>Strong</translation>
    </message>
    <message>
        <source>选择无线网络</source>
        <translation>Choose the Wi-Fi network</translation>
    </message>
    <message>
        <source>请选择打印机要连接的网络，并输入它的密码。</source>
        <translation>Choose the network that the printer should join, and enter its password.</translation>
    </message>
    <message>
        <source>附近的无线网络</source>
        <translation>Networks nearby</translation>
    </message>
    <message>
        <source>正在查找无线网络…</source>
        <translation>Looking for networks…</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>&amp;Refresh</translation>
    </message>
    <message>
        <source>此电脑</source>
        <translation>your network</translation>
    </message>
    <message>
        <source>前往设置</source>
        <translation>Open Settings</translation>
    </message>
    <message>
        <source>请打开定位服务，步骤：系统设置-&gt;隐私与安全性-&gt;隐私-&gt;定位服务。</source>
        <translation>This program is not allowed to look for Wi-Fi networks. Allow it in the system settings, under Privacy or Wi-Fi.</translation>
    </message>
    <message>
        <source>打印端口被占用，无法配置打印机</source>
        <translation>Another job is using the printer. Wait until it has finished, then click “Next” again.</translation>
    </message>
    <message>
        <source>请从列表中选择，或在此输入名称。</source>
        <translation>Choose from the list, or type the name here.</translation>
    </message>
    <message>
        <source>唤醒打印机</source>
        <translation>waking the printer</translation>
    </message>
    <message>
        <source>询问打印机能否使用 Wi-Fi</source>
        <translation>asking the printer whether it can use Wi-Fi</translation>
    </message>
    <message>
        <source>发送网络设置</source>
        <translation>sending the network settings</translation>
    </message>
    <message>
        <source>查询打印机的地址</source>
        <translation>asking for the printer’s address</translation>
    </message>
    <message>
        <source>打印信息页</source>
        <translation>printing the information page</translation>
    </message>
    <message>
        <source>“%@”（进程 %@）正在使用打印机。</source>
        <translation>“%@” (process %@) is using the printer.</translation>
    </message>
    <message>
        <source>请关闭该程序，然后再试一次。如果打印机已连接到虚拟机，请先在虚拟机中断开。</source>
        <translation>Close that program, then try again. If a virtual machine has taken the printer, disconnect it there first.</translation>
    </message>
    <message>
        <source>另一个程序正在使用打印机。</source>
        <translation>Another program is using the printer.</translation>
    </message>
    <message>
        <source>请关闭正在打印或扫描的程序以及虚拟机，然后再试一次。</source>
        <translation>Close programs that print or scan, and virtual machines, then try again.</translation>
    </message>
    <message>
        <source>此电脑不允许您使用打印机：缺少规则 60-wifitool.rules。</source>
        <translation>This computer does not let you use the printer: the rule 60-wifitool.rules is missing.</translation>
    </message>
    <message>
        <source>请重新安装带有此规则的 wifitool 软件包，拔下 USB 数据线再插上，然后再试一次。</source>
        <translation>Install the package wifitool again, which brings this rule. Then unplug the USB cable, plug it in again and try again.</translation>
    </message>
    <message>
        <source>此电脑还没有允许您使用打印机。</source>
        <translation>This computer does not let you use the printer yet.</translation>
    </message>
    <message>
        <source>请拔下 USB 数据线再插上，等待几秒，然后再试一次。如果没有用，请重新启动电脑。</source>
        <translation>Unplug the USB cable, plug it in again, wait a few seconds, then try again. If that does not help, restart the computer.</translation>
    </message>
    <message>
        <source>只有直接在此电脑前登录的人才能使用打印机。您的会话是远程的，或是以其他方式启动的。</source>
        <translation>Only someone signed in at this computer itself may use the printer. Your session is remote or was started in another way.</translation>
    </message>
    <message>
        <source>请直接在此电脑上登录后再试一次，或请管理员帮忙。</source>
        <translation>Sign in at the computer itself and try again, or ask its administrator.</translation>
    </message>
    <message>
        <source>打印机被拔下或关闭了（步骤：%@）。</source>
        <translation>The printer was unplugged or switched off (step: %@).</translation>
    </message>
    <message>
        <source>在 USB 上找不到打印机。</source>
        <translation>The printer was not found on USB.</translation>
    </message>
    <message>
        <source>请打开打印机并插好数据线，等它准备就绪后再试一次。完成之前请不要拔线。</source>
        <translation>Switch the printer on and plug the cable in firmly. When the printer is ready, try again, and leave the cable in until the end.</translation>
    </message>
    <message>
        <source>打印机在 %d 秒内没有响应（步骤：%@）。</source>
        <translation>The printer did not answer within %d seconds (step: %@).</translation>
    </message>
    <message>
        <source>打印机可能在休眠或正忙：请按一下打印机上的任意键，等它准备就绪后再试一次。如果没有用，请关闭打印机，10 秒后再打开。</source>
        <translation>The printer may be asleep or busy: press any key on it, wait until it is ready and try again. If that does not help, switch it off and, after 10 seconds, on again.</translation>
    </message>
    <message>
        <source>打印机给出了意外的响应（步骤：%@）。</source>
        <translation>The printer gave an unexpected answer (step: %@).</translation>
    </message>
    <message>
        <source>与打印机的 USB 通信出错（步骤：%@）。</source>
        <translation>The USB connection to the printer failed (step: %@).</translation>
    </message>
    <message>
        <source>请把打印机直接接到电脑的另一个 USB 接口（不要经过集线器），最好换一根数据线，然后再试一次。</source>
        <translation>Connect the printer directly to another USB port of the computer (no hub), if possible with another cable, then try again.</translation>
    </message>
    <message>
        <source>打印机拒绝了网络设置，最可能的原因是密码不对。</source>
        <translation>The printer refused the network settings; most likely the password is wrong.</translation>
    </message>
    <message>
        <source>请检查密码（区分大小写）。许多打印机只支持 2.4 GHz，不支持 5 GHz。如果打印机离路由器太远，请移近一些。然后再试一次。</source>
        <translation>Check the password; upper and lower case matter. Many printers can use 2.4 GHz networks only, not 5 GHz. If the printer is far from the router, move it closer. Then try again.</translation>
    </message>
    <message>
        <source>打印机收到了设置，但没有从路由器得到地址。</source>
        <translation>The printer took the settings, but got no address from the router.</translation>
    </message>
    <message>
        <source>最可能的原因是密码不对、网络只有 5 GHz，或路由器太远：请检查后再试一次。如果都没有问题，请重新启动路由器，并查看它是否只允许已知的设备。</source>
        <translation>Most likely the password is wrong, the network is 5 GHz only or the router is too far away: check this and try again. If all is right, restart the router and see whether it admits known devices only.</translation>
    </message>
    <message>
        <source>打印机没有说明能否配置 Wi-Fi。</source>
        <translation>The printer did not say whether it can be set up for Wi-Fi.</translation>
    </message>
    <message>
        <source>详细信息</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>复制详细信息</source>
        <translation>&amp;Copy details</translation>
    </message>
    <message>
        <source>已复制</source>
        <translation>Copied</translation>
    </message>
    <message>
        <source>打印机地址</source>
        <translation>Printer address</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>&amp;Copy address</translation>
    </message>
    <message>
        <source>打开打印机的网页</source>
        <translation>Open the printer’s web &amp;page</translation>
    </message>
    <message>
        <source>正在检查此电脑能否连上打印机…</source>
        <translation>Checking whether this computer can reach the printer…</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机。</source>
        <translation>This computer can reach the printer.</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机，但打印机不接受网络打印（IPP）。</source>
        <translation>This computer can reach the printer, but the printer does not take print jobs over the network (IPP).</translation>
    </message>
    <message>
        <source>此电脑连不上打印机。打印机可能在另一个网络上，或在会隔离设备的访客网络上。</source>
        <translation>This computer cannot reach the printer. The printer may be on another network, or on a guest network that keeps devices apart.</translation>
    </message>
    <message>
        <source>此网络还要求用户名，而用户名无法发送给打印机。</source>
        <translation>This network also asks for a user name, which cannot be sent to the printer.</translation>
    </message>
    <message>
        <source>此网络只接受 WPA3，有些打印机不支持。</source>
        <translation>This network takes WPA3 only, which some printers cannot use.</translation>
    </message>
    <message>
        <source>此网络只有 5 GHz，许多打印机需要 2.4 GHz。</source>
        <translation>This network is 5 GHz only; many printers need 2.4 GHz.</translation>
    </message>
    <message>
        <source>此网络需要密码，您还没有输入。</source>
        <translation>This network needs a password, and none is entered.</translation>
    </message>
    <message>
        <source>名称的开头或结尾有空格。</source>
        <translation>The name begins or ends with a space.</translation>
    </message>
    <message>
        <source>密码的开头或结尾有空格。</source>
        <translation>The password begins or ends with a space.</translation>
    </message>
    <message>
        <source>名称含有控制字符，无法发送给打印机。</source>
        <translation>This name has control characters, so it cannot be sent to the printer.</translation>
    </message>
    <message>
        <source>密码含有控制字符，无法发送给打印机。</source>
        <translation>This password has control characters, so it cannot be sent to the printer.</translation>
    </message>
    <message>
        <source>正在等待系统许可…</source>
        <translation>Waiting for permission…</translation>
    </message>
    <message>
        <source>系统尚未回答是否允许查找网络。请点击“刷新”再试一次，或直接输入名称。</source>
        <translation>The system has not yet said whether networks may be looked for. Click “Refresh” to try again, or type the name.</translation>
    </message>
    <message>
        <source>没有找到网络。请点击“刷新”再找一次，或直接输入名称。</source>
        <translation>No networks were found. Click “Refresh” to search again, or type the name.</translation>
    </message>
    <message>
        <source>%ld%%</source>
        <translation>%ld%%</translation>
    </message>
    <message>
        <source>此桌面没有添加打印机的窗口。请自行打开系统设置中的“打印机”，或在浏览器中打开 %@。</source>
        <translation>This desktop has no window for adding printers. Open “Printers” in the system settings yourself, or %@ in a browser.</translation>
    </message>
    <message>
        <source>无法从这里打开系统设置。请自行打开，并在“隐私”或“Wi-Fi”中允许查找网络。</source>
        <translation>The system settings cannot be opened from here. Open them yourself, and allow looking for networks under Privacy or Wi-Fi.</translation>
    </message>
    <message>
        <source>此电脑没有 Wi-Fi 适配器，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>This computer has no Wi-Fi adapter, so it cannot list the networks nearby. Enter the network that the printer should join.</translation>
    </message>
    <message>
        <source>已连接 %d 台打印机，将配置“%@”。要配置另一台，请先拔下这一台。</source>
        <translation>%d printers are plugged in. “%@” will be set up; to choose another one, unplug this one first.</translation>
    </message>
    <message>
        <source>打印机：%@</source>
        <translation>Printer: %@</translation>
    </message>
</context>
</TS>
