<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="zh_CN">
<context>
    <name>wifitool</name>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>开放</translation>
    </message>
    <message>
        <source>WPA-Personal</source>
        <translation>WPA 个人级</translation>
    </message>
    <message>
        <source>WPA-Enterprise</source>
        <translation>WPA 企业级</translation>
    </message>
    <message>
        <source>WPA/WPA2-Personal</source>
        <translation>WPA/WPA2 个人级</translation>
    </message>
    <message>
        <source>WPA/WPA2-Enterprise</source>
        <translation>WPA/WPA2 企业级</translation>
    </message>
    <message>
        <source>WPA2-Personal</source>
        <translation>WPA2 个人级</translation>
    </message>
    <message>
        <source>WPA2-Enterprise</source>
        <translation>WPA2 企业级</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Personal</source>
        <translation>WPA2/WPA3 个人级</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Enterprise</source>
        <translation>WPA2/WPA3 企业级</translation>
    </message>
    <message>
        <source>WPA3-Personal</source>
        <translation>WPA3 个人级</translation>
    </message>
    <message>
        <source>WPA3-Enterprise</source>
        <translation>WPA3 企业级</translation>
    </message>
    <message>
        <source>OWE</source>
        <translation>增强型开放（OWE）</translation>
    </message>
    <message>
        <source>too common</source>
        <translation>太常见</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>太短</translation>
    </message>
    <message>
        <source>insecure</source>
        <translation>不安全</translation>
    </message>
    <message>
        <source>weak</source>
        <translation>弱</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>中</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>强</translation>
    </message>
    <message>
        <source>网络名称</source>
        <translation>网络名称(&amp;A)</translation>
    </message>
    <message>
        <source>网络密码</source>
        <translation>网络密码(&amp;W)</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>显示密码(&amp;S)</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>下一步(&amp;N)</translation>
    </message>
    <message>
        <source>上一步</source>
        <translation>上一步(&amp;B)</translation>
    </message>
    <message>
        <source>打印无线网络信息页</source>
        <translation>打印无线网络信息页(&amp;P)</translation>
    </message>
    <message>
        <source>完成并退出</source>
        <translation>完成并退出(&amp;F)</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>打开系统的添加打印机窗口</source>
        <translation>打开系统的“添加打印机”窗口(&amp;O)</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>打印机没有应答，您现在可以关闭此窗口。</source>
        <translation>打印机没有响应。请关闭此窗口，重新启动打印机后再试一次。</translation>
    </message>
    <message>
        <source>打印机最多接受 %d 个字节的密码，请为网络设置较短的密码。</source>
        <translation>密码太长，打印机最多接受 %d 个字节（普通字母或数字各占一个）。请为网络设置较短的密码。</translation>
    </message>
    <message>
        <source>第%d步，共%d步：%@</source>
        <translation>第 %d 步，共 %d 步：%@</translation>
    </message>
    <message>
        <source>第%d步</source>
        <translation>第 %d 步</translation>
    </message>
    <message>
        <source>USB数据线</source>
        <translation>USB 数据线</translation>
    </message>
    <message>
        <source>WPS一键配网</source>
        <translation>WPS 一键配网</translation>
    </message>
    <message>
        <source>路由器有WPS按钮时可用，不需要数据线和密码。</source>
        <translation>路由器有 WPS 按钮时可用，不需要数据线和密码。</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi按钮</source>
        <translation>打印机的 Wi-Fi 按钮</translation>
    </message>
    <message>
        <source>打印机没有显示屏时使用，与路由器上的WPS按钮配合。</source>
        <translation>打印机没有屏幕时使用，与路由器上的 WPS 按钮配合。</translation>
    </message>
    <message>
        <source>打印机有显示屏和菜单时使用。</source>
        <translation>打印机有屏幕和菜单时使用。</translation>
    </message>
    <message>
        <source>从哪里启动WPS？</source>
        <translation>从哪里启动 WPS？</translation>
    </message>
    <message>
        <source>看一看您的打印机：它有显示屏和菜单，还是只有Wi-Fi按钮？</source>
        <translation>看一看您的打印机：它有屏幕和菜单，还是只有 Wi-Fi 按钮？</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮即可。</source>
        <translation>按一下路由器上的 WPS 按钮即可。</translation>
    </message>
    <message>
        <source>PIN码方式</source>
        <translation>PIN 码方式</translation>
    </message>
    <message>
        <source>路由器没有WPS按钮时，在它的设置页面输入PIN码。</source>
        <translation>路由器没有 WPS 按钮时，在它的设置页面输入打印机的 PIN 码。</translation>
    </message>
    <message>
        <source>选择WPS的方式</source>
        <translation>选择 WPS 方式</translation>
    </message>
    <message>
        <source>两种方式都在打印机的菜单里。路由器上有WPS按钮时，按钮方式最简单。</source>
        <translation>两种方式都在打印机的菜单里。路由器有 WPS 按钮时，按钮方式更简单。</translation>
    </message>
    <message>
        <source>按住打印机上的Wi-Fi按钮约3秒，直到指示灯开始闪烁。</source>
        <translation>按住打印机上的 Wi-Fi 按钮约 3 秒，直到指示灯开始闪烁。</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮。</source>
        <translation>按一下路由器上的 WPS 按钮。</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PBC，然后按OK确认。</source>
        <translation>在打印机屏幕上选择：菜单 › 网络 › WPS › PBC，然后按 OK。</translation>
    </message>
    <message>
        <source>等待最多两分钟。显示屏显示结果后，点击“下一步”。</source>
        <translation>等待最多两分钟。屏幕显示结果后，点击“下一步”。</translation>
    </message>
    <message>
        <source>在打印机菜单中使用PIN码</source>
        <translation>在打印机菜单中使用 PIN 码</translation>
    </message>
    <message>
        <source>PIN码几分钟后失效，请先准备好路由器的设置页面。</source>
        <translation>PIN 码几分钟后失效，请先打开路由器的设置页面。</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PIN，显示屏会显示一个8位数字。</source>
        <translation>在打印机屏幕上选择：菜单 › 网络 › WPS › PIN，屏幕会显示一个 8 位数字。</translation>
    </message>
    <message>
        <source>在路由器设置页面的WPS栏输入这个PIN码，然后开始连接。</source>
        <translation>在路由器设置页面的 WPS 栏输入这个 PIN 码，然后开始连接。</translation>
    </message>
    <message>
        <source>打印机的显示屏显示什么？</source>
        <translation>打印机屏幕上显示什么？</translation>
    </message>
    <message>
        <source>请看打印机的显示屏，选择您看到的结果。</source>
        <translation>请看打印机屏幕，选择您看到的结果。</translation>
    </message>
    <message>
        <source>显示屏显示“连接成功”或IP地址。</source>
        <translation>屏幕显示“连接成功”或 IP 地址。</translation>
    </message>
    <message>
        <source>显示屏显示“连接失败”或“超时”。请返回，再试一次。</source>
        <translation>屏幕显示“连接失败”或“超时”。请返回，再试一次。</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi指示灯怎么样？</source>
        <translation>打印机的 Wi-Fi 指示灯是什么状态？</translation>
    </message>
    <message>
        <source>请看打印机的Wi-Fi指示灯，选择您看到的样子。</source>
        <translation>请看打印机的 Wi-Fi 指示灯，选择您看到的状态。</translation>
    </message>
    <message>
        <source>现在可以拔掉USB数据线了。要在这台电脑上打印，请把打印机添加到系统：勾选下面的选项，然后点击“完成并退出”。</source>
        <translation>现在可以拔掉 USB 数据线了。要在这台电脑上打印，请把打印机添加到系统：勾选下面的选项，然后点击“完成并退出”。</translation>
    </message>
    <message>
        <source>这台打印机没有安装Wi-Fi模块。请继续使用USB数据线打印，或向经销商咨询Wi-Fi模块。</source>
        <translation>请继续使用 USB 数据线打印，或向经销商咨询 Wi-Fi 模块。</translation>
    </message>
    <message>
        <source>请关闭打印机，等待10秒后重新打开，再试一次。如果问题依旧，请联系售后服务。</source>
        <translation>请关闭打印机，等待 10 秒后重新打开，再试一次。如果问题依旧，请联系售后服务。</translation>
    </message>
    <message>
        <source>请在打印机上打开Wi-Fi功能，重新启动打印机，然后再试一次。</source>
        <translation>请在打印机上打开 Wi-Fi 功能，重新启动打印机，然后再试一次。</translation>
    </message>
    <message>
        <source>此电脑</source>
        <translation>此电脑正在使用</translation>
    </message>
    <message>
        <source>请打开定位服务，步骤：系统设置-&gt;隐私与安全性-&gt;隐私-&gt;定位服务。</source>
        <translation>本程序没有搜索 Wi-Fi 网络的权限。请在系统设置的“隐私”或“Wi-Fi”中允许。</translation>
    </message>
    <message>
        <source>详细信息</source>
        <translation>详细信息(&amp;D)</translation>
    </message>
    <message>
        <source>复制详细信息</source>
        <translation>复制详细信息(&amp;C)</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>复制地址(&amp;C)</translation>
    </message>
    <message>
        <source>打开打印机的网页</source>
        <translation>打开打印机的网页(&amp;P)</translation>
    </message>
    <message>
        <source>%ld%%</source>
        <translation>%ld%%</translation>
    </message>
</context>
</TS>
