<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="zh_CN">
<context>
    <name>wifitool</name>
    <message>
        <source>温馨提示：</source>
        <translation>提醒</translation>
    </message>
    <message>
        <source>是否退出Wi-Fi配置工具?</source>
        <translation>要結束 Wi-Fi 設定工具嗎？</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開放</translation>
    </message>
    <message>
        <source>WEP</source>
        <translation>WEP</translation>
    </message>
    <message>
        <source>WPA-Personal</source>
        <translation>WPA 個人版</translation>
    </message>
    <message>
        <source>WPA-Enterprise</source>
        <translation>WPA 企業版</translation>
    </message>
    <message>
        <source>WPA/WPA2-Personal</source>
        <translation>WPA/WPA2 個人版</translation>
    </message>
    <message>
        <source>WPA/WPA2-Enterprise</source>
        <translation>WPA/WPA2 企業版</translation>
    </message>
    <message>
        <source>WPA2-Personal</source>
        <translation>WPA2 個人版</translation>
    </message>
    <message>
        <source>WPA2-Enterprise</source>
        <translation>WPA2 企業版</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Personal</source>
        <translation>WPA2/WPA3 個人版</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Enterprise</source>
        <translation>WPA2/WPA3 企業版</translation>
    </message>
    <message>
        <source>WPA3-Personal</source>
        <translation>WPA3 個人版</translation>
    </message>
    <message>
        <source>WPA3-Enterprise</source>
        <translation>WPA3 企業版</translation>
    </message>
    <message>
        <source>OWE</source>
        <translation>Enhanced Open (OWE)</translation>
    </message>
    <message>
        <source>正在唤醒打印机…</source>
        <translation>正在喚醒印表機…</translation>
    </message>
    <message>
        <source>正在检查打印机能否配置无线网络…</source>
        <translation>正在檢查印表機能否設定 Wi-Fi…</translation>
    </message>
    <message>
        <source>正在发送网络名称和密码，打印机正在加入网络…</source>
        <translation>正在傳送網路名稱和密碼，印表機正在連線到網路…</translation>
    </message>
    <message>
        <source>正在等待打印机的网络地址（第 %d 次，共 %d 次）…</source>
        <translation>正在等待印表機的網路位址（第 %d 次，共 %d 次）…</translation>
    </message>
    <message>
        <source>打印机没有应答，您现在可以关闭此窗口。</source>
        <translation>印表機沒有回應。請關閉此視窗，重新啟動印表機後再試一次。</translation>
    </message>
    <message>
        <source>正在配置打印机</source>
        <translation>正在設定印表機</translation>
    </message>
    <message>
        <source>这可能需要几分钟。请保持打印机开机，不要拔下 USB 数据线。</source>
        <translation>這可能需要幾分鐘。請保持印表機開機，不要拔下 USB 傳輸線。</translation>
    </message>
    <message>
        <source>配置进度</source>
        <translation>設定進度</translation>
    </message>
    <message>
        <source>打印机最多接受 %d 个字节的密码，请为网络设置较短的密码。</source>
        <translation>密碼太長，印表機最多接受 %d 個位元組（一般字母或數字各佔一個）。請為網路設定較短的密碼。</translation>
    </message>
    <message>
        <source>网络名称</source>
        <translation>網路名稱(&amp;A)</translation>
    </message>
    <message>
        <source>网络密码</source>
        <translation>網路密碼(&amp;W)</translation>
    </message>
    <message>
        <source>与路由器上显示的名称完全一致，区分大小写。</source>
        <translation>請與路由器顯示的名稱完全相同，大小寫視為不同。</translation>
    </message>
    <message>
        <source>没有密码的网络请留空。</source>
        <translation>網路沒有密碼時請留空。</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>顯示密碼(&amp;S)</translation>
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
        <translation>列印 Wi-Fi 資訊頁(&amp;P)</translation>
    </message>
    <message>
        <source>输入无线网络</source>
        <translation>輸入 Wi-Fi 網路</translation>
    </message>
    <message>
        <source>此电脑的无线网络已关闭，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>此電腦的 Wi-Fi 已關閉，無法列出附近的網路。請輸入印表機要連線的網路。</translation>
    </message>
    <message>
        <source>名称太长：最多 32 个字节。</source>
        <translation>名稱太長：最多 32 個位元組。</translation>
    </message>
    <message>
        <source>打印端口被占用，无法打印无线网络信息页。</source>
        <translation>印表機忙碌中。請等工作完成後再試一次。</translation>
    </message>
    <message>
        <source>已将无线网络信息页发送给打印机</source>
        <translation>已將 Wi-Fi 資訊頁傳送給印表機。</translation>
    </message>
    <message>
        <source>不过它可能打印不出来：%@</source>
        <translation>不過它可能印不出來：%@</translation>
    </message>
    <message>
        <source>完成并退出</source>
        <translation>完成並結束(&amp;F)</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>結束(&amp;Q)</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>網路</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>第%d步，共%d步：%@</source>
        <translation>步驟 %d，共 %d 步：%@</translation>
    </message>
    <message>
        <source>第%d步</source>
        <translation>步驟 %d</translation>
    </message>
    <message>
        <source>Wi-Fi配置工具</source>
        <translation>Wi-Fi 設定工具</translation>
    </message>
    <message>
        <source>让打印机连上无线网络</source>
        <translation>將印表機連上 Wi-Fi</translation>
    </message>
    <message>
        <source>请打开打印机电源，然后选择配置方式。</source>
        <translation>請開啟印表機電源，然後選擇設定方式。</translation>
    </message>
    <message>
        <source>USB数据线</source>
        <translation>USB 傳輸線</translation>
    </message>
    <message>
        <source>用数据线连接打印机和电脑。适合第一次使用。</source>
        <translation>用傳輸線連接印表機和電腦。適合第一次使用。</translation>
    </message>
    <message>
        <source>WPS一键配网</source>
        <translation>WPS 一鍵連線</translation>
    </message>
    <message>
        <source>路由器有WPS按钮时可用，不需要数据线和密码。</source>
        <translation>路由器有 WPS 按鈕時可用，不需要傳輸線和密碼。</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi按钮</source>
        <translation>印表機的 Wi-Fi 按鈕</translation>
    </message>
    <message>
        <source>打印机没有显示屏时使用，与路由器上的WPS按钮配合。</source>
        <translation>印表機沒有螢幕時使用，搭配路由器上的 WPS 按鈕。</translation>
    </message>
    <message>
        <source>打印机的菜单</source>
        <translation>印表機的選單</translation>
    </message>
    <message>
        <source>打印机有显示屏和菜单时使用。</source>
        <translation>印表機有螢幕和選單時使用。</translation>
    </message>
    <message>
        <source>从哪里启动WPS？</source>
        <translation>要從哪裡啟動 WPS？</translation>
    </message>
    <message>
        <source>看一看您的打印机：它有显示屏和菜单，还是只有Wi-Fi按钮？</source>
        <translation>請看看您的印表機：它有螢幕和選單，還是只有 Wi-Fi 按鈕？</translation>
    </message>
    <message>
        <source>按钮方式（PBC）</source>
        <translation>按鈕方式（PBC）</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮即可。</source>
        <translation>只要按一下路由器上的 WPS 按鈕。</translation>
    </message>
    <message>
        <source>PIN码方式</source>
        <translation>PIN 碼方式</translation>
    </message>
    <message>
        <source>路由器没有WPS按钮时，在它的设置页面输入PIN码。</source>
        <translation>路由器沒有 WPS 按鈕時，在路由器的設定頁面輸入印表機的 PIN 碼。</translation>
    </message>
    <message>
        <source>选择WPS的方式</source>
        <translation>選擇 WPS 方式</translation>
    </message>
    <message>
        <source>两种方式都在打印机的菜单里。路由器上有WPS按钮时，按钮方式最简单。</source>
        <translation>兩種方式都在印表機的選單裡。路由器有 WPS 按鈕時，按鈕方式比較簡單。</translation>
    </message>
    <message>
        <source>用按钮连接</source>
        <translation>用按鈕連線</translation>
    </message>
    <message>
        <source>请在两分钟内完成前两步。</source>
        <translation>請在兩分鐘內完成前兩個步驟。</translation>
    </message>
    <message>
        <source>按住打印机上的Wi-Fi按钮约3秒，直到指示灯开始闪烁。</source>
        <translation>按住印表機上的 Wi-Fi 按鈕約 3 秒，直到指示燈開始閃爍。</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮。</source>
        <translation>按一下路由器上的 WPS 按鈕。</translation>
    </message>
    <message>
        <source>等待最多两分钟。指示灯不再闪烁时，点击“下一步”。</source>
        <translation>最多等待兩分鐘。指示燈不再閃爍後，點選「下一步」。</translation>
    </message>
    <message>
        <source>在打印机菜单中使用按钮方式</source>
        <translation>從印表機選單使用按鈕方式</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PBC，然后按OK确认。</source>
        <translation>在印表機螢幕上選擇：選單 › 網路 › WPS › PBC，然後按 OK。</translation>
    </message>
    <message>
        <source>等待最多两分钟。显示屏显示结果后，点击“下一步”。</source>
        <translation>最多等待兩分鐘。螢幕顯示結果後，點選「下一步」。</translation>
    </message>
    <message>
        <source>在打印机菜单中使用PIN码</source>
        <translation>從印表機選單使用 PIN 碼</translation>
    </message>
    <message>
        <source>PIN码几分钟后失效，请先准备好路由器的设置页面。</source>
        <translation>PIN 碼幾分鐘後就會失效，請先開啟路由器的設定頁面。</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PIN，显示屏会显示一个8位数字。</source>
        <translation>在印表機螢幕上選擇：選單 › 網路 › WPS › PIN，螢幕會顯示一組 8 位數字。</translation>
    </message>
    <message>
        <source>在路由器设置页面的WPS栏输入这个PIN码，然后开始连接。</source>
        <translation>在路由器設定頁面的 WPS 欄位輸入這組 PIN 碼，然後開始連線。</translation>
    </message>
    <message>
        <source>打印机的显示屏显示什么？</source>
        <translation>印表機螢幕上顯示什麼？</translation>
    </message>
    <message>
        <source>请看打印机的显示屏，选择您看到的结果。</source>
        <translation>請看印表機螢幕，選擇您看到的結果。</translation>
    </message>
    <message>
        <source>连接成功</source>
        <translation>連線成功</translation>
    </message>
    <message>
        <source>显示屏显示“连接成功”或IP地址。</source>
        <translation>螢幕顯示「連線成功」或 IP 位址。</translation>
    </message>
    <message>
        <source>连接失败</source>
        <translation>連線失敗</translation>
    </message>
    <message>
        <source>显示屏显示“连接失败”或“超时”。请返回，再试一次。</source>
        <translation>螢幕顯示「連線失敗」或「逾時」。請返回，再試一次。</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi指示灯怎么样？</source>
        <translation>印表機的 Wi-Fi 指示燈狀態為何？</translation>
    </message>
    <message>
        <source>请看打印机的Wi-Fi指示灯，选择您看到的样子。</source>
        <translation>請看印表機的 Wi-Fi 指示燈，選擇您看到的狀態。</translation>
    </message>
    <message>
        <source>指示灯常亮</source>
        <translation>指示燈持續亮著</translation>
    </message>
    <message>
        <source>打印机已经连上无线网络。</source>
        <translation>印表機已連上 Wi-Fi。</translation>
    </message>
    <message>
        <source>指示灯闪烁或熄灭</source>
        <translation>指示燈閃爍或熄滅</translation>
    </message>
    <message>
        <source>没有连上。请返回，再试一次。</source>
        <translation>沒有連上。請返回，再試一次。</translation>
    </message>
    <message>
        <source>打开系统的添加打印机窗口</source>
        <translation>開啟系統的「新增印表機」視窗(&amp;O)</translation>
    </message>
    <message>
        <source>恭喜，您完成了无线网络配置！</source>
        <translation>恭喜，印表機的 Wi-Fi 已設定完成！</translation>
    </message>
    <message>
        <source>现在可以拔掉USB数据线了。要在这台电脑上打印，请把打印机添加到系统：勾选下面的选项，然后点击“完成并退出”。</source>
        <translation>現在可以拔下 USB 傳輸線了。要在這台電腦上列印，請將印表機新增到系統：勾選下方的選項，然後點選「完成並結束」。</translation>
    </message>
    <message>
        <source>打印机已连上无线网络</source>
        <translation>印表機已連上 Wi-Fi</translation>
    </message>
    <message>
        <source>打印机没有连上无线网络</source>
        <translation>印表機沒有連上 Wi-Fi</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机网络未开启，无法进行配网。</source>
        <translation>設定失敗：印表機的 Wi-Fi 已關閉。</translation>
    </message>
    <message>
        <source>配网失败</source>
        <translation>網路設定失敗。</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机Wi-Fi模块未装配，无法进行配网。</source>
        <translation>設定失敗：印表機沒有 Wi-Fi 模組。</translation>
    </message>
    <message>
        <source>Wi-Fi故障，打印机配置失败。</source>
        <translation>設定失敗：印表機的 Wi-Fi 故障。</translation>
    </message>
    <message>
        <source>打印机配置失败，系统升级过程中，不允许配置网络。</source>
        <translation>設定失敗：印表機正在更新系統，目前無法設定。</translation>
    </message>
    <message>
        <source>请检查打印机是否已开机、数据线是否插好、网络名称和密码是否正确，然后重新打开本工具再试一次。</source>
        <translation>請檢查印表機是否已開機、傳輸線是否插好、網路名稱和密碼是否正確，然後重新啟動本程式再試一次。</translation>
    </message>
    <message>
        <source>这台打印机没有安装Wi-Fi模块。请继续使用USB数据线打印，或向经销商咨询Wi-Fi模块。</source>
        <translation>請繼續使用 USB 傳輸線列印，或向經銷商洽詢 Wi-Fi 模組。</translation>
    </message>
    <message>
        <source>请关闭打印机，等待10秒后重新打开，再试一次。如果问题依旧，请联系售后服务。</source>
        <translation>請關閉印表機，等待 10 秒後重新開啟，再試一次。如果問題仍未解決，請聯絡客戶服務。</translation>
    </message>
    <message>
        <source>请等待打印机升级完成，期间不要关闭电源，然后再试一次。</source>
        <translation>請等待印表機更新完成，期間不要關閉電源，然後再試一次。</translation>
    </message>
    <message>
        <source>请在打印机上打开Wi-Fi功能，重新启动打印机，然后再试一次。</source>
        <translation>請開啟印表機的 Wi-Fi，重新啟動印表機，然後再試一次。</translation>
    </message>
    <message>
        <source>您可以这样做</source>
        <translation>您可以這樣做</translation>
    </message>
    <message>
        <source>运行日志：%@</source>
        <translation>記錄檔：%@</translation>
    </message>
    <message>
        <source>配置没有成功</source>
        <translation>設定未成功</translation>
    </message>
    <message>
        <source>打印机没有接受这次配置。</source>
        <translation>印表機沒有接受設定。</translation>
    </message>
    <message>
        <source>请检查网络名称和密码（注意大小写），并确认打印机已开机、数据线已插好、离路由器不太远。然后返回，再试一次。</source>
        <translation>請檢查網路名稱和密碼（大小寫視為不同），並確認印表機已開機、傳輸線已插好、離路由器不太遠。然後返回，再試一次。</translation>
    </message>
    <message>
        <source>没有连接打印机</source>
        <translation>沒有連接印表機</translation>
    </message>
    <message>
        <source>没有找到支持无线网络的打印机。</source>
        <translation>找不到支援 Wi-Fi 的印表機。</translation>
    </message>
    <message>
        <source>请打开打印机电源，用 USB 数据线把它连到这台电脑，等待几秒。然后返回，再试一次。</source>
        <translation>請開啟印表機電源，用 USB 傳輸線將它連接到這台電腦，等待幾秒。然後返回，再試一次。</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>隱藏密碼</translation>
    </message>
    <message>
        <source>大写锁定已打开</source>
        <translation>大寫鎖定已開啟</translation>
    </message>
    <message>
        <source>too common</source>
        <translation>太常見</translation>
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
        <translation>一般</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>強</translation>
    </message>
    <message>
        <source>选择无线网络</source>
        <translation>選擇 Wi-Fi 網路</translation>
    </message>
    <message>
        <source>请选择打印机要连接的网络，并输入它的密码。</source>
        <translation>請選擇印表機要連線的網路，並輸入密碼。</translation>
    </message>
    <message>
        <source>附近的无线网络</source>
        <translation>附近的網路</translation>
    </message>
    <message>
        <source>正在查找无线网络…</source>
        <translation>正在尋找網路…</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>重新整理(&amp;R)</translation>
    </message>
    <message>
        <source>此电脑</source>
        <translation>此電腦使用中</translation>
    </message>
    <message>
        <source>前往设置</source>
        <translation>開啟設定</translation>
    </message>
    <message>
        <source>请打开定位服务，步骤：系统设置-&gt;隐私与安全性-&gt;隐私-&gt;定位服务。</source>
        <translation>本程式沒有搜尋 Wi-Fi 網路的權限。請在系統設定的「隱私權」或「Wi-Fi」中允許。</translation>
    </message>
    <message>
        <source>打印端口被占用，无法配置打印机</source>
        <translation>印表機正在處理其他工作，目前無法設定。請等工作完成後，再按一次「下一步」。</translation>
    </message>
    <message>
        <source>请从列表中选择，或在此输入名称。</source>
        <translation>請從清單中選擇，或在此輸入名稱。</translation>
    </message>
    <message>
        <source>唤醒打印机</source>
        <translation>喚醒印表機</translation>
    </message>
    <message>
        <source>询问打印机能否使用 Wi-Fi</source>
        <translation>詢問印表機能否使用 Wi-Fi</translation>
    </message>
    <message>
        <source>发送网络设置</source>
        <translation>傳送網路設定</translation>
    </message>
    <message>
        <source>查询打印机的地址</source>
        <translation>查詢印表機的位址</translation>
    </message>
    <message>
        <source>打印信息页</source>
        <translation>列印資訊頁</translation>
    </message>
    <message>
        <source>“%@”（进程 %@）正在使用打印机。</source>
        <translation>「%@」（處理程序 %@）正在使用印表機。</translation>
    </message>
    <message>
        <source>请关闭该程序，然后再试一次。如果打印机已连接到虚拟机，请先在虚拟机中断开。</source>
        <translation>請關閉該程式，然後再試一次。如果印表機已連接到虛擬機器，請先在虛擬機器中將它中斷。</translation>
    </message>
    <message>
        <source>另一个程序正在使用打印机。</source>
        <translation>另一個程式正在使用印表機。</translation>
    </message>
    <message>
        <source>请关闭正在打印或扫描的程序以及虚拟机，然后再试一次。</source>
        <translation>請關閉正在列印或掃描的程式以及虛擬機器，然後再試一次。</translation>
    </message>
    <message>
        <source>此电脑不允许您使用打印机：缺少规则 60-wifitool.rules。</source>
        <translation>此電腦不允許您使用印表機：缺少規則 60-wifitool.rules。</translation>
    </message>
    <message>
        <source>请重新安装带有此规则的 wifitool 软件包，拔下 USB 数据线再插上，然后再试一次。</source>
        <translation>請重新安裝含有此規則的 wifitool 套件，拔下 USB 傳輸線再插上，然後再試一次。</translation>
    </message>
    <message>
        <source>此电脑还没有允许您使用打印机。</source>
        <translation>此電腦尚未允許您使用印表機。</translation>
    </message>
    <message>
        <source>请拔下 USB 数据线再插上，等待几秒，然后再试一次。如果没有用，请重新启动电脑。</source>
        <translation>請拔下 USB 傳輸線再插上，等待幾秒，然後再試一次。如果沒有用，請重新啟動電腦。</translation>
    </message>
    <message>
        <source>只有直接在此电脑前登录的人才能使用打印机。您的会话是远程的，或是以其他方式启动的。</source>
        <translation>只有直接在此電腦前登入的人才能使用印表機。您的工作階段位於遠端，或是以其他方式啟動的。</translation>
    </message>
    <message>
        <source>请直接在此电脑上登录后再试一次，或请管理员帮忙。</source>
        <translation>請直接在此電腦上登入後再試一次，或洽詢系統管理員。</translation>
    </message>
    <message>
        <source>打印机被拔下或关闭了（步骤：%@）。</source>
        <translation>印表機被拔下或關閉了（步驟：%@）。</translation>
    </message>
    <message>
        <source>在 USB 上找不到打印机。</source>
        <translation>在 USB 上找不到印表機。</translation>
    </message>
    <message>
        <source>请打开打印机并插好数据线，等它准备就绪后再试一次。完成之前请不要拔线。</source>
        <translation>請開啟印表機電源並插好傳輸線，等它就緒後再試一次。完成前請勿拔線。</translation>
    </message>
    <message>
        <source>打印机在 %d 秒内没有响应（步骤：%@）。</source>
        <translation>印表機在 %d 秒內沒有回應（步驟：%@）。</translation>
    </message>
    <message>
        <source>打印机可能在休眠或正忙：请按一下打印机上的任意键，等它准备就绪后再试一次。如果没有用，请关闭打印机，10 秒后再打开。</source>
        <translation>印表機可能在休眠或忙碌中：請按一下印表機上的任一按鍵，等它就緒後再試一次。如果沒有用，請關閉印表機，10 秒後再開啟。</translation>
    </message>
    <message>
        <source>打印机给出了意外的响应（步骤：%@）。</source>
        <translation>印表機的回應不符預期（步驟：%@）。</translation>
    </message>
    <message>
        <source>与打印机的 USB 通信出错（步骤：%@）。</source>
        <translation>與印表機的 USB 通訊發生錯誤（步驟：%@）。</translation>
    </message>
    <message>
        <source>请把打印机直接接到电脑的另一个 USB 接口（不要经过集线器），最好换一根数据线，然后再试一次。</source>
        <translation>請將印表機直接連接到電腦的另一個 USB 連接埠（不要經過集線器），最好換一條傳輸線，然後再試一次。</translation>
    </message>
    <message>
        <source>打印机拒绝了网络设置，最可能的原因是密码不对。</source>
        <translation>印表機拒絕了網路設定，最可能的原因是密碼錯誤。</translation>
    </message>
    <message>
        <source>请检查密码（区分大小写）。许多打印机只支持 2.4 GHz，不支持 5 GHz。如果打印机离路由器太远，请移近一些。然后再试一次。</source>
        <translation>請檢查密碼（大小寫視為不同）。許多印表機只支援 2.4 GHz，不支援 5 GHz。如果印表機離路由器太遠，請移近一些。然後再試一次。</translation>
    </message>
    <message>
        <source>打印机收到了设置，但没有从路由器得到地址。</source>
        <translation>印表機收到了設定，但沒有從路由器取得位址。</translation>
    </message>
    <message>
        <source>最可能的原因是密码不对、网络只有 5 GHz，或路由器太远：请检查后再试一次。如果都没有问题，请重新启动路由器，并查看它是否只允许已知的设备。</source>
        <translation>最可能的原因是密碼錯誤、網路只有 5 GHz，或路由器太遠：請檢查後再試一次。如果都沒有問題，請重新啟動路由器，並查看它是否只允許已知的裝置。</translation>
    </message>
    <message>
        <source>打印机没有说明能否配置 Wi-Fi。</source>
        <translation>印表機沒有說明能否設定 Wi-Fi。</translation>
    </message>
    <message>
        <source>详细信息</source>
        <translation>詳細資料(&amp;D)</translation>
    </message>
    <message>
        <source>复制详细信息</source>
        <translation>複製詳細資料(&amp;C)</translation>
    </message>
    <message>
        <source>已复制</source>
        <translation>已複製</translation>
    </message>
    <message>
        <source>打印机地址</source>
        <translation>印表機位址</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>複製位址(&amp;C)</translation>
    </message>
    <message>
        <source>打开打印机的网页</source>
        <translation>開啟印表機的網頁(&amp;P)</translation>
    </message>
    <message>
        <source>正在检查此电脑能否连上打印机…</source>
        <translation>正在檢查此電腦能否連上印表機…</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机。</source>
        <translation>此電腦可以連上印表機。</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机，但打印机不接受网络打印（IPP）。</source>
        <translation>此電腦可以連上印表機，但印表機不接受網路列印（IPP）。</translation>
    </message>
    <message>
        <source>此电脑连不上打印机。打印机可能在另一个网络上，或在会隔离设备的访客网络上。</source>
        <translation>此電腦無法連上印表機。印表機可能在另一個網路上，或在會隔離裝置的訪客網路上。</translation>
    </message>
    <message>
        <source>此网络还要求用户名，而用户名无法发送给打印机。</source>
        <translation>此網路還要求使用者名稱，而使用者名稱無法傳送給印表機。</translation>
    </message>
    <message>
        <source>此网络只接受 WPA3，有些打印机不支持。</source>
        <translation>此網路只接受 WPA3，有些印表機不支援。</translation>
    </message>
    <message>
        <source>此网络只有 5 GHz，许多打印机需要 2.4 GHz。</source>
        <translation>此網路只有 5 GHz，許多印表機需要 2.4 GHz。</translation>
    </message>
    <message>
        <source>此网络需要密码，您还没有输入。</source>
        <translation>此網路需要密碼，您尚未輸入。</translation>
    </message>
    <message>
        <source>名称的开头或结尾有空格。</source>
        <translation>名稱的開頭或結尾有空格。</translation>
    </message>
    <message>
        <source>密码的开头或结尾有空格。</source>
        <translation>密碼的開頭或結尾有空格。</translation>
    </message>
    <message>
        <source>名称含有控制字符，无法发送给打印机。</source>
        <translation>名稱含有控制字元，無法傳送給印表機。</translation>
    </message>
    <message>
        <source>密码含有控制字符，无法发送给打印机。</source>
        <translation>密碼含有控制字元，無法傳送給印表機。</translation>
    </message>
    <message>
        <source>正在等待系统许可…</source>
        <translation>正在等待系統許可…</translation>
    </message>
    <message>
        <source>系统尚未回答是否允许查找网络。请点击“刷新”再试一次，或直接输入名称。</source>
        <translation>系統尚未回應是否允許尋找網路。請點選「重新整理」再試一次，或直接輸入名稱。</translation>
    </message>
    <message>
        <source>没有找到网络。请点击“刷新”再找一次，或直接输入名称。</source>
        <translation>找不到網路。請點選「重新整理」再找一次，或直接輸入名稱。</translation>
    </message>
    <message>
        <source>%ld%%</source>
        <translation>%ld%%</translation>
    </message>
    <message>
        <source>此桌面没有添加打印机的窗口。请自行打开系统设置中的“打印机”，或在浏览器中打开 %@。</source>
        <translation>此桌面沒有新增印表機的視窗。請自行開啟系統設定中的「印表機」，或在瀏覽器中開啟 %@。</translation>
    </message>
    <message>
        <source>无法从这里打开系统设置。请自行打开，并在“隐私”或“Wi-Fi”中允许查找网络。</source>
        <translation>無法從這裡開啟系統設定。請自行開啟，並在「隱私權」或「Wi-Fi」中允許尋找網路。</translation>
    </message>
    <message>
        <source>此电脑没有 Wi-Fi 适配器，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>此電腦沒有 Wi-Fi 網路卡，無法列出附近的網路。請輸入印表機要連線的網路。</translation>
    </message>
    <message>
        <source>已连接 %d 台打印机，将配置“%@”。要配置另一台，请先拔下这一台。</source>
        <translation>已連接 %d 台印表機，將設定「%@」。若要設定另一台，請先拔下這一台。</translation>
    </message>
    <message>
        <source>打印机：%@</source>
        <translation>印表機：%@</translation>
    </message>
</context>
</TS>
