<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="zh_CN">
<context>
    <name>wifitool</name>
    <message>
        <source>温馨提示：</source>
        <translation>안내</translation>
    </message>
    <message>
        <source>是否退出Wi-Fi配置工具?</source>
        <translation>Wi-Fi Tool을 종료하시겠습니까?</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>기타</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>개방형</translation>
    </message>
    <message>
        <source>WEP</source>
        <translation>WEP</translation>
    </message>
    <message>
        <source>WPA-Personal</source>
        <translation>WPA 개인용</translation>
    </message>
    <message>
        <source>WPA-Enterprise</source>
        <translation>WPA 기업용</translation>
    </message>
    <message>
        <source>WPA/WPA2-Personal</source>
        <translation>WPA/WPA2 개인용</translation>
    </message>
    <message>
        <source>WPA/WPA2-Enterprise</source>
        <translation>WPA/WPA2 기업용</translation>
    </message>
    <message>
        <source>WPA2-Personal</source>
        <translation>WPA2 개인용</translation>
    </message>
    <message>
        <source>WPA2-Enterprise</source>
        <translation>WPA2 기업용</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Personal</source>
        <translation>WPA2/WPA3 개인용</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Enterprise</source>
        <translation>WPA2/WPA3 기업용</translation>
    </message>
    <message>
        <source>WPA3-Personal</source>
        <translation>WPA3 개인용</translation>
    </message>
    <message>
        <source>WPA3-Enterprise</source>
        <translation>WPA3 기업용</translation>
    </message>
    <message>
        <source>OWE</source>
        <translation>Enhanced Open (OWE)</translation>
    </message>
    <message>
        <source>正在唤醒打印机…</source>
        <translation>프린터를 깨우는 중…</translation>
    </message>
    <message>
        <source>正在检查打印机能否配置无线网络…</source>
        <translation>프린터의 Wi-Fi 설정 가능 여부를 확인하는 중…</translation>
    </message>
    <message>
        <source>正在发送网络名称和密码，打印机正在加入网络…</source>
        <translation>이름과 비밀번호를 보내는 중입니다. 프린터가 네트워크에 연결하고 있습니다…</translation>
    </message>
    <message>
        <source>正在等待打印机的网络地址（第 %d 次，共 %d 次）…</source>
        <translation>프린터의 주소를 기다리는 중(%d번째, 총 %d번)…</translation>
    </message>
    <message>
        <source>打印机没有应答，您现在可以关闭此窗口。</source>
        <translation>프린터가 응답하지 않습니다. 이 창을 닫고 프린터를 다시 시작한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>正在配置打印机</source>
        <translation>프린터를 설정하는 중</translation>
    </message>
    <message>
        <source>这可能需要几分钟。请保持打印机开机，不要拔下 USB 数据线。</source>
        <translation>몇 분 정도 걸릴 수 있습니다. 프린터를 켜 두고 USB 케이블을 뽑지 마십시오.</translation>
    </message>
    <message>
        <source>配置进度</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>打印机最多接受 %d 个字节的密码，请为网络设置较短的密码。</source>
        <translation>비밀번호가 프린터에는 너무 깁니다. 최대 %d바이트(일반 영문자나 숫자는 하나에 1바이트)입니다. 네트워크 비밀번호를 더 짧게 바꾸십시오.</translation>
    </message>
    <message>
        <source>网络名称</source>
        <translation>네트워크 이름(&amp;A)</translation>
    </message>
    <message>
        <source>网络密码</source>
        <translation>비밀번호(&amp;W)</translation>
    </message>
    <message>
        <source>与路由器上显示的名称完全一致，区分大小写。</source>
        <translation>공유기에 표시된 이름과 똑같이 입력하십시오. 대소문자를 구분합니다.</translation>
    </message>
    <message>
        <source>没有密码的网络请留空。</source>
        <translation>비밀번호가 없는 네트워크는 비워 두십시오.</translation>
    </message>
    <message>
        <source>显示密码</source>
        <translation>비밀번호 표시(&amp;S)</translation>
    </message>
    <message>
        <source>下一步</source>
        <translation>다음(&amp;N)</translation>
    </message>
    <message>
        <source>上一步</source>
        <translation>뒤로(&amp;B)</translation>
    </message>
    <message>
        <source>打印无线网络信息页</source>
        <translation>Wi-Fi 정보 페이지 인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>输入无线网络</source>
        <translation>Wi-Fi 네트워크 입력</translation>
    </message>
    <message>
        <source>此电脑的无线网络已关闭，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>이 컴퓨터의 Wi-Fi가 꺼져 있어 주변 네트워크를 표시할 수 없습니다. 프린터를 연결할 네트워크를 입력하십시오.</translation>
    </message>
    <message>
        <source>名称太长：最多 32 个字节。</source>
        <translation>이름이 너무 깁니다. 최대 32바이트입니다.</translation>
    </message>
    <message>
        <source>打印端口被占用，无法打印无线网络信息页。</source>
        <translation>프린터가 사용 중입니다. 끝날 때까지 기다린 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>已将无线网络信息页发送给打印机</source>
        <translation>Wi-Fi 정보 페이지를 프린터로 보냈습니다.</translation>
    </message>
    <message>
        <source>不过它可能打印不出来：%@</source>
        <translation>다만 인쇄되지 않을 수 있습니다: %@</translation>
    </message>
    <message>
        <source>完成并退出</source>
        <translation>완료하고 종료(&amp;F)</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>网络</source>
        <translation>네트워크</translation>
    </message>
    <message>
        <source>配置</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>第%d步，共%d步：%@</source>
        <translation>%d단계(총 %d단계): %@</translation>
    </message>
    <message>
        <source>第%d步</source>
        <translation>%d단계</translation>
    </message>
    <message>
        <source>Wi-Fi配置工具</source>
        <translation>Wi-Fi Tool</translation>
    </message>
    <message>
        <source>让打印机连上无线网络</source>
        <translation>프린터를 Wi-Fi에 연결하기</translation>
    </message>
    <message>
        <source>请打开打印机电源，然后选择配置方式。</source>
        <translation>프린터를 켠 다음 설정 방법을 선택하십시오.</translation>
    </message>
    <message>
        <source>USB数据线</source>
        <translation>USB 케이블</translation>
    </message>
    <message>
        <source>用数据线连接打印机和电脑。适合第一次使用。</source>
        <translation>프린터를 케이블로 이 컴퓨터에 연결합니다. 처음이라면 이 방법이 좋습니다.</translation>
    </message>
    <message>
        <source>WPS一键配网</source>
        <translation>WPS</translation>
    </message>
    <message>
        <source>路由器有WPS按钮时可用，不需要数据线和密码。</source>
        <translation>WPS 버튼이 있는 공유기용. 케이블도 비밀번호도 필요 없습니다.</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi按钮</source>
        <translation>Wi-Fi 버튼</translation>
    </message>
    <message>
        <source>打印机没有显示屏时使用，与路由器上的WPS按钮配合。</source>
        <translation>화면이 없는 프린터에서 공유기의 WPS 버튼과 함께 사용합니다.</translation>
    </message>
    <message>
        <source>打印机的菜单</source>
        <translation>프린터 메뉴</translation>
    </message>
    <message>
        <source>打印机有显示屏和菜单时使用。</source>
        <translation>화면과 메뉴가 있는 프린터에 사용합니다.</translation>
    </message>
    <message>
        <source>从哪里启动WPS？</source>
        <translation>WPS를 어디에서 시작하시겠습니까?</translation>
    </message>
    <message>
        <source>看一看您的打印机：它有显示屏和菜单，还是只有Wi-Fi按钮？</source>
        <translation>프린터를 확인하십시오. 메뉴가 있는 화면이 있습니까, 아니면 Wi-Fi 버튼만 있습니까?</translation>
    </message>
    <message>
        <source>按钮方式（PBC）</source>
        <translation>버튼 방식(PBC)</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮即可。</source>
        <translation>공유기의 WPS 버튼만 누르면 됩니다.</translation>
    </message>
    <message>
        <source>PIN码方式</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>路由器没有WPS按钮时，在它的设置页面输入PIN码。</source>
        <translation>WPS 버튼이 없는 공유기용. 공유기 설정 페이지에 프린터의 PIN을 입력합니다.</translation>
    </message>
    <message>
        <source>选择WPS的方式</source>
        <translation>WPS 방식 선택</translation>
    </message>
    <message>
        <source>两种方式都在打印机的菜单里。路由器上有WPS按钮时，按钮方式最简单。</source>
        <translation>둘 다 프린터 메뉴에 있습니다. 공유기에 WPS 버튼이 있으면 버튼 방식이 더 쉽습니다.</translation>
    </message>
    <message>
        <source>用按钮连接</source>
        <translation>버튼으로 연결</translation>
    </message>
    <message>
        <source>请在两分钟内完成前两步。</source>
        <translation>처음 두 단계는 2분 안에 끝내십시오.</translation>
    </message>
    <message>
        <source>按住打印机上的Wi-Fi按钮约3秒，直到指示灯开始闪烁。</source>
        <translation>표시등이 깜박일 때까지 프린터의 Wi-Fi 버튼을 약 3초간 누르십시오.</translation>
    </message>
    <message>
        <source>按一下路由器上的WPS按钮。</source>
        <translation>공유기의 WPS 버튼을 누르십시오.</translation>
    </message>
    <message>
        <source>等待最多两分钟。指示灯不再闪烁时，点击“下一步”。</source>
        <translation>최대 2분간 기다리십시오. 표시등이 더 이상 깜박이지 않으면 이 창에서 ‘다음’을 누르십시오.</translation>
    </message>
    <message>
        <source>在打印机菜单中使用按钮方式</source>
        <translation>프린터 메뉴에서 버튼 방식 사용</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PBC，然后按OK确认。</source>
        <translation>프린터 화면에서 메뉴 › 네트워크 › WPS › PBC를 선택하고 OK로 확인하십시오.</translation>
    </message>
    <message>
        <source>等待最多两分钟。显示屏显示结果后，点击“下一步”。</source>
        <translation>최대 2분간 기다리십시오. 화면에 결과가 표시되면 이 창에서 ‘다음’을 누르십시오.</translation>
    </message>
    <message>
        <source>在打印机菜单中使用PIN码</source>
        <translation>프린터 메뉴에서 PIN 사용</translation>
    </message>
    <message>
        <source>PIN码几分钟后失效，请先准备好路由器的设置页面。</source>
        <translation>PIN은 몇 분 뒤 만료되므로 먼저 공유기 설정 페이지를 여십시오.</translation>
    </message>
    <message>
        <source>在打印机的显示屏上选择：菜单 › 网络 › WPS › PIN，显示屏会显示一个8位数字。</source>
        <translation>프린터 화면에서 메뉴 › 네트워크 › WPS › PIN을 선택하면 8자리 숫자가 표시됩니다.</translation>
    </message>
    <message>
        <source>在路由器设置页面的WPS栏输入这个PIN码，然后开始连接。</source>
        <translation>공유기 설정 페이지의 WPS 항목에 이 PIN을 입력하고 연결을 시작하십시오.</translation>
    </message>
    <message>
        <source>打印机的显示屏显示什么？</source>
        <translation>프린터 화면에 무엇이 표시됩니까?</translation>
    </message>
    <message>
        <source>请看打印机的显示屏，选择您看到的结果。</source>
        <translation>프린터 화면을 보고 해당하는 것을 선택하십시오.</translation>
    </message>
    <message>
        <source>连接成功</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>显示屏显示“连接成功”或IP地址。</source>
        <translation>연결되었다는 표시나 IP 주소가 보입니다.</translation>
    </message>
    <message>
        <source>连接失败</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>显示屏显示“连接失败”或“超时”。请返回，再试一次。</source>
        <translation>실패 또는 시간 초과가 표시됩니다. 뒤로 가서 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>打印机的Wi-Fi指示灯怎么样？</source>
        <translation>프린터의 Wi-Fi 표시등이 어떤 상태입니까?</translation>
    </message>
    <message>
        <source>请看打印机的Wi-Fi指示灯，选择您看到的样子。</source>
        <translation>프린터의 Wi-Fi 표시등을 보고 해당하는 것을 선택하십시오.</translation>
    </message>
    <message>
        <source>指示灯常亮</source>
        <translation>계속 켜져 있음</translation>
    </message>
    <message>
        <source>打印机已经连上无线网络。</source>
        <translation>프린터가 Wi-Fi에 연결되어 있습니다.</translation>
    </message>
    <message>
        <source>指示灯闪烁或熄灭</source>
        <translation>깜박이거나 꺼져 있음</translation>
    </message>
    <message>
        <source>没有连上。请返回，再试一次。</source>
        <translation>연결되지 않았습니다. 뒤로 가서 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>打开系统的添加打印机窗口</source>
        <translation>시스템의 ‘프린터 추가’ 창 열기(&amp;O)</translation>
    </message>
    <message>
        <source>恭喜，您完成了无线网络配置！</source>
        <translation>축하합니다. 프린터의 Wi-Fi 설정을 마쳤습니다!</translation>
    </message>
    <message>
        <source>现在可以拔掉USB数据线了。要在这台电脑上打印，请把打印机添加到系统：勾选下面的选项，然后点击“完成并退出”。</source>
        <translation>이제 USB 케이블을 뽑아도 됩니다. 이 컴퓨터에서 인쇄하려면 프린터를 시스템에 추가하십시오. 아래 확인란을 선택하고 ‘완료하고 종료’를 누르십시오.</translation>
    </message>
    <message>
        <source>打印机已连上无线网络</source>
        <translation>프린터가 Wi-Fi에 연결되어 있습니다</translation>
    </message>
    <message>
        <source>打印机没有连上无线网络</source>
        <translation>프린터가 Wi-Fi에 연결되어 있지 않습니다</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机网络未开启，无法进行配网。</source>
        <translation>설정하지 못했습니다. 프린터의 Wi-Fi가 꺼져 있습니다.</translation>
    </message>
    <message>
        <source>配网失败</source>
        <translation>네트워크를 설정하지 못했습니다.</translation>
    </message>
    <message>
        <source>打印机配置失败，当前打印机Wi-Fi模块未装配，无法进行配网。</source>
        <translation>설정하지 못했습니다. 프린터에 Wi-Fi 모듈이 없습니다.</translation>
    </message>
    <message>
        <source>Wi-Fi故障，打印机配置失败。</source>
        <translation>설정하지 못했습니다. 프린터의 Wi-Fi에 이상이 있습니다.</translation>
    </message>
    <message>
        <source>打印机配置失败，系统升级过程中，不允许配置网络。</source>
        <translation>설정하지 못했습니다. 프린터가 업데이트 중입니다.</translation>
    </message>
    <message>
        <source>请检查打印机是否已开机、数据线是否插好、网络名称和密码是否正确，然后重新打开本工具再试一次。</source>
        <translation>프린터가 켜져 있는지, 케이블이 단단히 연결되었는지, 네트워크 이름과 비밀번호가 맞는지 확인하십시오. 그런 다음 이 프로그램을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>这台打印机没有安装Wi-Fi模块。请继续使用USB数据线打印，或向经销商咨询Wi-Fi模块。</source>
        <translation>USB 케이블로 계속 인쇄하거나 판매점에 Wi-Fi 모듈을 문의하십시오.</translation>
    </message>
    <message>
        <source>请关闭打印机，等待10秒后重新打开，再试一次。如果问题依旧，请联系售后服务。</source>
        <translation>프린터를 끄고 10초 기다린 뒤 다시 켜고 시도하십시오. 해결되지 않으면 고객 지원에 문의하십시오.</translation>
    </message>
    <message>
        <source>请等待打印机升级完成，期间不要关闭电源，然后再试一次。</source>
        <translation>프린터를 끄지 말고 업데이트가 끝날 때까지 기다린 뒤 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>请在打印机上打开Wi-Fi功能，重新启动打印机，然后再试一次。</source>
        <translation>프린터에서 Wi-Fi를 켜고 프린터를 다시 시작한 뒤 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>您可以这样做</source>
        <translation>다음에 할 일</translation>
    </message>
    <message>
        <source>运行日志：%@</source>
        <translation>로그 파일: %@</translation>
    </message>
    <message>
        <source>配置没有成功</source>
        <translation>설정하지 못했습니다</translation>
    </message>
    <message>
        <source>打印机没有接受这次配置。</source>
        <translation>프린터가 설정을 받아들이지 않았습니다.</translation>
    </message>
    <message>
        <source>请检查网络名称和密码（注意大小写），并确认打印机已开机、数据线已插好、离路由器不太远。然后返回，再试一次。</source>
        <translation>네트워크 이름과 비밀번호(대소문자 구분)를 확인하고, 프린터가 켜져 있고 연결되어 있으며 공유기에서 너무 멀지 않은지 확인하십시오. 그런 다음 뒤로 가서 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>没有连接打印机</source>
        <translation>연결된 프린터가 없습니다</translation>
    </message>
    <message>
        <source>没有找到支持无线网络的打印机。</source>
        <translation>Wi-Fi를 지원하는 프린터를 찾지 못했습니다.</translation>
    </message>
    <message>
        <source>请打开打印机电源，用 USB 数据线把它连到这台电脑，等待几秒。然后返回，再试一次。</source>
        <translation>프린터를 켜고 USB 케이블로 이 컴퓨터에 연결한 뒤 몇 초 기다리십시오. 그런 다음 뒤로 가서 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>隐藏密码</source>
        <translation>비밀번호 숨기기</translation>
    </message>
    <message>
        <source>大写锁定已打开</source>
        <translation>Caps Lock이 켜져 있습니다</translation>
    </message>
    <message>
        <source>too common</source>
        <translation>너무 흔함</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>너무 짧음</translation>
    </message>
    <message>
        <source>insecure</source>
        <translation>안전하지 않음</translation>
    </message>
    <message>
        <source>weak</source>
        <translation>약함</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>강함</translation>
    </message>
    <message>
        <source>选择无线网络</source>
        <translation>Wi-Fi 네트워크 선택</translation>
    </message>
    <message>
        <source>请选择打印机要连接的网络，并输入它的密码。</source>
        <translation>프린터를 연결할 네트워크를 선택하고 비밀번호를 입력하십시오.</translation>
    </message>
    <message>
        <source>附近的无线网络</source>
        <translation>주변 네트워크</translation>
    </message>
    <message>
        <source>正在查找无线网络…</source>
        <translation>네트워크를 찾는 중…</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>새로 고침(&amp;R)</translation>
    </message>
    <message>
        <source>此电脑</source>
        <translation>이 컴퓨터에서 사용 중</translation>
    </message>
    <message>
        <source>前往设置</source>
        <translation>설정 열기</translation>
    </message>
    <message>
        <source>请打开定位服务，步骤：系统设置-&gt;隐私与安全性-&gt;隐私-&gt;定位服务。</source>
        <translation>이 프로그램은 Wi-Fi 네트워크를 검색할 권한이 없습니다. 시스템 설정의 개인 정보 보호 또는 Wi-Fi에서 허용하십시오.</translation>
    </message>
    <message>
        <source>打印端口被占用，无法配置打印机</source>
        <translation>프린터가 다른 작업에 사용 중입니다. 끝날 때까지 기다린 다음 ‘다음’을 다시 누르십시오.</translation>
    </message>
    <message>
        <source>请从列表中选择，或在此输入名称。</source>
        <translation>목록에서 선택하거나 여기에 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>唤醒打印机</source>
        <translation>프린터 깨우기</translation>
    </message>
    <message>
        <source>询问打印机能否使用 Wi-Fi</source>
        <translation>Wi-Fi 지원 여부 확인</translation>
    </message>
    <message>
        <source>发送网络设置</source>
        <translation>네트워크 설정 보내기</translation>
    </message>
    <message>
        <source>查询打印机的地址</source>
        <translation>프린터 주소 확인</translation>
    </message>
    <message>
        <source>打印信息页</source>
        <translation>정보 페이지 인쇄</translation>
    </message>
    <message>
        <source>“%@”（进程 %@）正在使用打印机。</source>
        <translation>‘%@’(프로세스 %@)에서 프린터를 사용 중입니다.</translation>
    </message>
    <message>
        <source>请关闭该程序，然后再试一次。如果打印机已连接到虚拟机，请先在虚拟机中断开。</source>
        <translation>해당 프로그램을 닫은 다음 다시 시도하십시오. 프린터가 가상 머신에 연결되어 있으면 먼저 가상 머신에서 연결을 해제하십시오.</translation>
    </message>
    <message>
        <source>另一个程序正在使用打印机。</source>
        <translation>다른 프로그램에서 프린터를 사용 중입니다.</translation>
    </message>
    <message>
        <source>请关闭正在打印或扫描的程序以及虚拟机，然后再试一次。</source>
        <translation>인쇄하거나 스캔하는 프로그램과 가상 머신을 닫은 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>此电脑不允许您使用打印机：缺少规则 60-wifitool.rules。</source>
        <translation>이 컴퓨터에서 프린터를 사용할 권한이 없습니다. 60-wifitool.rules 규칙이 없습니다.</translation>
    </message>
    <message>
        <source>请重新安装带有此规则的 wifitool 软件包，拔下 USB 数据线再插上，然后再试一次。</source>
        <translation>이 규칙이 들어 있는 wifitool 패키지를 다시 설치하십시오. 그런 다음 USB 케이블을 뽑았다가 다시 꽂고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>此电脑还没有允许您使用打印机。</source>
        <translation>이 컴퓨터에서 아직 프린터를 사용할 권한이 없습니다.</translation>
    </message>
    <message>
        <source>请拔下 USB 数据线再插上，等待几秒，然后再试一次。如果没有用，请重新启动电脑。</source>
        <translation>USB 케이블을 뽑았다가 다시 꽂고 몇 초 기다린 다음 다시 시도하십시오. 해결되지 않으면 컴퓨터를 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>只有直接在此电脑前登录的人才能使用打印机。您的会话是远程的，或是以其他方式启动的。</source>
        <translation>이 컴퓨터에 직접 로그인한 사람만 프린터를 사용할 수 있습니다. 현재 세션은 원격이거나 다른 방법으로 시작되었습니다.</translation>
    </message>
    <message>
        <source>请直接在此电脑上登录后再试一次，或请管理员帮忙。</source>
        <translation>컴퓨터에 직접 로그인하여 다시 시도하거나 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>打印机被拔下或关闭了（步骤：%@）。</source>
        <translation>프린터가 분리되었거나 꺼졌습니다(단계: %@).</translation>
    </message>
    <message>
        <source>在 USB 上找不到打印机。</source>
        <translation>USB에서 프린터를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>请打开打印机并插好数据线，等它准备就绪后再试一次。完成之前请不要拔线。</source>
        <translation>프린터를 켜고 케이블을 단단히 연결하십시오. 프린터가 준비되면 다시 시도하고, 끝날 때까지 케이블을 뽑지 마십시오.</translation>
    </message>
    <message>
        <source>打印机在 %d 秒内没有响应（步骤：%@）。</source>
        <translation>프린터가 %d초 안에 응답하지 않았습니다(단계: %@).</translation>
    </message>
    <message>
        <source>打印机可能在休眠或正忙：请按一下打印机上的任意键，等它准备就绪后再试一次。如果没有用，请关闭打印机，10 秒后再打开。</source>
        <translation>프린터가 절전 상태이거나 사용 중일 수 있습니다. 프린터의 버튼을 누르고 준비될 때까지 기다린 다음 다시 시도하십시오. 해결되지 않으면 프린터를 끄고 10초 뒤에 다시 켜십시오.</translation>
    </message>
    <message>
        <source>打印机给出了意外的响应（步骤：%@）。</source>
        <translation>프린터에서 예상하지 못한 응답이 왔습니다(단계: %@).</translation>
    </message>
    <message>
        <source>与打印机的 USB 通信出错（步骤：%@）。</source>
        <translation>프린터와의 USB 통신에 문제가 생겼습니다(단계: %@).</translation>
    </message>
    <message>
        <source>请把打印机直接接到电脑的另一个 USB 接口（不要经过集线器），最好换一根数据线，然后再试一次。</source>
        <translation>프린터를 컴퓨터의 다른 USB 포트에 (허브 없이 직접), 가능하면 다른 케이블로 연결한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>打印机拒绝了网络设置，最可能的原因是密码不对。</source>
        <translation>프린터가 네트워크 설정을 거부했습니다. 비밀번호가 틀렸을 가능성이 큽니다.</translation>
    </message>
    <message>
        <source>请检查密码（区分大小写）。许多打印机只支持 2.4 GHz，不支持 5 GHz。如果打印机离路由器太远，请移近一些。然后再试一次。</source>
        <translation>비밀번호를 확인하십시오(대소문자 구분). 2.4 GHz만 지원하고 5 GHz는 지원하지 않는 프린터가 많습니다. 프린터가 공유기에서 멀면 더 가까이 옮기십시오. 그런 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>打印机收到了设置，但没有从路由器得到地址。</source>
        <translation>프린터가 설정을 받았지만 공유기에서 주소를 받지 못했습니다.</translation>
    </message>
    <message>
        <source>最可能的原因是密码不对、网络只有 5 GHz，或路由器太远：请检查后再试一次。如果都没有问题，请重新启动路由器，并查看它是否只允许已知的设备。</source>
        <translation>비밀번호가 틀렸거나, 네트워크가 5 GHz 전용이거나, 공유기가 너무 멀 가능성이 큽니다. 확인한 다음 다시 시도하십시오. 모두 정상이면 공유기를 다시 시작하고, 등록된 기기만 허용하는지 확인하십시오.</translation>
    </message>
    <message>
        <source>打印机没有说明能否配置 Wi-Fi。</source>
        <translation>프린터에서 Wi-Fi를 설정할 수 있는지 알려 주지 않았습니다.</translation>
    </message>
    <message>
        <source>详细信息</source>
        <translation>자세히(&amp;D)</translation>
    </message>
    <message>
        <source>复制详细信息</source>
        <translation>자세한 정보 복사(&amp;C)</translation>
    </message>
    <message>
        <source>已复制</source>
        <translation>복사했습니다</translation>
    </message>
    <message>
        <source>打印机地址</source>
        <translation>프린터 주소</translation>
    </message>
    <message>
        <source>复制地址</source>
        <translation>주소 복사(&amp;C)</translation>
    </message>
    <message>
        <source>打开打印机的网页</source>
        <translation>프린터 웹 페이지 열기(&amp;P)</translation>
    </message>
    <message>
        <source>正在检查此电脑能否连上打印机…</source>
        <translation>이 컴퓨터에서 프린터에 연결할 수 있는지 확인하는 중…</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机。</source>
        <translation>이 컴퓨터에서 프린터에 연결할 수 있습니다.</translation>
    </message>
    <message>
        <source>此电脑可以连上打印机，但打印机不接受网络打印（IPP）。</source>
        <translation>이 컴퓨터에서 프린터에 연결할 수 있지만 프린터가 네트워크 인쇄(IPP)를 받지 않습니다.</translation>
    </message>
    <message>
        <source>此电脑连不上打印机。打印机可能在另一个网络上，或在会隔离设备的访客网络上。</source>
        <translation>이 컴퓨터에서 프린터에 연결할 수 없습니다. 프린터가 다른 네트워크나 기기를 서로 분리하는 게스트 네트워크에 있을 수 있습니다.</translation>
    </message>
    <message>
        <source>此网络还要求用户名，而用户名无法发送给打印机。</source>
        <translation>이 네트워크에는 사용자 이름도 필요하지만 프린터로 보낼 수 없습니다.</translation>
    </message>
    <message>
        <source>此网络只接受 WPA3，有些打印机不支持。</source>
        <translation>이 네트워크는 WPA3 전용입니다. 지원하지 않는 프린터도 있습니다.</translation>
    </message>
    <message>
        <source>此网络只有 5 GHz，许多打印机需要 2.4 GHz。</source>
        <translation>이 네트워크는 5 GHz 전용입니다. 2.4 GHz가 필요한 프린터가 많습니다.</translation>
    </message>
    <message>
        <source>此网络需要密码，您还没有输入。</source>
        <translation>이 네트워크에는 비밀번호가 필요하지만 입력되지 않았습니다.</translation>
    </message>
    <message>
        <source>名称的开头或结尾有空格。</source>
        <translation>이름의 앞이나 뒤에 공백이 있습니다.</translation>
    </message>
    <message>
        <source>密码的开头或结尾有空格。</source>
        <translation>비밀번호의 앞이나 뒤에 공백이 있습니다.</translation>
    </message>
    <message>
        <source>名称含有控制字符，无法发送给打印机。</source>
        <translation>이름에 제어 문자가 있어 프린터로 보낼 수 없습니다.</translation>
    </message>
    <message>
        <source>密码含有控制字符，无法发送给打印机。</source>
        <translation>비밀번호에 제어 문자가 있어 프린터로 보낼 수 없습니다.</translation>
    </message>
    <message>
        <source>正在等待系统许可…</source>
        <translation>권한을 기다리는 중…</translation>
    </message>
    <message>
        <source>系统尚未回答是否允许查找网络。请点击“刷新”再试一次，或直接输入名称。</source>
        <translation>네트워크를 검색해도 되는지 시스템이 아직 응답하지 않았습니다. ‘새로 고침’을 눌러 다시 시도하거나 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>没有找到网络。请点击“刷新”再找一次，或直接输入名称。</source>
        <translation>네트워크를 찾지 못했습니다. ‘새로 고침’을 눌러 다시 찾거나 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>%ld%%</source>
        <translation>%ld%%</translation>
    </message>
    <message>
        <source>此桌面没有添加打印机的窗口。请自行打开系统设置中的“打印机”，或在浏览器中打开 %@。</source>
        <translation>이 데스크톱에는 프린터를 추가하는 창이 없습니다. 시스템 설정의 ‘프린터’를 직접 열거나 브라우저에서 %@을(를) 여십시오.</translation>
    </message>
    <message>
        <source>无法从这里打开系统设置。请自行打开，并在“隐私”或“Wi-Fi”中允许查找网络。</source>
        <translation>여기에서 시스템 설정을 열 수 없습니다. 직접 열어 개인 정보 보호 또는 Wi-Fi에서 네트워크 검색을 허용하십시오.</translation>
    </message>
    <message>
        <source>此电脑没有 Wi-Fi 适配器，无法列出附近的网络。请输入打印机要连接的网络。</source>
        <translation>이 컴퓨터에는 Wi-Fi 어댑터가 없어 주변 네트워크를 표시할 수 없습니다. 프린터를 연결할 네트워크를 입력하십시오.</translation>
    </message>
    <message>
        <source>已连接 %d 台打印机，将配置“%@”。要配置另一台，请先拔下这一台。</source>
        <translation>프린터 %d대가 연결되어 있습니다. ‘%@’을(를) 설정합니다. 다른 프린터를 설정하려면 먼저 이 프린터를 분리하십시오.</translation>
    </message>
    <message>
        <source>打印机：%@</source>
        <translation>프린터: %@</translation>
    </message>
</context>
</TS>
