<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="zh_CN">
<context>
    <name>wifitool</name>
    <message>
        <source>温馨提示：</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>是否退出Wi-Fi配置工具?</source>
        <translation>Quitter Wi-Fi Tool ?</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvert</translation>
    </message>
    <message>
        <source>WEP</source>
        <translation>WEP</translation>
    </message>
    <message>
        <source>WPA-Personal</source>
        <translation>WPA Personnel</translation>
    </message>
    <message>
        <source>WPA-Enterprise</source>
        <translation>WPA Entreprise</translation>
    </message>
    <message>
        <source>WPA/WPA2-Personal</source>
        <translation>WPA/WPA2 Personnel</translation>
    </message>
    <message>
        <source>WPA/WPA2-Enterprise</source>
        <translation>WPA/WPA2 Entreprise</translation>
    </message>
    <message>
        <source>WPA2-Personal</source>
        <translation>WPA2 Personnel</translation>
    </message>
    <message>
        <source>WPA2-Enterprise</source>
        <translation>WPA2 Entreprise</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Personal</source>
        <translation>WPA2/WPA3 Personnel</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Enterprise</source>
        <translation>WPA2/WPA3 Entreprise</translation>
    </message>
    <message>
        <source>WPA3-Personal</source>
        <translation>WPA3 Personnel</translation>
    </message>
    <message>
        <source>WPA3-Enterprise</source>
        <translation>WPA3 Entreprise</translation>
    </message>
    <message>
        <source>OWE</source>
        <translation>Enhanced Open (OWE)</translation>
    </message>
    <message>
        <source>正在唤醒打印机…</source>
        <translation>Réveil de l’imprimante…</translation>
    </message>
    <message>
        <source>正在检查打印机能否配置无线网络…</source>
        <translation>Vérification de la compatibilité Wi-Fi de l’imprimante…</translation>
    </message>
    <message>
        <source>正在发送网络名称和密码，打印机正在加入网络…</source>
        <translation>Envoi du nom et du mot de passe ; l’imprimante rejoint le réseau…</translation>
    </message>
    <message>
        <source>正在等待打印机的网络地址（第 %d 次，共 %d 次）…</source>
        <translation>Attente de l’adresse de l’imprimante (essai %d sur %d)…</translation>
    </message>
    <message>
        <source>打印机没有应答，您现在可以关闭此窗口。</source>
        <translation>L’imprimante n’a pas répondu. Fermez cette fenêtre, redémarrez l’imprimante et réessayez.</translation>
    </message>
    <message>
        <source>正在配置打印机</source>
        <translation>Configuration de l’imprimante</translation>
    </message>
    <message>
        <source>这可能需要几分钟。请保持打印机开机，不要拔下 USB 数据线。</source>
        <translation>Cela peut prendre quelques minutes. Laissez l’imprimante allumée et le câble USB branché.</translation>
    </message>
    <message>
        <source>配置进度</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>打印机最多接受 %d 个字节的密码，请为网络设置较短的密码。</source>
        <translation>Ce mot de passe est trop long pour l’imprimante : %d octets au plus, un par lettre ou chiffre ordinaire. Donnez au réseau un mot de passe plus court.</translation>
    </message>
    <message>
        <source>网络名称</source>
        <translation>&amp;Nom du réseau</translation>
    </message>
    <message>
        <source>网络密码</source>
        <translation>&amp;Mot de passe</translation>
    </message>
    <message>
        <source>与路由器上显示的名称完全一致，区分大小写。</source>
        <translation>Exactement comme sur votre routeur ; majuscules et minuscules comptent.</translation>
    </message>
    <message>
        <source>没有密码的网络请留空。</source>
        <translation>Laissez vide pour un réseau sans mot de passe.</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>Affic&amp;her le mot de passe</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>上一步</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>打印无线网络信息页</source>
        <translation>&amp;Imprimer la page d’infos Wi-Fi</translation>
    </message>
    <message>
        <source>输入无线网络</source>
        <translation>Saisissez votre réseau Wi-Fi</translation>
    </message>
    <message>
        <source>此电脑的无线网络已关闭，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>Le Wi-Fi de cet ordinateur est désactivé : il ne peut pas lister les réseaux alentour. Saisissez le réseau que l’imprimante doit rejoindre.</translation>
    </message>
    <message>
        <source>名称太长：最多 32 个字节。</source>
        <translation>Ce nom est trop long : 32 octets au plus.</translation>
    </message>
    <message>
        <source>打印端口被占用，无法打印无线网络信息页。</source>
        <translation>L’imprimante est occupée. Attendez qu’elle ait terminé, puis réessayez.</translation>
    </message>
    <message>
        <source>已将无线网络信息页发送给打印机</source>
        <translation>La page d’infos Wi-Fi a été envoyée à l’imprimante.</translation>
    </message>
    <message>
        <source>不过它可能打印不出来：%@</source>
        <translation>Il se peut toutefois qu’elle ne soit pas imprimée : %@</translation>
    </message>
    <message>
        <source>完成并退出</source>
        <translation>&amp;Terminer et quitter</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>第%d步，共%d步：%@</source>
        <translation>Étape %d sur %d : %@</translation>
    </message>
    <message>
        <source>第%d步</source>
        <translation>Étape %d</translation>
    </message>
    <message>
        <source>Wi-Fi配置工具</source>
        <translation>Wi-Fi Tool</translation>
    </message>
    <message>
        <source>让打印机连上无线网络</source>
        <translation>Connectez votre imprimante au Wi-Fi</translation>
    </message>
    <message>
        <source>请打开打印机电源，然后选择配置方式。</source>
        <translation>Allumez l’imprimante, puis choisissez comment la configurer.</translation>
    </message>
    <message>
        <source>USB数据线</source>
        <translation>Câble USB</translation>
    </message>
    <message>
        <source>用数据线连接打印机和电脑。适合第一次使用。</source>
        <translation>Reliez l’imprimante à cet ordinateur par un câble. Idéal la première fois.</translation>
    </message>
    <message>
        <source>WPS一键配网</source>
        <translation>WPS</translation>
    </message>
    <message>
        <source>路由器有WPS按钮时可用，不需要数据线和密码。</source>
        <translation>Pour les routeurs avec bouton WPS. Sans câble ni mot de passe.</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi按钮</source>
        <translation>Bouton Wi-Fi</translation>
    </message>
    <message>
        <source>打印机没有显示屏时使用，与路由器上的WPS按钮配合。</source>
        <translation>Pour les imprimantes sans écran, avec le bouton WPS du routeur.</translation>
    </message>
    <message>
        <source>打印机的菜单</source>
        <translation>Menu de l’imprimante</translation>
    </message>
    <message>
        <source>打印机有显示屏和菜单时使用。</source>
        <translation>Pour les imprimantes avec écran et menu.</translation>
    </message>
    <message>
        <source>从哪里启动WPS？</source>
        <translation>Où voulez-vous lancer WPS ?</translation>
    </message>
    <message>
        <source>看一看您的打印机：它有显示屏和菜单，还是只有Wi-Fi按钮？</source>
        <translation>Regardez votre imprimante : a-t-elle un écran avec un menu, ou seulement un bouton Wi-Fi ?</translation>
    </message>
    <message>
        <source>按钮方式（PBC）</source>
        <translation>Par bouton (PBC)</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮即可。</source>
        <translation>Il suffit d’appuyer sur le bouton WPS du routeur.</translation>
    </message>
    <message>
        <source>PIN码方式</source>
        <translation>Code PIN</translation>
    </message>
    <message>
        <source>路由器没有WPS按钮时，在它的设置页面输入PIN码。</source>
        <translation>Pour les routeurs sans bouton WPS : vous saisissez le code PIN de l’imprimante sur la page de configuration du routeur.</translation>
    </message>
    <message>
        <source>选择WPS的方式</source>
        <translation>Choisissez la méthode WPS</translation>
    </message>
    <message>
        <source>两种方式都在打印机的菜单里。路由器上有WPS按钮时，按钮方式最简单。</source>
        <translation>Les deux méthodes sont dans le menu de l’imprimante. Si le routeur a un bouton WPS, la méthode par bouton est la plus simple.</translation>
    </message>
    <message>
        <source>用按钮连接</source>
        <translation>Connexion avec les boutons</translation>
    </message>
    <message>
        <source>请在两分钟内完成前两步。</source>
        <translation>Effectuez les deux premières étapes en moins de deux minutes.</translation>
    </message>
    <message>
        <source>按住打印机上的Wi-Fi按钮约3秒，直到指示灯开始闪烁。</source>
        <translation>Maintenez le bouton Wi-Fi de l’imprimante environ 3 secondes, jusqu’à ce que le voyant clignote.</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮。</source>
        <translation>Appuyez sur le bouton WPS du routeur.</translation>
    </message>
    <message>
        <source>等待最多两分钟。指示灯不再闪烁时，点击“下一步”。</source>
        <translation>Attendez jusqu’à deux minutes. Quand le voyant ne clignote plus, cliquez ici sur « Suivant ».</translation>
    </message>
    <message>
        <source>在打印机菜单中使用按钮方式</source>
        <translation>Méthode par bouton (menu de l’imprimante)</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PBC，然后按OK确认。</source>
        <translation>Sur l’écran de l’imprimante, choisissez Menu › Réseau › WPS › PBC et confirmez avec OK.</translation>
    </message>
    <message>
        <source>等待最多两分钟。显示屏显示结果后，点击“下一步”。</source>
        <translation>Attendez jusqu’à deux minutes. Quand l’écran affiche le résultat, cliquez ici sur « Suivant ».</translation>
    </message>
    <message>
        <source>在打印机菜单中使用PIN码</source>
        <translation>Méthode par code PIN (menu de l’imprimante)</translation>
    </message>
    <message>
        <source>PIN码几分钟后失效，请先准备好路由器的设置页面。</source>
        <translation>Le code PIN expire vite : ouvrez d’abord la page de configuration du routeur.</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PIN，显示屏会显示一个8位数字。</source>
        <translation>Sur l’écran de l’imprimante, choisissez Menu › Réseau › WPS › PIN. Un nombre de 8 chiffres s’affiche.</translation>
    </message>
    <message>
        <source>在路由器设置页面的WPS栏输入这个PIN码，然后开始连接。</source>
        <translation>Saisissez ce code PIN dans la section WPS de la page de configuration du routeur et lancez-y la connexion.</translation>
    </message>
    <message>
        <source>打印机的显示屏显示什么？</source>
        <translation>Qu’affiche l’écran de l’imprimante ?</translation>
    </message>
    <message>
        <source>请看打印机的显示屏，选择您看到的结果。</source>
        <translation>Regardez l’écran de l’imprimante et choisissez ce que vous voyez.</translation>
    </message>
    <message>
        <source>连接成功</source>
        <translation>Connectée</translation>
    </message>
    <message>
        <source>显示屏显示“连接成功”或IP地址。</source>
        <translation>L’écran indique que la connexion est établie ou affiche une adresse IP.</translation>
    </message>
    <message>
        <source>连接失败</source>
        <translation>Non connectée</translation>
    </message>
    <message>
        <source>显示屏显示“连接失败”或“超时”。请返回，再试一次。</source>
        <translation>L’écran indique un échec ou un délai dépassé. Revenez en arrière et réessayez.</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi指示灯怎么样？</source>
        <translation>Que fait le voyant Wi-Fi de l’imprimante ?</translation>
    </message>
    <message>
        <source>请看打印机的Wi-Fi指示灯，选择您看到的样子。</source>
        <translation>Regardez le voyant Wi-Fi de l’imprimante et choisissez ce que vous voyez.</translation>
    </message>
    <message>
        <source>指示灯常亮</source>
        <translation>Allumé fixe</translation>
    </message>
    <message>
        <source>打印机已经连上无线网络。</source>
        <translation>L’imprimante est connectée au Wi-Fi.</translation>
    </message>
    <message>
        <source>指示灯闪烁或熄灭</source>
        <translation>Clignotant ou éteint</translation>
    </message>
    <message>
        <source>没有连上。请返回，再试一次。</source>
        <translation>La connexion n’a pas abouti. Revenez en arrière et réessayez.</translation>
    </message>
    <message>
        <source>打开系统的添加打印机窗口</source>
        <translation>&amp;Ouvrir la fenêtre « Ajouter une imprimante » du système</translation>
    </message>
    <message>
        <source>恭喜，您完成了无线网络配置！</source>
        <translation>Félicitations, le Wi-Fi de votre imprimante est configuré !</translation>
    </message>
    <message>
        <source>现在可以拔掉USB数据线了。要在这台电脑上打印，请把打印机添加到系统：勾选下面的选项，然后点击“完成并退出”。</source>
        <translation>Vous pouvez débrancher le câble USB. Pour imprimer depuis cet ordinateur, ajoutez l’imprimante au système : cochez la case ci-dessous et cliquez sur « Terminer et quitter ».</translation>
    </message>
    <message>
        <source>打印机已连上无线网络</source>
        <translation>L’imprimante est connectée au Wi-Fi</translation>
    </message>
    <message>
        <source>打印机没有连上无线网络</source>
        <translation>L’imprimante n’est pas connectée au Wi-Fi</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机网络未开启，无法进行配网。</source>
        <translation>La configuration a échoué : le Wi-Fi de l’imprimante est désactivé.</translation>
    </message>
    <message>
        <source>配网失败</source>
        <translation>La configuration du réseau a échoué.</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机Wi-Fi模块未装配，无法进行配网。</source>
        <translation>La configuration a échoué : l’imprimante n’a pas de module Wi-Fi.</translation>
    </message>
    <message>
        <source>Wi-Fi故障，打印机配置失败。</source>
        <translation>La configuration a échoué : le Wi-Fi de l’imprimante est en panne.</translation>
    </message>
    <message>
        <source>打印机配置失败，系统升级过程中，不允许配置网络。</source>
        <translation>La configuration a échoué : l’imprimante se met à jour et ne peut pas être configurée maintenant.</translation>
    </message>
    <message>
        <source>请检查打印机是否已开机、数据线是否插好、网络名称和密码是否正确，然后重新打开本工具再试一次。</source>
        <translation>Vérifiez que l’imprimante est allumée, que le câble est bien branché et que le nom du réseau et le mot de passe sont corrects. Relancez ensuite ce programme.</translation>
    </message>
    <message>
        <source>这台打印机没有安装Wi-Fi模块。请继续使用USB数据线打印，或向经销商咨询Wi-Fi模块。</source>
        <translation>Continuez à imprimer par le câble USB, ou demandez un module Wi-Fi à votre revendeur.</translation>
    </message>
    <message>
        <source>请关闭打印机，等待10秒后重新打开，再试一次。如果问题依旧，请联系售后服务。</source>
        <translation>Éteignez l’imprimante, attendez 10 secondes, rallumez-la et réessayez. Si le problème persiste, contactez le service après-vente.</translation>
    </message>
    <message>
        <source>请等待打印机升级完成，期间不要关闭电源，然后再试一次。</source>
        <translation>Attendez la fin de la mise à jour de l’imprimante sans l’éteindre, puis réessayez.</translation>
    </message>
    <message>
        <source>请在打印机上打开Wi-Fi功能，重新启动打印机，然后再试一次。</source>
        <translation>Activez le Wi-Fi sur l’imprimante, redémarrez-la, puis réessayez.</translation>
    </message>
    <message>
        <source>您可以这样做</source>
        <translation>Ce que vous pouvez faire</translation>
    </message>
    <message>
        <source>运行日志：%@</source>
        <translation>Fichiers journaux : %@</translation>
    </message>
    <message>
        <source>配置没有成功</source>
        <translation>La configuration n’a pas réussi</translation>
    </message>
    <message>
        <source>打印机没有接受这次配置。</source>
        <translation>L’imprimante n’a pas accepté la configuration.</translation>
    </message>
    <message>
        <source>请检查网络名称和密码（注意大小写），并确认打印机已开机、数据线已插好、离路由器不太远。然后返回，再试一次。</source>
        <translation>Vérifiez le nom du réseau et le mot de passe (majuscules et minuscules comptent), et que l’imprimante est allumée, branchée et pas trop loin du routeur. Revenez ensuite en arrière et réessayez.</translation>
    </message>
    <message>
        <source>没有连接打印机</source>
        <translation>Aucune imprimante n’est connectée</translation>
    </message>
    <message>
        <source>没有找到支持无线网络的打印机。</source>
        <translation>Aucune imprimante Wi-Fi n’a été trouvée.</translation>
    </message>
    <message>
        <source>请打开打印机电源，用 USB 数据线把它连到这台电脑，等待几秒。然后返回，再试一次。</source>
        <translation>Allumez l’imprimante, reliez-la à cet ordinateur par un câble USB et attendez quelques secondes. Revenez ensuite en arrière et réessayez.</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>Masquer le mot de passe</translation>
    </message>
    <message>
        <source>大写锁定已打开</source>
        <translation>Verr. Maj. activé</translation>
    </message>
    <message>
        <source>too common</source>
        <translation>Trop courant</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>Trop court</translation>
    </message>
    <message>
        <source>insecure</source>
        <translation>Peu sûr</translation>
    </message>
    <message>
        <source>weak</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>Fort</translation>
    </message>
    <message>
        <source>选择无线网络</source>
        <translation>Choisissez le réseau Wi-Fi</translation>
    </message>
    <message>
        <source>请选择打印机要连接的网络，并输入它的密码。</source>
        <translation>Choisissez le réseau que l’imprimante doit rejoindre et saisissez son mot de passe.</translation>
    </message>
    <message>
        <source>附近的无线网络</source>
        <translation>Réseaux à proximité</translation>
    </message>
    <message>
        <source>正在查找无线网络…</source>
        <translation>Recherche de réseaux…</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>此电脑</source>
        <translation>votre réseau</translation>
    </message>
    <message>
        <source>前往设置</source>
        <translation>Ouvrir les paramètres</translation>
    </message>
    <message>
        <source>请打开定位服务，步骤：系统设置-&gt;隐私与安全性-&gt;隐私-&gt;定位服务。</source>
        <translation>Ce programme n’est pas autorisé à chercher des réseaux Wi-Fi. Autorisez-le dans les paramètres du système, sous Confidentialité ou Wi-Fi.</translation>
    </message>
    <message>
        <source>打印端口被占用，无法配置打印机</source>
        <translation>L’imprimante est occupée par une autre tâche. Attendez la fin de celle-ci, puis cliquez de nouveau sur « Suivant ».</translation>
    </message>
    <message>
        <source>请从列表中选择，或在此输入名称。</source>
        <translation>Choisissez dans la liste ou saisissez le nom ici.</translation>
    </message>
    <message>
        <source>唤醒打印机</source>
        <translation>réveil de l’imprimante</translation>
    </message>
    <message>
        <source>询问打印机能否使用 Wi-Fi</source>
        <translation>vérification de la compatibilité Wi-Fi</translation>
    </message>
    <message>
        <source>发送网络设置</source>
        <translation>envoi des paramètres du réseau</translation>
    </message>
    <message>
        <source>查询打印机的地址</source>
        <translation>demande de l’adresse de l’imprimante</translation>
    </message>
    <message>
        <source>打印信息页</source>
        <translation>impression de la page d’infos</translation>
    </message>
    <message>
        <source>“%@”（进程 %@）正在使用打印机。</source>
        <translation>« %@ » (processus %@) utilise l’imprimante.</translation>
    </message>
    <message>
        <source>请关闭该程序，然后再试一次。如果打印机已连接到虚拟机，请先在虚拟机中断开。</source>
        <translation>Fermez ce programme, puis réessayez. Si une machine virtuelle utilise l’imprimante, déconnectez-la d’abord de cette machine.</translation>
    </message>
    <message>
        <source>另一个程序正在使用打印机。</source>
        <translation>Un autre programme utilise l’imprimante.</translation>
    </message>
    <message>
        <source>请关闭正在打印或扫描的程序以及虚拟机，然后再试一次。</source>
        <translation>Fermez les programmes qui impriment ou numérisent ainsi que les machines virtuelles, puis réessayez.</translation>
    </message>
    <message>
        <source>此电脑不允许您使用打印机：缺少规则 60-wifitool.rules。</source>
        <translation>Cet ordinateur ne vous laisse pas utiliser l’imprimante : la règle 60-wifitool.rules est absente.</translation>
    </message>
    <message>
        <source>请重新安装带有此规则的 wifitool 软件包，拔下 USB 数据线再插上，然后再试一次。</source>
        <translation>Réinstallez le paquet wifitool, qui contient cette règle. Débranchez ensuite le câble USB, rebranchez-le et réessayez.</translation>
    </message>
    <message>
        <source>此电脑还没有允许您使用打印机。</source>
        <translation>Cet ordinateur ne vous laisse pas encore utiliser l’imprimante.</translation>
    </message>
    <message>
        <source>请拔下 USB 数据线再插上，等待几秒，然后再试一次。如果没有用，请重新启动电脑。</source>
        <translation>Débranchez le câble USB, rebranchez-le, attendez quelques secondes et réessayez. Si cela ne suffit pas, redémarrez l’ordinateur.</translation>
    </message>
    <message>
        <source>只有直接在此电脑前登录的人才能使用打印机。您的会话是远程的，或是以其他方式启动的。</source>
        <translation>Seule une personne connectée directement sur cet ordinateur peut utiliser l’imprimante. Votre session est distante ou a été lancée autrement.</translation>
    </message>
    <message>
        <source>请直接在此电脑上登录后再试一次，或请管理员帮忙。</source>
        <translation>Connectez-vous directement sur l’ordinateur et réessayez, ou adressez-vous à son administrateur.</translation>
    </message>
    <message>
        <source>打印机被拔下或关闭了（步骤：%@）。</source>
        <translation>L’imprimante a été débranchée ou éteinte (étape : %@).</translation>
    </message>
    <message>
        <source>在 USB 上找不到打印机。</source>
        <translation>L’imprimante n’a pas été trouvée sur les ports USB.</translation>
    </message>
    <message>
        <source>请打开打印机并插好数据线，等它准备就绪后再试一次。完成之前请不要拔线。</source>
        <translation>Allumez l’imprimante et branchez bien le câble. Quand l’imprimante est prête, réessayez et laissez le câble branché jusqu’à la fin.</translation>
    </message>
    <message>
        <source>打印机在 %d 秒内没有响应（步骤：%@）。</source>
        <translation>L’imprimante n’a pas répondu en %d secondes (étape : %@).</translation>
    </message>
    <message>
        <source>打印机可能在休眠或正忙：请按一下打印机上的任意键，等它准备就绪后再试一次。如果没有用，请关闭打印机，10 秒后再打开。</source>
        <translation>L’imprimante est peut-être en veille ou occupée : appuyez sur une de ses touches, attendez qu’elle soit prête et réessayez. Si cela ne suffit pas, éteignez-la et rallumez-la après 10 secondes.</translation>
    </message>
    <message>
        <source>打印机给出了意外的响应（步骤：%@）。</source>
        <translation>L’imprimante a donné une réponse inattendue (étape : %@).</translation>
    </message>
    <message>
        <source>与打印机的 USB 通信出错（步骤：%@）。</source>
        <translation>La connexion USB avec l’imprimante a échoué (étape : %@).</translation>
    </message>
    <message>
        <source>请把打印机直接接到电脑的另一个 USB 接口（不要经过集线器），最好换一根数据线，然后再试一次。</source>
        <translation>Reliez l’imprimante directement à un autre port USB de l’ordinateur (sans concentrateur), si possible avec un autre câble, puis réessayez.</translation>
    </message>
    <message>
        <source>打印机拒绝了网络设置，最可能的原因是密码不对。</source>
        <translation>L’imprimante a refusé les paramètres du réseau ; le mot de passe est sans doute incorrect.</translation>
    </message>
    <message>
        <source>请检查密码（区分大小写）。许多打印机只支持 2.4 GHz，不支持 5 GHz。如果打印机离路由器太远，请移近一些。然后再试一次。</source>
        <translation>Vérifiez le mot de passe ; majuscules et minuscules comptent. Beaucoup d’imprimantes n’utilisent que le 2,4 GHz, pas le 5 GHz. Si l’imprimante est loin du routeur, rapprochez-la. Puis réessayez.</translation>
    </message>
    <message>
        <source>打印机收到了设置，但没有从路由器得到地址。</source>
        <translation>L’imprimante a accepté les paramètres, mais n’a pas reçu d’adresse du routeur.</translation>
    </message>
    <message>
        <source>最可能的原因是密码不对、网络只有 5 GHz，或路由器太远：请检查后再试一次。如果都没有问题，请重新启动路由器，并查看它是否只允许已知的设备。</source>
        <translation>Le plus souvent, le mot de passe est incorrect, le réseau n’utilise que le 5 GHz ou le routeur est trop loin : vérifiez-le et réessayez. Si tout est correct, redémarrez le routeur et regardez s’il n’admet que les appareils connus.</translation>
    </message>
    <message>
        <source>打印机没有说明能否配置 Wi-Fi。</source>
        <translation>L’imprimante n’a pas indiqué si elle peut être configurée pour le Wi-Fi.</translation>
    </message>
    <message>
        <source>详细信息</source>
        <translation>&amp;Détails</translation>
    </message>
    <message>
        <source>复制详细信息</source>
        <translation>&amp;Copier les détails</translation>
    </message>
    <message>
        <source>已复制</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>打印机地址</source>
        <translation>Adresse de l’imprimante</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>&amp;Copier l’adresse</translation>
    </message>
    <message>
        <source>打开打印机的网页</source>
        <translation>Ouvrir la &amp;page web de l’imprimante</translation>
    </message>
    <message>
        <source>正在检查此电脑能否连上打印机…</source>
        <translation>Vérification de l’accès à l’imprimante depuis cet ordinateur…</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机。</source>
        <translation>Cet ordinateur peut joindre l’imprimante.</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机，但打印机不接受网络打印（IPP）。</source>
        <translation>Cet ordinateur peut joindre l’imprimante, mais celle-ci n’accepte pas d’impressions par le réseau (IPP).</translation>
    </message>
    <message>
        <source>此电脑连不上打印机。打印机可能在另一个网络上，或在会隔离设备的访客网络上。</source>
        <translation>Cet ordinateur ne peut pas joindre l’imprimante. Elle est peut-être sur un autre réseau, ou sur un réseau invité qui isole les appareils.</translation>
    </message>
    <message>
        <source>此网络还要求用户名，而用户名无法发送给打印机。</source>
        <translation>Ce réseau demande aussi un nom d’utilisateur, qui ne peut pas être envoyé à l’imprimante.</translation>
    </message>
    <message>
        <source>此网络只接受 WPA3，有些打印机不支持。</source>
        <translation>Ce réseau n’accepte que WPA3 ; certaines imprimantes ne le prennent pas en charge.</translation>
    </message>
    <message>
        <source>此网络只有 5 GHz，许多打印机需要 2.4 GHz。</source>
        <translation>Ce réseau n’utilise que le 5 GHz ; beaucoup d’imprimantes exigent le 2,4 GHz.</translation>
    </message>
    <message>
        <source>此网络需要密码，您还没有输入。</source>
        <translation>Ce réseau demande un mot de passe ; aucun n’est saisi.</translation>
    </message>
    <message>
        <source>名称的开头或结尾有空格。</source>
        <translation>Le nom commence ou se termine par une espace.</translation>
    </message>
    <message>
        <source>密码的开头或结尾有空格。</source>
        <translation>Le mot de passe commence ou se termine par une espace.</translation>
    </message>
    <message>
        <source>名称含有控制字符，无法发送给打印机。</source>
        <translation>Ce nom contient des caractères de contrôle et ne peut pas être envoyé à l’imprimante.</translation>
    </message>
    <message>
        <source>密码含有控制字符，无法发送给打印机。</source>
        <translation>Ce mot de passe contient des caractères de contrôle et ne peut pas être envoyé à l’imprimante.</translation>
    </message>
    <message>
        <source>正在等待系统许可…</source>
        <translation>En attente d’autorisation…</translation>
    </message>
    <message>
        <source>系统尚未回答是否允许查找网络。请点击“刷新”再试一次，或直接输入名称。</source>
        <translation>Le système n’a pas encore indiqué si la recherche de réseaux est autorisée. Cliquez sur « Actualiser » pour réessayer, ou saisissez le nom.</translation>
    </message>
    <message>
        <source>没有找到网络。请点击“刷新”再找一次，或直接输入名称。</source>
        <translation>Aucun réseau n’a été trouvé. Cliquez sur « Actualiser » pour relancer la recherche, ou saisissez le nom.</translation>
    </message>
    <message>
        <source>%ld%%</source>
        <translation>%ld %%</translation>
    </message>
    <message>
        <source>此桌面没有添加打印机的窗口。请自行打开系统设置中的“打印机”，或在浏览器中打开 %@。</source>
        <translation>Ce bureau n’a pas de fenêtre pour ajouter une imprimante. Ouvrez vous-même « Imprimantes » dans les paramètres du système, ou %@ dans un navigateur.</translation>
    </message>
    <message>
        <source>无法从这里打开系统设置。请自行打开，并在“隐私”或“Wi-Fi”中允许查找网络。</source>
        <translation>Impossible d’ouvrir les paramètres du système d’ici. Ouvrez-les vous-même et autorisez la recherche de réseaux, sous Confidentialité ou Wi-Fi.</translation>
    </message>
    <message>
        <source>此电脑没有 Wi-Fi 适配器，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>Cet ordinateur n’a pas d’adaptateur Wi-Fi : il ne peut pas lister les réseaux alentour. Saisissez le réseau que l’imprimante doit rejoindre.</translation>
    </message>
    <message>
        <source>已连接 %d 台打印机，将配置“%@”。要配置另一台，请先拔下这一台。</source>
        <translation>%d imprimantes sont branchées. « %@ » sera configurée ; pour en choisir une autre, débranchez d’abord celle-ci.</translation>
    </message>
    <message>
        <source>打印机：%@</source>
        <translation>Imprimante : %@</translation>
    </message>
</context>
</TS>
