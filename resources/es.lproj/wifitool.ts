<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="zh_CN">
<context>
    <name>wifitool</name>
    <message>
        <source>温馨提示：</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>是否退出Wi-Fi配置工具?</source>
        <translation>¿Salir de Wi-Fi Tool?</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otra</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abierta</translation>
    </message>
    <message>
        <source>WEP</source>
        <translation>WEP</translation>
    </message>
    <message>
        <source>WPA-Personal</source>
        <translation>WPA Personal</translation>
    </message>
    <message>
        <source>WPA-Enterprise</source>
        <translation>WPA Enterprise</translation>
    </message>
    <message>
        <source>WPA/WPA2-Personal</source>
        <translation>WPA/WPA2 Personal</translation>
    </message>
    <message>
        <source>WPA/WPA2-Enterprise</source>
        <translation>WPA/WPA2 Enterprise</translation>
    </message>
    <message>
        <source>WPA2-Personal</source>
        <translation>WPA2 Personal</translation>
    </message>
    <message>
        <source>WPA2-Enterprise</source>
        <translation>WPA2 Enterprise</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Personal</source>
        <translation>WPA2/WPA3 Personal</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Enterprise</source>
        <translation>WPA2/WPA3 Enterprise</translation>
    </message>
    <message>
        <source>WPA3-Personal</source>
        <translation>WPA3 Personal</translation>
    </message>
    <message>
        <source>WPA3-Enterprise</source>
        <translation>WPA3 Enterprise</translation>
    </message>
    <message>
        <source>OWE</source>
        <translation>Enhanced Open (OWE)</translation>
    </message>
    <message>
        <source>正在唤醒打印机…</source>
        <translation>Activando la impresora…</translation>
    </message>
    <message>
        <source>正在检查打印机能否配置无线网络…</source>
        <translation>Comprobando si la impresora se puede configurar para Wi-Fi…</translation>
    </message>
    <message>
        <source>正在发送网络名称和密码，打印机正在加入网络…</source>
        <translation>Enviando nombre y contraseña; la impresora se está conectando a la red…</translation>
    </message>
    <message>
        <source>正在等待打印机的网络地址（第 %d 次，共 %d 次）…</source>
        <translation>Esperando la dirección de la impresora (%d de %d)…</translation>
    </message>
    <message>
        <source>打印机没有应答，您现在可以关闭此窗口。</source>
        <translation>La impresora no ha respondido. Cierre esta ventana, reinicie la impresora e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>正在配置打印机</source>
        <translation>Configurando la impresora</translation>
    </message>
    <message>
        <source>这可能需要几分钟。请保持打印机开机，不要拔下 USB 数据线。</source>
        <translation>Puede tardar unos minutos. Mantenga la impresora encendida y el cable USB conectado.</translation>
    </message>
    <message>
        <source>配置进度</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>打印机最多接受 %d 个字节的密码，请为网络设置较短的密码。</source>
        <translation>Esta contraseña es demasiado larga para la impresora: %d bytes como máximo, uno por cada letra o cifra normal. Ponga a la red una más corta.</translation>
    </message>
    <message>
        <source>网络名称</source>
        <translation>&amp;Nombre de la red</translation>
    </message>
    <message>
        <source>网络密码</source>
        <translation>&amp;Contraseña</translation>
    </message>
    <message>
        <source>与路由器上显示的名称完全一致，区分大小写。</source>
        <translation>Exactamente como aparece en el router; se distinguen mayúsculas y minúsculas.</translation>
    </message>
    <message>
        <source>没有密码的网络请留空。</source>
        <translation>Dejar vacío si la red no tiene contraseña.</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>&amp;Mostrar la contraseña</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>上一步</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>打印无线网络信息页</source>
        <translation>&amp;Imprimir la página de información Wi-Fi</translation>
    </message>
    <message>
        <source>输入无线网络</source>
        <translation>Introduzca su red Wi-Fi</translation>
    </message>
    <message>
        <source>此电脑的无线网络已关闭，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>El Wi-Fi de este equipo está apagado; por eso no se pueden mostrar las redes cercanas. Introduzca la red a la que debe conectarse la impresora.</translation>
    </message>
    <message>
        <source>名称太长：最多 32 个字节。</source>
        <translation>Este nombre es demasiado largo: 32 bytes como máximo.</translation>
    </message>
    <message>
        <source>打印端口被占用，无法打印无线网络信息页。</source>
        <translation>La impresora está ocupada. Espere a que termine e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>已将无线网络信息页发送给打印机</source>
        <translation>La página de información Wi-Fi se ha enviado a la impresora.</translation>
    </message>
    <message>
        <source>不过它可能打印不出来：%@</source>
        <translation>Sin embargo, es posible que no se imprima: %@</translation>
    </message>
    <message>
        <source>完成并退出</source>
        <translation>&amp;Finalizar y salir</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Configurar</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>第%d步，共%d步：%@</source>
        <translation>Paso %d de %d: %@</translation>
    </message>
    <message>
        <source>第%d步</source>
        <translation>Paso %d</translation>
    </message>
    <message>
        <source>Wi-Fi配置工具</source>
        <translation>Wi-Fi Tool</translation>
    </message>
    <message>
        <source>让打印机连上无线网络</source>
        <translation>Conecte la impresora a la red Wi-Fi</translation>
    </message>
    <message>
        <source>请打开打印机电源，然后选择配置方式。</source>
        <translation>Encienda la impresora y elija cómo configurarla.</translation>
    </message>
    <message>
        <source>USB数据线</source>
        <translation>Cable USB</translation>
    </message>
    <message>
        <source>用数据线连接打印机和电脑。适合第一次使用。</source>
        <translation>Conecte la impresora a este equipo con un cable. Lo mejor la primera vez.</translation>
    </message>
    <message>
        <source>WPS一键配网</source>
        <translation>WPS</translation>
    </message>
    <message>
        <source>路由器有WPS按钮时可用，不需要数据线和密码。</source>
        <translation>Para routers con botón WPS. Sin cable ni contraseña.</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi按钮</source>
        <translation>Botón Wi-Fi</translation>
    </message>
    <message>
        <source>打印机没有显示屏时使用，与路由器上的WPS按钮配合。</source>
        <translation>Para impresoras sin pantalla, junto con el botón WPS del router.</translation>
    </message>
    <message>
        <source>打印机的菜单</source>
        <translation>Menú de la impresora</translation>
    </message>
    <message>
        <source>打印机有显示屏和菜单时使用。</source>
        <translation>Para impresoras con pantalla y menú.</translation>
    </message>
    <message>
        <source>从哪里启动WPS？</source>
        <translation>¿Dónde quiere iniciar WPS?</translation>
    </message>
    <message>
        <source>看一看您的打印机：它有显示屏和菜单，还是只有Wi-Fi按钮？</source>
        <translation>Mire su impresora: ¿tiene pantalla con menú o solo un botón Wi-Fi?</translation>
    </message>
    <message>
        <source>按钮方式（PBC）</source>
        <translation>Por botón (PBC)</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮即可。</source>
        <translation>Solo tiene que pulsar el botón WPS del router.</translation>
    </message>
    <message>
        <source>PIN码方式</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>路由器没有WPS按钮时，在它的设置页面输入PIN码。</source>
        <translation>Para routers sin botón WPS: escriba el PIN de la impresora en la página de configuración del router.</translation>
    </message>
    <message>
        <source>选择WPS的方式</source>
        <translation>Elija el método WPS</translation>
    </message>
    <message>
        <source>两种方式都在打印机的菜单里。路由器上有WPS按钮时，按钮方式最简单。</source>
        <translation>Los dos métodos están en el menú de la impresora. Si el router tiene botón WPS, el método por botón es más fácil.</translation>
    </message>
    <message>
        <source>用按钮连接</source>
        <translation>Conectar con los botones</translation>
    </message>
    <message>
        <source>请在两分钟内完成前两步。</source>
        <translation>Haga los dos primeros pasos en menos de dos minutos.</translation>
    </message>
    <message>
        <source>按住打印机上的Wi-Fi按钮约3秒，直到指示灯开始闪烁。</source>
        <translation>Mantenga pulsado el botón Wi-Fi de la impresora unos 3 segundos, hasta que parpadee la luz.</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮。</source>
        <translation>Pulse el botón WPS del router.</translation>
    </message>
    <message>
        <source>等待最多两分钟。指示灯不再闪烁时，点击“下一步”。</source>
        <translation>Espere hasta dos minutos. Cuando la luz deje de parpadear, haga clic en «Siguiente».</translation>
    </message>
    <message>
        <source>在打印机菜单中使用按钮方式</source>
        <translation>Método por botón desde el menú de la impresora</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PBC，然后按OK确认。</source>
        <translation>En la pantalla de la impresora elija Menú › Red › WPS › PBC y confirme con OK.</translation>
    </message>
    <message>
        <source>等待最多两分钟。显示屏显示结果后，点击“下一步”。</source>
        <translation>Espere hasta dos minutos. Cuando la pantalla muestre el resultado, haga clic en «Siguiente».</translation>
    </message>
    <message>
        <source>在打印机菜单中使用PIN码</source>
        <translation>Método por PIN desde el menú de la impresora</translation>
    </message>
    <message>
        <source>PIN码几分钟后失效，请先准备好路由器的设置页面。</source>
        <translation>El PIN caduca a los pocos minutos: abra antes la página de configuración del router.</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PIN，显示屏会显示一个8位数字。</source>
        <translation>En la pantalla de la impresora elija Menú › Red › WPS › PIN. Aparecerá un número de 8 cifras.</translation>
    </message>
    <message>
        <source>在路由器设置页面的WPS栏输入这个PIN码，然后开始连接。</source>
        <translation>Escriba este PIN en la sección WPS de la página de configuración del router e inicie allí la conexión.</translation>
    </message>
    <message>
        <source>打印机的显示屏显示什么？</source>
        <translation>¿Qué muestra la pantalla de la impresora?</translation>
    </message>
    <message>
        <source>请看打印机的显示屏，选择您看到的结果。</source>
        <translation>Mire la pantalla de la impresora y elija lo que ve.</translation>
    </message>
    <message>
        <source>连接成功</source>
        <translation>Conectada</translation>
    </message>
    <message>
        <source>显示屏显示“连接成功”或IP地址。</source>
        <translation>La pantalla indica que está conectada o muestra una dirección IP.</translation>
    </message>
    <message>
        <source>连接失败</source>
        <translation>No conectada</translation>
    </message>
    <message>
        <source>显示屏显示“连接失败”或“超时”。请返回，再试一次。</source>
        <translation>La pantalla indica un error o que se agotó el tiempo. Vuelva atrás e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi指示灯怎么样？</source>
        <translation>¿Cómo está la luz Wi-Fi de la impresora?</translation>
    </message>
    <message>
        <source>请看打印机的Wi-Fi指示灯，选择您看到的样子。</source>
        <translation>Mire la luz Wi-Fi de la impresora y elija lo que ve.</translation>
    </message>
    <message>
        <source>指示灯常亮</source>
        <translation>Luz fija</translation>
    </message>
    <message>
        <source>打印机已经连上无线网络。</source>
        <translation>La impresora está conectada a la red Wi-Fi.</translation>
    </message>
    <message>
        <source>指示灯闪烁或熄灭</source>
        <translation>Parpadea o apagada</translation>
    </message>
    <message>
        <source>没有连上。请返回，再试一次。</source>
        <translation>No se ha conectado. Vuelva atrás e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>打开系统的添加打印机窗口</source>
        <translation>A&amp;brir la ventana «Añadir impresora» del sistema</translation>
    </message>
    <message>
        <source>恭喜，您完成了无线网络配置！</source>
        <translation>¡Enhorabuena! El Wi-Fi de su impresora está configurado.</translation>
    </message>
    <message>
        <source>现在可以拔掉USB数据线了。要在这台电脑上打印，请把打印机添加到系统：勾选下面的选项，然后点击“完成并退出”。</source>
        <translation>Ya puede desconectar el cable USB. Para imprimir desde este equipo, añada la impresora al sistema: marque la casilla de abajo y haga clic en «Finalizar y salir».</translation>
    </message>
    <message>
        <source>打印机已连上无线网络</source>
        <translation>La impresora está conectada a la red Wi-Fi</translation>
    </message>
    <message>
        <source>打印机没有连上无线网络</source>
        <translation>La impresora no está conectada a la red Wi-Fi</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机网络未开启，无法进行配网。</source>
        <translation>La configuración ha fallado: el Wi-Fi de la impresora está desactivado.</translation>
    </message>
    <message>
        <source>配网失败</source>
        <translation>La configuración de la red ha fallado.</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机Wi-Fi模块未装配，无法进行配网。</source>
        <translation>La configuración ha fallado: la impresora no tiene módulo Wi-Fi.</translation>
    </message>
    <message>
        <source>Wi-Fi故障，打印机配置失败。</source>
        <translation>La configuración ha fallado: el Wi-Fi de la impresora está averiado.</translation>
    </message>
    <message>
        <source>打印机配置失败，系统升级过程中，不允许配置网络。</source>
        <translation>La configuración ha fallado: la impresora se está actualizando y no se puede configurar ahora.</translation>
    </message>
    <message>
        <source>请检查打印机是否已开机、数据线是否插好、网络名称和密码是否正确，然后重新打开本工具再试一次。</source>
        <translation>Compruebe que la impresora está encendida, que el cable está bien conectado y que el nombre de la red y la contraseña son correctos. Después inicie de nuevo este programa.</translation>
    </message>
    <message>
        <source>这台打印机没有安装Wi-Fi模块。请继续使用USB数据线打印，或向经销商咨询Wi-Fi模块。</source>
        <translation>Siga imprimiendo por el cable USB o pregunte a su distribuidor por un módulo Wi-Fi.</translation>
    </message>
    <message>
        <source>请关闭打印机，等待10秒后重新打开，再试一次。如果问题依旧，请联系售后服务。</source>
        <translation>Apague la impresora, espere 10 segundos, enciéndala e inténtelo otra vez. Si no se soluciona, póngase en contacto con el servicio técnico.</translation>
    </message>
    <message>
        <source>请等待打印机升级完成，期间不要关闭电源，然后再试一次。</source>
        <translation>Espere a que la impresora termine de actualizarse, sin apagarla, e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>请在打印机上打开Wi-Fi功能，重新启动打印机，然后再试一次。</source>
        <translation>Active el Wi-Fi en la impresora, reiníciela e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>您可以这样做</source>
        <translation>Qué puede hacer</translation>
    </message>
    <message>
        <source>运行日志：%@</source>
        <translation>Archivos de registro: %@</translation>
    </message>
    <message>
        <source>配置没有成功</source>
        <translation>La configuración no se ha completado</translation>
    </message>
    <message>
        <source>打印机没有接受这次配置。</source>
        <translation>La impresora no ha aceptado la configuración.</translation>
    </message>
    <message>
        <source>请检查网络名称和密码（注意大小写），并确认打印机已开机、数据线已插好、离路由器不太远。然后返回，再试一次。</source>
        <translation>Compruebe el nombre de la red y la contraseña (se distinguen mayúsculas y minúsculas), y que la impresora está encendida, conectada y no demasiado lejos del router. Después vuelva atrás e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>没有连接打印机</source>
        <translation>No hay ninguna impresora conectada</translation>
    </message>
    <message>
        <source>没有找到支持无线网络的打印机。</source>
        <translation>No se ha encontrado ninguna impresora con Wi-Fi.</translation>
    </message>
    <message>
        <source>请打开打印机电源，用 USB 数据线把它连到这台电脑，等待几秒。然后返回，再试一次。</source>
        <translation>Encienda la impresora, conéctela a este equipo con un cable USB y espere unos segundos. Después vuelva atrás e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Ocultar la contraseña</translation>
    </message>
    <message>
        <source>大写锁定已打开</source>
        <translation>Bloq Mayús activado</translation>
    </message>
    <message>
        <source>too common</source>
        <translation>Muy común</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>Muy corta</translation>
    </message>
    <message>
        <source>insecure</source>
        <translation>Insegura</translation>
    </message>
    <message>
        <source>weak</source>
        <translation>Débil</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>Aceptable</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>Fuerte</translation>
    </message>
    <message>
        <source>选择无线网络</source>
        <translation>Elija la red Wi-Fi</translation>
    </message>
    <message>
        <source>请选择打印机要连接的网络，并输入它的密码。</source>
        <translation>Elija la red a la que debe conectarse la impresora e introduzca su contraseña.</translation>
    </message>
    <message>
        <source>附近的无线网络</source>
        <translation>Redes cercanas</translation>
    </message>
    <message>
        <source>正在查找无线网络…</source>
        <translation>Buscando redes…</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>Act&amp;ualizar</translation>
    </message>
    <message>
        <source>此电脑</source>
        <translation>su red</translation>
    </message>
    <message>
        <source>前往设置</source>
        <translation>Abrir la configuración</translation>
    </message>
    <message>
        <source>请打开定位服务，步骤：系统设置-&gt;隐私与安全性-&gt;隐私-&gt;定位服务。</source>
        <translation>Este programa no tiene permiso para buscar redes Wi-Fi. Concédalo en la configuración del sistema, en Privacidad o Wi-Fi.</translation>
    </message>
    <message>
        <source>打印端口被占用，无法配置打印机</source>
        <translation>Otro trabajo está usando la impresora. Espere a que termine y haga clic otra vez en «Siguiente».</translation>
    </message>
    <message>
        <source>请从列表中选择，或在此输入名称。</source>
        <translation>Elija de la lista o escriba aquí el nombre.</translation>
    </message>
    <message>
        <source>唤醒打印机</source>
        <translation>activar la impresora</translation>
    </message>
    <message>
        <source>询问打印机能否使用 Wi-Fi</source>
        <translation>comprobar la compatibilidad con Wi-Fi</translation>
    </message>
    <message>
        <source>发送网络设置</source>
        <translation>enviar los datos de la red</translation>
    </message>
    <message>
        <source>查询打印机的地址</source>
        <translation>consultar la dirección de la impresora</translation>
    </message>
    <message>
        <source>打印信息页</source>
        <translation>imprimir la página de información</translation>
    </message>
    <message>
        <source>“%@”（进程 %@）正在使用打印机。</source>
        <translation>«%@» (proceso %@) está usando la impresora.</translation>
    </message>
    <message>
        <source>请关闭该程序，然后再试一次。如果打印机已连接到虚拟机，请先在虚拟机中断开。</source>
        <translation>Cierre ese programa e inténtelo otra vez. Si la impresora está conectada a una máquina virtual, desconéctela antes de ella.</translation>
    </message>
    <message>
        <source>另一个程序正在使用打印机。</source>
        <translation>Otro programa está usando la impresora.</translation>
    </message>
    <message>
        <source>请关闭正在打印或扫描的程序以及虚拟机，然后再试一次。</source>
        <translation>Cierre los programas que impriman o escaneen y las máquinas virtuales e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>此电脑不允许您使用打印机：缺少规则 60-wifitool.rules。</source>
        <translation>Este equipo no le permite usar la impresora: falta la regla 60-wifitool.rules.</translation>
    </message>
    <message>
        <source>请重新安装带有此规则的 wifitool 软件包，拔下 USB 数据线再插上，然后再试一次。</source>
        <translation>Vuelva a instalar el paquete wifitool, que incluye esta regla. Después desconecte el cable USB, conéctelo de nuevo e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>此电脑还没有允许您使用打印机。</source>
        <translation>Este equipo todavía no le permite usar la impresora.</translation>
    </message>
    <message>
        <source>请拔下 USB 数据线再插上，等待几秒，然后再试一次。如果没有用，请重新启动电脑。</source>
        <translation>Desconecte el cable USB, conéctelo de nuevo, espere unos segundos e inténtelo otra vez. Si no se soluciona, reinicie el equipo.</translation>
    </message>
    <message>
        <source>只有直接在此电脑前登录的人才能使用打印机。您的会话是远程的，或是以其他方式启动的。</source>
        <translation>Solo quien ha iniciado sesión directamente en este equipo puede usar la impresora. Su sesión es remota o se inició de otra manera.</translation>
    </message>
    <message>
        <source>请直接在此电脑上登录后再试一次，或请管理员帮忙。</source>
        <translation>Inicie sesión directamente en el equipo e inténtelo otra vez, o consulte con su administrador.</translation>
    </message>
    <message>
        <source>打印机被拔下或关闭了（步骤：%@）。</source>
        <translation>La impresora se desconectó o se apagó (paso: %@).</translation>
    </message>
    <message>
        <source>在 USB 上找不到打印机。</source>
        <translation>No se encontró la impresora en los puertos USB.</translation>
    </message>
    <message>
        <source>请打开打印机并插好数据线，等它准备就绪后再试一次。完成之前请不要拔线。</source>
        <translation>Encienda la impresora y conecte bien el cable. Cuando la impresora esté lista, inténtelo otra vez y deje el cable conectado hasta el final.</translation>
    </message>
    <message>
        <source>打印机在 %d 秒内没有响应（步骤：%@）。</source>
        <translation>La impresora no respondió en %d segundos (paso: %@).</translation>
    </message>
    <message>
        <source>打印机可能在休眠或正忙：请按一下打印机上的任意键，等它准备就绪后再试一次。如果没有用，请关闭打印机，10 秒后再打开。</source>
        <translation>Puede que la impresora esté en reposo u ocupada: pulse una de sus teclas, espere a que esté lista e inténtelo otra vez. Si no se soluciona, apáguela y vuelva a encenderla a los 10 segundos.</translation>
    </message>
    <message>
        <source>打印机给出了意外的响应（步骤：%@）。</source>
        <translation>La impresora dio una respuesta inesperada (paso: %@).</translation>
    </message>
    <message>
        <source>与打印机的 USB 通信出错（步骤：%@）。</source>
        <translation>Falló la conexión USB con la impresora (paso: %@).</translation>
    </message>
    <message>
        <source>请把打印机直接接到电脑的另一个 USB 接口（不要经过集线器），最好换一根数据线，然后再试一次。</source>
        <translation>Conecte la impresora directamente a otro puerto USB del equipo (sin concentrador), si puede con otro cable, e inténtelo otra vez.</translation>
    </message>
    <message>
        <source>打印机拒绝了网络设置，最可能的原因是密码不对。</source>
        <translation>La impresora rechazó los datos de la red; lo más probable es que la contraseña no sea correcta.</translation>
    </message>
    <message>
        <source>请检查密码（区分大小写）。许多打印机只支持 2.4 GHz，不支持 5 GHz。如果打印机离路由器太远，请移近一些。然后再试一次。</source>
        <translation>Compruebe la contraseña; se distinguen mayúsculas y minúsculas. Muchas impresoras solo usan redes de 2,4 GHz, no de 5 GHz. Si la impresora está lejos del router, acérquela. Después inténtelo otra vez.</translation>
    </message>
    <message>
        <source>打印机收到了设置，但没有从路由器得到地址。</source>
        <translation>La impresora aceptó los datos, pero no recibió ninguna dirección del router.</translation>
    </message>
    <message>
        <source>最可能的原因是密码不对、网络只有 5 GHz，或路由器太远：请检查后再试一次。如果都没有问题，请重新启动路由器，并查看它是否只允许已知的设备。</source>
        <translation>Lo más probable es que la contraseña no sea correcta, que la red sea solo de 5 GHz o que el router esté demasiado lejos: compruébelo e inténtelo otra vez. Si todo está bien, reinicie el router y mire si solo admite dispositivos conocidos.</translation>
    </message>
    <message>
        <source>打印机没有说明能否配置 Wi-Fi。</source>
        <translation>La impresora no indicó si se puede configurar para Wi-Fi.</translation>
    </message>
    <message>
        <source>详细信息</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>复制详细信息</source>
        <translation>&amp;Copiar los detalles</translation>
    </message>
    <message>
        <source>已复制</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>打印机地址</source>
        <translation>Dirección de la impresora</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>&amp;Copiar la dirección</translation>
    </message>
    <message>
        <source>打开打印机的网页</source>
        <translation>Abrir la &amp;página web de la impresora</translation>
    </message>
    <message>
        <source>正在检查此电脑能否连上打印机…</source>
        <translation>Comprobando si este equipo puede comunicarse con la impresora…</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机。</source>
        <translation>Este equipo puede comunicarse con la impresora.</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机，但打印机不接受网络打印（IPP）。</source>
        <translation>Este equipo puede comunicarse con la impresora, pero esta no acepta trabajos de impresión por la red (IPP).</translation>
    </message>
    <message>
        <source>此电脑连不上打印机。打印机可能在另一个网络上，或在会隔离设备的访客网络上。</source>
        <translation>Este equipo no puede comunicarse con la impresora. Puede que la impresora esté en otra red o en una red de invitados que aísla los dispositivos.</translation>
    </message>
    <message>
        <source>此网络还要求用户名，而用户名无法发送给打印机。</source>
        <translation>Esta red pide también un nombre de usuario, que no se puede enviar a la impresora.</translation>
    </message>
    <message>
        <source>此网络只接受 WPA3，有些打印机不支持。</source>
        <translation>Esta red solo admite WPA3, que algunas impresoras no pueden usar.</translation>
    </message>
    <message>
        <source>此网络只有 5 GHz，许多打印机需要 2.4 GHz。</source>
        <translation>Esta red es solo de 5 GHz; muchas impresoras necesitan 2,4 GHz.</translation>
    </message>
    <message>
        <source>此网络需要密码，您还没有输入。</source>
        <translation>Esta red necesita contraseña y no se ha introducido ninguna.</translation>
    </message>
    <message>
        <source>名称的开头或结尾有空格。</source>
        <translation>El nombre empieza o termina con un espacio.</translation>
    </message>
    <message>
        <source>密码的开头或结尾有空格。</source>
        <translation>La contraseña empieza o termina con un espacio.</translation>
    </message>
    <message>
        <source>名称含有控制字符，无法发送给打印机。</source>
        <translation>Este nombre contiene caracteres de control y no se puede enviar a la impresora.</translation>
    </message>
    <message>
        <source>密码含有控制字符，无法发送给打印机。</source>
        <translation>Esta contraseña contiene caracteres de control y no se puede enviar a la impresora.</translation>
    </message>
    <message>
        <source>正在等待系统许可…</source>
        <translation>Esperando el permiso…</translation>
    </message>
    <message>
        <source>系统尚未回答是否允许查找网络。请点击“刷新”再试一次，或直接输入名称。</source>
        <translation>El sistema aún no ha indicado si se pueden buscar redes. Haga clic en «Actualizar» para intentarlo otra vez o escriba el nombre.</translation>
    </message>
    <message>
        <source>没有找到网络。请点击“刷新”再找一次，或直接输入名称。</source>
        <translation>No se han encontrado redes. Haga clic en «Actualizar» para buscar otra vez o escriba el nombre.</translation>
    </message>
    <message>
        <source>%ld%%</source>
        <translation>%ld %%</translation>
    </message>
    <message>
        <source>此桌面没有添加打印机的窗口。请自行打开系统设置中的“打印机”，或在浏览器中打开 %@。</source>
        <translation>Este escritorio no tiene ninguna ventana para añadir impresoras. Abra usted mismo «Impresoras» en la configuración del sistema, o %@ en un navegador.</translation>
    </message>
    <message>
        <source>无法从这里打开系统设置。请自行打开，并在“隐私”或“Wi-Fi”中允许查找网络。</source>
        <translation>No se puede abrir la configuración del sistema desde aquí. Ábrala usted mismo y permita la búsqueda de redes en Privacidad o Wi-Fi.</translation>
    </message>
    <message>
        <source>此电脑没有 Wi-Fi 适配器，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>Este equipo no tiene adaptador Wi-Fi; por eso no se pueden mostrar las redes cercanas. Introduzca la red a la que debe conectarse la impresora.</translation>
    </message>
    <message>
        <source>已连接 %d 台打印机，将配置“%@”。要配置另一台，请先拔下这一台。</source>
        <translation>Hay %d impresoras conectadas. Se configurará «%@»; para elegir otra, desconecte antes esta.</translation>
    </message>
    <message>
        <source>打印机：%@</source>
        <translation>Impresora: %@</translation>
    </message>
</context>
</TS>
