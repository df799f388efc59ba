<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="zh_CN">
<context>
    <name>wifitool</name>
    <message>
        <source>温馨提示：</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>是否退出Wi-Fi配置工具?</source>
        <translation>Wi-Fi Tool beenden?</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstige</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
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
        <translation>Der Drucker wird aufgeweckt …</translation>
    </message>
    <message>
        <source>正在检查打印机能否配置无线网络…</source>
        <translation>Es wird geprüft, ob sich der Drucker für WLAN einrichten lässt …</translation>
    </message>
    <message>
        <source>正在发送网络名称和密码，打印机正在加入网络…</source>
        <translation>Name und Passwort werden gesendet; der Drucker verbindet sich mit dem Netzwerk …</translation>
    </message>
    <message>
        <source>正在等待打印机的网络地址（第 %d 次，共 %d 次）…</source>
        <translation>Warten auf die Adresse des Druckers (%d von %d) …</translation>
    </message>
    <message>
        <source>打印机没有应答，您现在可以关闭此窗口。</source>
        <translation>Der Drucker hat nicht geantwortet. Schließen Sie dieses Fenster, starten Sie den Drucker neu und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>正在配置打印机</source>
        <translation>Der Drucker wird eingerichtet</translation>
    </message>
    <message>
        <source>这可能需要几分钟。请保持打印机开机，不要拔下 USB 数据线。</source>
        <translation>Das kann einige Minuten dauern. Lassen Sie den Drucker an und das USB-Kabel stecken.</translation>
    </message>
    <message>
        <source>配置进度</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>打印机最多接受 %d 个字节的密码，请为网络设置较短的密码。</source>
        <translation>Dieses Passwort ist für den Drucker zu lang: höchstens %d Byte, eines je gewöhnlichem Buchstaben oder Ziffer. Vergeben Sie für das Netzwerk ein kürzeres.</translation>
    </message>
    <message>
        <source>网络名称</source>
        <translation>&amp;Netzwerkname</translation>
    </message>
    <message>
        <source>网络密码</source>
        <translation>&amp;Passwort</translation>
    </message>
    <message>
        <source>与路由器上显示的名称完全一致，区分大小写。</source>
        <translation>Genau wie am Router angezeigt; Groß- und Kleinschreibung zählt.</translation>
    </message>
    <message>
        <source>没有密码的网络请留空。</source>
        <translation>Für ein Netzwerk ohne Passwort leer lassen.</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Passwort anz&amp;eigen</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>上一步</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>打印无线网络信息页</source>
        <translation>WLAN-&amp;Infoseite drucken</translation>
    </message>
    <message>
        <source>输入无线网络</source>
        <translation>WLAN-Netzwerk eingeben</translation>
    </message>
    <message>
        <source>此电脑的无线网络已关闭，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>Das WLAN dieses Computers ist aus, deshalb kann er keine Netzwerke auflisten. Geben Sie das Netzwerk ein, mit dem sich der Drucker verbinden soll.</translation>
    </message>
    <message>
        <source>名称太长：最多 32 个字节。</source>
        <translation>Dieser Name ist zu lang: höchstens 32 Byte.</translation>
    </message>
    <message>
        <source>打印端口被占用，无法打印无线网络信息页。</source>
        <translation>Der Drucker ist beschäftigt. Warten Sie, bis er fertig ist, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>已将无线网络信息页发送给打印机</source>
        <translation>Die WLAN-Infoseite wurde an den Drucker gesendet.</translation>
    </message>
    <message>
        <source>不过它可能打印不出来：%@</source>
        <translation>Sie wird aber vielleicht nicht gedruckt: %@</translation>
    </message>
    <message>
        <source>完成并退出</source>
        <translation>&amp;Fertigstellen und beenden</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>第%d步，共%d步：%@</source>
        <translation>Schritt %d von %d: %@</translation>
    </message>
    <message>
        <source>第%d步</source>
        <translation>Schritt %d</translation>
    </message>
    <message>
        <source>Wi-Fi配置工具</source>
        <translation>Wi-Fi Tool</translation>
    </message>
    <message>
        <source>让打印机连上无线网络</source>
        <translation>Drucker mit dem WLAN verbinden</translation>
    </message>
    <message>
        <source>请打开打印机电源，然后选择配置方式。</source>
        <translation>Schalten Sie den Drucker ein und wählen Sie dann, wie Sie ihn einrichten möchten.</translation>
    </message>
    <message>
        <source>USB数据线</source>
        <translation>USB-Kabel</translation>
    </message>
    <message>
        <source>用数据线连接打印机和电脑。适合第一次使用。</source>
        <translation>Den Drucker per Kabel mit diesem Computer verbinden. Für das erste Mal empfohlen.</translation>
    </message>
    <message>
        <source>WPS一键配网</source>
        <translation>WPS</translation>
    </message>
    <message>
        <source>路由器有WPS按钮时可用，不需要数据线和密码。</source>
        <translation>Für Router mit WPS-Taste. Braucht weder Kabel noch Passwort.</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi按钮</source>
        <translation>WLAN-Taste</translation>
    </message>
    <message>
        <source>打印机没有显示屏时使用，与路由器上的WPS按钮配合。</source>
        <translation>Für Drucker ohne Display, zusammen mit der WPS-Taste am Router.</translation>
    </message>
    <message>
        <source>打印机的菜单</source>
        <translation>Druckermenü</translation>
    </message>
    <message>
        <source>打印机有显示屏和菜单时使用。</source>
        <translation>Für Drucker mit Display und Menü.</translation>
    </message>
    <message>
        <source>从哪里启动WPS？</source>
        <translation>Wo möchten Sie WPS starten?</translation>
    </message>
    <message>
        <source>看一看您的打印机：它有显示屏和菜单，还是只有Wi-Fi按钮？</source>
        <translation>Sehen Sie sich den Drucker an: Hat er ein Display mit Menü oder nur eine WLAN-Taste?</translation>
    </message>
    <message>
        <source>按钮方式（PBC）</source>
        <translation>Tastendruck (PBC)</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮即可。</source>
        <translation>Sie drücken nur die WPS-Taste am Router.</translation>
    </message>
    <message>
        <source>PIN码方式</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>路由器没有WPS按钮时，在它的设置页面输入PIN码。</source>
        <translation>Für Router ohne WPS-Taste: Sie geben die PIN des Druckers auf der Einstellungsseite des Routers ein.</translation>
    </message>
    <message>
        <source>选择WPS的方式</source>
        <translation>WPS-Methode wählen</translation>
    </message>
    <message>
        <source>两种方式都在打印机的菜单里。路由器上有WPS按钮时，按钮方式最简单。</source>
        <translation>Beide Methoden finden Sie im Menü des Druckers. Hat der Router eine WPS-Taste, ist der Tastendruck einfacher.</translation>
    </message>
    <message>
        <source>用按钮连接</source>
        <translation>Mit den Tasten verbinden</translation>
    </message>
    <message>
        <source>请在两分钟内完成前两步。</source>
        <translation>Führen Sie die ersten beiden Schritte innerhalb von zwei Minuten aus.</translation>
    </message>
    <message>
        <source>按住打印机上的Wi-Fi按钮约3秒，直到指示灯开始闪烁。</source>
        <translation>Halten Sie die WLAN-Taste am Drucker etwa 3 Sekunden gedrückt, bis die Leuchte blinkt.</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮。</source>
        <translation>Drücken Sie die WPS-Taste am Router.</translation>
    </message>
    <message>
        <source>等待最多两分钟。指示灯不再闪烁时，点击“下一步”。</source>
        <translation>Warten Sie bis zu zwei Minuten. Wenn die Leuchte nicht mehr blinkt, klicken Sie hier auf „Weiter“.</translation>
    </message>
    <message>
        <source>在打印机菜单中使用按钮方式</source>
        <translation>Tastendruck über das Druckermenü</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PBC，然后按OK确认。</source>
        <translation>Wählen Sie am Display des Druckers Menü › Netzwerk › WPS › PBC und bestätigen Sie mit OK.</translation>
    </message>
    <message>
        <source>等待最多两分钟。显示屏显示结果后，点击“下一步”。</source>
        <translation>Warten Sie bis zu zwei Minuten. Wenn das Display das Ergebnis zeigt, klicken Sie hier auf „Weiter“.</translation>
    </message>
    <message>
        <source>在打印机菜单中使用PIN码</source>
        <translation>PIN über das Druckermenü</translation>
    </message>
    <message>
        <source>PIN码几分钟后失效，请先准备好路由器的设置页面。</source>
        <translation>Die PIN gilt nur wenige Minuten. Öffnen Sie zuerst die Einstellungsseite des Routers.</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PIN，显示屏会显示一个8位数字。</source>
        <translation>Wählen Sie am Display des Druckers Menü › Netzwerk › WPS › PIN. Es zeigt dann eine achtstellige Zahl.</translation>
    </message>
    <message>
        <source>在路由器设置页面的WPS栏输入这个PIN码，然后开始连接。</source>
        <translation>Geben Sie diese PIN im WPS-Bereich der Einstellungsseite des Routers ein und starten Sie dort die Verbindung.</translation>
    </message>
    <message>
        <source>打印机的显示屏显示什么？</source>
        <translation>Was zeigt das Display des Druckers?</translation>
    </message>
    <message>
        <source>请看打印机的显示屏，选择您看到的结果。</source>
        <translation>Sehen Sie auf das Display des Druckers und wählen Sie, was Sie sehen.</translation>
    </message>
    <message>
        <source>连接成功</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>显示屏显示“连接成功”或IP地址。</source>
        <translation>Das Display meldet die Verbindung oder zeigt eine IP-Adresse.</translation>
    </message>
    <message>
        <source>连接失败</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>显示屏显示“连接失败”或“超时”。请返回，再试一次。</source>
        <translation>Das Display meldet einen Fehler oder eine Zeitüberschreitung. Gehen Sie zurück und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi指示灯怎么样？</source>
        <translation>Was macht die WLAN-Leuchte des Druckers?</translation>
    </message>
    <message>
        <source>请看打印机的Wi-Fi指示灯，选择您看到的样子。</source>
        <translation>Sehen Sie auf die WLAN-Leuchte am Drucker und wählen Sie, was Sie sehen.</translation>
    </message>
    <message>
        <source>指示灯常亮</source>
        <translation>Leuchtet dauerhaft</translation>
    </message>
    <message>
        <source>打印机已经连上无线网络。</source>
        <translation>Der Drucker ist mit dem WLAN verbunden.</translation>
    </message>
    <message>
        <source>指示灯闪烁或熄灭</source>
        <translation>Blinkt oder ist aus</translation>
    </message>
    <message>
        <source>没有连上。请返回，再试一次。</source>
        <translation>Keine Verbindung. Gehen Sie zurück und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>打开系统的添加打印机窗口</source>
        <translation>Systemfenster „&amp;Drucker hinzufügen“ öffnen</translation>
    </message>
    <message>
        <source>恭喜，您完成了无线网络配置！</source>
        <translation>Glückwunsch, das WLAN Ihres Druckers ist eingerichtet!</translation>
    </message>
    <message>
        <source>现在可以拔掉USB数据线了。要在这台电脑上打印，请把打印机添加到系统：勾选下面的选项，然后点击“完成并退出”。</source>
        <translation>Sie können das USB-Kabel jetzt abziehen. Um von diesem Computer zu drucken, fügen Sie den Drucker dem System hinzu: Kreuzen Sie das Kästchen unten an und klicken Sie auf „Fertigstellen und beenden“.</translation>
    </message>
    <message>
        <source>打印机已连上无线网络</source>
        <translation>Der Drucker ist mit dem WLAN verbunden</translation>
    </message>
    <message>
        <source>打印机没有连上无线网络</source>
        <translation>Der Drucker ist nicht mit dem WLAN verbunden</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机网络未开启，无法进行配网。</source>
        <translation>Die Einrichtung ist fehlgeschlagen: Am Drucker ist das WLAN ausgeschaltet.</translation>
    </message>
    <message>
        <source>配网失败</source>
        <translation>Die Netzwerkeinrichtung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机Wi-Fi模块未装配，无法进行配网。</source>
        <translation>Die Einrichtung ist fehlgeschlagen: Der Drucker hat kein WLAN-Modul.</translation>
    </message>
    <message>
        <source>Wi-Fi故障，打印机配置失败。</source>
        <translation>Die Einrichtung ist fehlgeschlagen: Das WLAN des Druckers ist gestört.</translation>
    </message>
    <message>
        <source>打印机配置失败，系统升级过程中，不允许配置网络。</source>
        <translation>Die Einrichtung ist fehlgeschlagen: Der Drucker aktualisiert sich gerade und kann jetzt nicht eingerichtet werden.</translation>
    </message>
    <message>
        <source>请检查打印机是否已开机、数据线是否插好、网络名称和密码是否正确，然后重新打开本工具再试一次。</source>
        <translation>Prüfen Sie, ob der Drucker eingeschaltet ist, das Kabel fest steckt und Netzwerkname und Passwort stimmen. Starten Sie dann dieses Programm noch einmal.</translation>
    </message>
    <message>
        <source>这台打印机没有安装Wi-Fi模块。请继续使用USB数据线打印，或向经销商咨询Wi-Fi模块。</source>
        <translation>Drucken Sie weiter über das USB-Kabel oder fragen Sie Ihren Händler nach einem WLAN-Modul.</translation>
    </message>
    <message>
        <source>请关闭打印机，等待10秒后重新打开，再试一次。如果问题依旧，请联系售后服务。</source>
        <translation>Schalten Sie den Drucker aus, warten Sie 10 Sekunden, schalten Sie ihn ein und versuchen Sie es noch einmal. Hilft das nicht, wenden Sie sich bitte an den Kundendienst.</translation>
    </message>
    <message>
        <source>请等待打印机升级完成，期间不要关闭电源，然后再试一次。</source>
        <translation>Warten Sie, bis der Drucker seine Aktualisierung beendet hat, ohne ihn auszuschalten, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>请在打印机上打开Wi-Fi功能，重新启动打印机，然后再试一次。</source>
        <translation>Schalten Sie das WLAN am Drucker ein, starten Sie den Drucker neu und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>您可以这样做</source>
        <translation>Was Sie tun können</translation>
    </message>
    <message>
        <source>运行日志：%@</source>
        <translation>Protokolldateien: %@</translation>
    </message>
    <message>
        <source>配置没有成功</source>
        <translation>Die Einrichtung ist nicht gelungen</translation>
    </message>
    <message>
        <source>打印机没有接受这次配置。</source>
        <translation>Der Drucker hat die Einstellungen nicht angenommen.</translation>
    </message>
    <message>
        <source>请检查网络名称和密码（注意大小写），并确认打印机已开机、数据线已插好、离路由器不太远。然后返回，再试一次。</source>
        <translation>Prüfen Sie, ob Netzwerkname und Passwort stimmen (Groß-/Kleinschreibung beachten) und ob der Drucker eingeschaltet, angeschlossen und nahe genug am Router ist. Gehen Sie dann zurück und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>没有连接打印机</source>
        <translation>Es ist kein Drucker angeschlossen</translation>
    </message>
    <message>
        <source>没有找到支持无线网络的打印机。</source>
        <translation>Es wurde kein Drucker mit WLAN gefunden.</translation>
    </message>
    <message>
        <source>请打开打印机电源，用 USB 数据线把它连到这台电脑，等待几秒。然后返回，再试一次。</source>
        <translation>Schalten Sie den Drucker ein, verbinden Sie ihn per USB-Kabel mit diesem Computer und warten Sie einige Sekunden. Gehen Sie dann zurück und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Passwort verbergen</translation>
    </message>
    <message>
        <source>大写锁定已打开</source>
        <translation>Feststelltaste ist aktiv</translation>
    </message>
    <message>
        <source>too common</source>
        <translation>Zu bekannt</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>Zu kurz</translation>
    </message>
    <message>
        <source>insecure</source>
        <translation>Unsicher</translation>
    </message>
    <message>
        <source>weak</source>
        <translation>Schwach</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>Stark</translation>
    </message>
    <message>
        <source>选择无线网络</source>
        <translation>WLAN-Netzwerk wählen</translation>
    </message>
    <message>
        <source>请选择打印机要连接的网络，并输入它的密码。</source>
        <translation>Wählen Sie das Netzwerk für den Drucker und geben Sie das Passwort ein.</translation>
    </message>
    <message>
        <source>附近的无线网络</source>
        <translation>Netzwerke in der Nähe</translation>
    </message>
    <message>
        <source>正在查找无线网络…</source>
        <translation>Netzwerke werden gesucht …</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>此电脑</source>
        <translation>Ihr Netzwerk</translation>
    </message>
    <message>
        <source>前往设置</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>请打开定位服务，步骤：系统设置-&gt;隐私与安全性-&gt;隐私-&gt;定位服务。</source>
        <translation>Dieses Programm darf keine WLAN-Netzwerke suchen. Erlauben Sie es in den Systemeinstellungen unter Datenschutz oder WLAN.</translation>
    </message>
    <message>
        <source>打印端口被占用，无法配置打印机</source>
        <translation>Der Drucker ist durch einen anderen Auftrag belegt. Warten Sie, bis dieser fertig ist, und klicken Sie dann noch einmal auf „Weiter“.</translation>
    </message>
    <message>
        <source>请从列表中选择，或在此输入名称。</source>
        <translation>Aus der Liste wählen oder hier eingeben.</translation>
    </message>
    <message>
        <source>唤醒打印机</source>
        <translation>Drucker aufwecken</translation>
    </message>
    <message>
        <source>询问打印机能否使用 Wi-Fi</source>
        <translation>WLAN-Fähigkeit abfragen</translation>
    </message>
    <message>
        <source>发送网络设置</source>
        <translation>Netzwerkdaten senden</translation>
    </message>
    <message>
        <source>查询打印机的地址</source>
        <translation>Adresse des Druckers abfragen</translation>
    </message>
    <message>
        <source>打印信息页</source>
        <translation>Infoseite drucken</translation>
    </message>
    <message>
        <source>“%@”（进程 %@）正在使用打印机。</source>
        <translation>„%@“ (Prozess %@) benutzt den Drucker.</translation>
    </message>
    <message>
        <source>请关闭该程序，然后再试一次。如果打印机已连接到虚拟机，请先在虚拟机中断开。</source>
        <translation>Schließen Sie dieses Programm und versuchen Sie es noch einmal. Hat eine virtuelle Maschine den Drucker übernommen, trennen Sie ihn zuerst dort.</translation>
    </message>
    <message>
        <source>另一个程序正在使用打印机。</source>
        <translation>Ein anderes Programm benutzt den Drucker.</translation>
    </message>
    <message>
        <source>请关闭正在打印或扫描的程序以及虚拟机，然后再试一次。</source>
        <translation>Schließen Sie Programme, die drucken oder scannen, sowie virtuelle Maschinen und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>此电脑不允许您使用打印机：缺少规则 60-wifitool.rules。</source>
        <translation>Dieser Computer lässt Sie den Drucker nicht benutzen: Die Regel 60-wifitool.rules fehlt.</translation>
    </message>
    <message>
        <source>请重新安装带有此规则的 wifitool 软件包，拔下 USB 数据线再插上，然后再试一次。</source>
        <translation>Installieren Sie das Paket wifitool neu, das diese Regel mitbringt. Ziehen Sie dann das USB-Kabel ab, stecken Sie es wieder ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>此电脑还没有允许您使用打印机。</source>
        <translation>Dieser Computer lässt Sie den Drucker noch nicht benutzen.</translation>
    </message>
    <message>
        <source>请拔下 USB 数据线再插上，等待几秒，然后再试一次。如果没有用，请重新启动电脑。</source>
        <translation>Ziehen Sie das USB-Kabel ab, stecken Sie es wieder ein, warten Sie einige Sekunden und versuchen Sie es noch einmal. Hilft das nicht, starten Sie den Computer neu.</translation>
    </message>
    <message>
        <source>只有直接在此电脑前登录的人才能使用打印机。您的会话是远程的，或是以其他方式启动的。</source>
        <translation>Nur wer direkt an diesem Computer angemeldet ist, darf den Drucker benutzen. Ihre Sitzung läuft aus der Ferne oder wurde anders gestartet.</translation>
    </message>
    <message>
        <source>请直接在此电脑上登录后再试一次，或请管理员帮忙。</source>
        <translation>Melden Sie sich direkt am Computer an und versuchen Sie es noch einmal, oder fragen Sie dessen Administrator.</translation>
    </message>
    <message>
        <source>打印机被拔下或关闭了（步骤：%@）。</source>
        <translation>Der Drucker wurde abgezogen oder ausgeschaltet (Schritt: %@).</translation>
    </message>
    <message>
        <source>在 USB 上找不到打印机。</source>
        <translation>Der Drucker wurde am USB-Anschluss nicht gefunden.</translation>
    </message>
    <message>
        <source>请打开打印机并插好数据线，等它准备就绪后再试一次。完成之前请不要拔线。</source>
        <translation>Schalten Sie den Drucker ein und stecken Sie das Kabel fest ein. Wenn der Drucker bereit ist, versuchen Sie es noch einmal und lassen Sie das Kabel bis zum Schluss stecken.</translation>
    </message>
    <message>
        <source>打印机在 %d 秒内没有响应（步骤：%@）。</source>
        <translation>Der Drucker hat %d Sekunden lang nicht geantwortet (Schritt: %@).</translation>
    </message>
    <message>
        <source>打印机可能在休眠或正忙：请按一下打印机上的任意键，等它准备就绪后再试一次。如果没有用，请关闭打印机，10 秒后再打开。</source>
        <translation>Vielleicht schläft der Drucker oder er ist beschäftigt: Drücken Sie eine Taste am Drucker, warten Sie, bis er bereit ist, und versuchen Sie es noch einmal. Hilft das nicht, schalten Sie ihn aus und nach 10 Sekunden wieder ein.</translation>
    </message>
    <message>
        <source>打印机给出了意外的响应（步骤：%@）。</source>
        <translation>Der Drucker hat etwas Unerwartetes geantwortet (Schritt: %@).</translation>
    </message>
    <message>
        <source>与打印机的 USB 通信出错（步骤：%@）。</source>
        <translation>Die USB-Verbindung zum Drucker ist gestört (Schritt: %@).</translation>
    </message>
    <message>
        <source>请把打印机直接接到电脑的另一个 USB 接口（不要经过集线器），最好换一根数据线，然后再试一次。</source>
        <translation>Verbinden Sie den Drucker direkt mit einem anderen USB-Anschluss des Computers (ohne Hub), möglichst mit einem anderen Kabel, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>打印机拒绝了网络设置，最可能的原因是密码不对。</source>
        <translation>Der Drucker hat die Netzwerkdaten abgelehnt; wahrscheinlich stimmt das Passwort nicht.</translation>
    </message>
    <message>
        <source>请检查密码（区分大小写）。许多打印机只支持 2.4 GHz，不支持 5 GHz。如果打印机离路由器太远，请移近一些。然后再试一次。</source>
        <translation>Prüfen Sie das Passwort (Groß-/Kleinschreibung beachten). Viele Drucker können nur 2,4-GHz-Netzwerke nutzen, kein 5 GHz. Steht der Drucker weit vom Router entfernt, stellen Sie ihn näher heran. Versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>打印机收到了设置，但没有从路由器得到地址。</source>
        <translation>Der Drucker hat die Daten angenommen, aber vom Router keine Adresse bekommen.</translation>
    </message>
    <message>
        <source>最可能的原因是密码不对、网络只有 5 GHz，或路由器太远：请检查后再试一次。如果都没有问题，请重新启动路由器，并查看它是否只允许已知的设备。</source>
        <translation>Wahrscheinlich stimmt das Passwort nicht, das Netzwerk hat nur 5 GHz oder der Router ist zu weit weg: Prüfen Sie das und versuchen Sie es noch einmal. Ist alles in Ordnung, starten Sie den Router neu und sehen Sie nach, ob er nur bekannte Geräte zulässt.</translation>
    </message>
    <message>
        <source>打印机没有说明能否配置 Wi-Fi。</source>
        <translation>Der Drucker hat nicht mitgeteilt, ob er sich für WLAN einrichten lässt.</translation>
    </message>
    <message>
        <source>详细信息</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>复制详细信息</source>
        <translation>Details &amp;kopieren</translation>
    </message>
    <message>
        <source>已复制</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>打印机地址</source>
        <translation>Adresse des Druckers</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>Adresse &amp;kopieren</translation>
    </message>
    <message>
        <source>打开打印机的网页</source>
        <translation>Web&amp;seite des Druckers öffnen</translation>
    </message>
    <message>
        <source>正在检查此电脑能否连上打印机…</source>
        <translation>Es wird geprüft, ob dieser Computer den Drucker erreicht …</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机。</source>
        <translation>Dieser Computer erreicht den Drucker.</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机，但打印机不接受网络打印（IPP）。</source>
        <translation>Dieser Computer erreicht den Drucker, aber der Drucker nimmt keine Druckaufträge über das Netzwerk an (IPP).</translation>
    </message>
    <message>
        <source>此电脑连不上打印机。打印机可能在另一个网络上，或在会隔离设备的访客网络上。</source>
        <translation>Dieser Computer erreicht den Drucker nicht. Vielleicht ist der Drucker in einem anderen Netzwerk oder in einem Gastnetzwerk, das Geräte voneinander trennt.</translation>
    </message>
    <message>
        <source>此网络还要求用户名，而用户名无法发送给打印机。</source>
        <translation>Dieses Netzwerk verlangt auch einen Benutzernamen; dieser kann nicht an den Drucker gesendet werden.</translation>
    </message>
    <message>
        <source>此网络只接受 WPA3，有些打印机不支持。</source>
        <translation>Dieses Netzwerk erlaubt nur WPA3; manche Drucker beherrschen das nicht.</translation>
    </message>
    <message>
        <source>此网络只有 5 GHz，许多打印机需要 2.4 GHz。</source>
        <translation>Dieses Netzwerk hat nur 5 GHz; viele Drucker brauchen 2,4 GHz.</translation>
    </message>
    <message>
        <source>此网络需要密码，您还没有输入。</source>
        <translation>Dieses Netzwerk braucht ein Passwort; es ist keines eingegeben.</translation>
    </message>
    <message>
        <source>名称的开头或结尾有空格。</source>
        <translation>Der Name beginnt oder endet mit einem Leerzeichen.</translation>
    </message>
    <message>
        <source>密码的开头或结尾有空格。</source>
        <translation>Das Passwort beginnt oder endet mit einem Leerzeichen.</translation>
    </message>
    <message>
        <source>名称含有控制字符，无法发送给打印机。</source>
        <translation>Dieser Name enthält Steuerzeichen und kann nicht an den Drucker gesendet werden.</translation>
    </message>
    <message>
        <source>密码含有控制字符，无法发送给打印机。</source>
        <translation>Dieses Passwort enthält Steuerzeichen und kann nicht an den Drucker gesendet werden.</translation>
    </message>
    <message>
        <source>正在等待系统许可…</source>
        <translation>Warten auf die Erlaubnis …</translation>
    </message>
    <message>
        <source>系统尚未回答是否允许查找网络。请点击“刷新”再试一次，或直接输入名称。</source>
        <translation>Das System hat noch nicht geantwortet, ob nach Netzwerken gesucht werden darf. Klicken Sie auf „Aktualisieren“, um es noch einmal zu versuchen, oder geben Sie den Namen ein.</translation>
    </message>
    <message>
        <source>没有找到网络。请点击“刷新”再找一次，或直接输入名称。</source>
        <translation>Es wurden keine Netzwerke gefunden. Klicken Sie auf „Aktualisieren“, um noch einmal zu suchen, oder geben Sie den Namen ein.</translation>
    </message>
    <message>
        <source>%ld%%</source>
        <translation>%ld %%</translation>
    </message>
    <message>
        <source>此桌面没有添加打印机的窗口。请自行打开系统设置中的“打印机”，或在浏览器中打开 %@。</source>
        <translation>Dieser Desktop hat kein Fenster zum Hinzufügen von Druckern. Öffnen Sie selbst „Drucker“ in den Systemeinstellungen oder %@ in einem Browser.</translation>
    </message>
    <message>
        <source>无法从这里打开系统设置。请自行打开，并在“隐私”或“Wi-Fi”中允许查找网络。</source>
        <translation>Die Systemeinstellungen lassen sich von hier aus nicht öffnen. Öffnen Sie sie selbst und erlauben Sie unter Datenschutz oder WLAN die Suche nach Netzwerken.</translation>
    </message>
    <message>
        <source>此电脑没有 Wi-Fi 适配器，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>Dieser Computer hat keinen WLAN-Adapter, deshalb kann er keine Netzwerke auflisten. Geben Sie das Netzwerk ein, mit dem sich der Drucker verbinden soll.</translation>
    </message>
    <message>
        <source>已连接 %d 台打印机，将配置“%@”。要配置另一台，请先拔下这一台。</source>
        <translation>Es sind %d Drucker angeschlossen. „%@“ wird eingerichtet; für einen anderen ziehen Sie diesen zuerst ab.</translation>
    </message>
    <message>
        <source>打印机：%@</source>
        <translation>Drucker: %@</translation>
    </message>
</context>
</TS>
