<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>Cameras::CameraControlService</name>
    <message>
        <source>The camera is not open.</source>
        <translation>카메라가 열려 있지 않습니다.</translation>
    </message>
    <message>
        <source>The camera is open already.</source>
        <translation>카메라가 이미 열려 있습니다.</translation>
    </message>
</context>
<context>
    <name>Cameras::Emulation::EmulatedCamera</name>
    <message>
        <source>Emulated cameras</source>
        <translation>에뮬레이션 카메라</translation>
    </message>
    <message>
        <source>The camera is being used by another application.</source>
        <translation>다른 응용 프로그램에서 카메라를 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation>카메라가 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>The frame is incomplete.</source>
        <translation>프레임이 불완전합니다.</translation>
    </message>
</context>
<context>
    <name>Cameras::Emulation::UserSets</name>
    <message>
        <source>The user sets cannot be written to %1.</source>
        <translation>사용자 세트를 %1 파일에 쓸 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::AcquisitionFeatures</name>
    <message>
        <source>The camera could not be asked for another image.</source>
        <translation>카메라에 다음 이미지를 요청하지 못했습니다.</translation>
    </message>
    <message>
        <source>The camera could not be stopped.</source>
        <translation>카메라를 중지하지 못했습니다.</translation>
    </message>
    <message>
        <source>The camera&apos;s features stay locked.</source>
        <translation>카메라의 기능이 잠긴 상태로 남아 있습니다.</translation>
    </message>
    <message>
        <source>The acquisition mode could not be put back; set AcquisitionMode to &quot;%1&quot;.</source>
        <translation>획득 모드를 원래대로 되돌리지 못했습니다. AcquisitionMode를 &quot;%1&quot;(으)로 설정하십시오.</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::CameraFinder</name>
    <message>
        <source>The search for cameras failed (%1). It is repeated soon.</source>
        <translation>카메라 검색에 실패했습니다(%1). 곧 다시 시도합니다.</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::Device</name>
    <message>
        <source>The description of the camera &quot;%1&quot; cannot be used (%2).</source>
        <translation>&quot;%1&quot; 카메라의 기능 설명 파일을 사용할 수 없습니다(%2).</translation>
    </message>
    <message>
        <source>The camera &quot;%1&quot; does not answer (%2).</source>
        <translation>&quot;%1&quot; 카메라가 응답하지 않습니다(%2).</translation>
    </message>
    <message>
        <source>The camera &quot;%1&quot; does not answer.</source>
        <translation>&quot;%1&quot; 카메라가 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>The camera is being used by another application.</source>
        <translation>다른 응용 프로그램에서 카메라를 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>The camera gives no description of its features.</source>
        <translation>카메라에서 기능 설명 파일을 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>The camera&apos;s images cannot be received: %1.</source>
        <translation>카메라의 이미지를 수신할 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>the connection to the camera is lost</source>
        <translation>카메라 연결이 끊어졌습니다</translation>
    </message>
    <message>
        <source>the camera does not answer at present</source>
        <translation>카메라가 현재 응답하지 않습니다</translation>
    </message>
    <message>
        <source>%1: the camera does not take packets of %2 bytes, as the settings want them; it uses packets of %3 bytes.</source>
        <translation>%1: 카메라가 설정된 %2바이트 패킷을 지원하지 않아 %3바이트 패킷을 사용합니다.</translation>
    </message>
    <message>
        <source>the camera refuses it</source>
        <translation>카메라가 거부했습니다</translation>
    </message>
    <message>
        <source>the camera refuses it, and does not answer when asked why</source>
        <translation>카메라가 요청을 거부했으며, 그 이유를 조회했으나 응답하지 않았습니다</translation>
    </message>
    <message>
        <source>the camera has not heard from this program for too long and does not obey it any more; open the camera again</source>
        <translation>이 프로그램의 통신이 너무 오랫동안 도달하지 않아 카메라가 더 이상 명령을 받지 않습니다. 카메라를 다시 여십시오</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::Feature</name>
    <message>
        <source>the camera answers %1, which is no entry</source>
        <translation>카메라가 응답한 값 %1에 해당하는 항목이 없습니다</translation>
    </message>
    <message>
        <source>%1 is not available with the camera&apos;s present settings</source>
        <translation>현재 카메라 설정에서는 %1 항목을 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>there is no entry &quot;%1&quot;</source>
        <translation>&quot;%1&quot; 항목이 없습니다</translation>
    </message>
    <message>
        <source>the camera has no such feature</source>
        <translation>카메라에 이 기능이 없습니다</translation>
    </message>
    <message>
        <source>the connection to the camera is lost</source>
        <translation>카메라 연결이 끊어졌습니다</translation>
    </message>
    <message>
        <source>not available with the camera&apos;s present settings</source>
        <translation>현재 카메라 설정에서는 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>cannot be read, only written</source>
        <translation>쓰기 전용이므로 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>cannot be written, only read</source>
        <translation>읽기 전용이므로 변경할 수 없습니다</translation>
    </message>
    <message>
        <source>locked with the camera&apos;s present settings</source>
        <translation>현재 카메라 설정에서는 잠겨 있습니다</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1 is below the minimum %2</source>
        <translation>값 %1이(가) 최솟값 %2보다 작습니다</translation>
    </message>
    <message>
        <source>%1 is above the maximum %2</source>
        <translation>값 %1이(가) 최댓값 %2보다 큽니다</translation>
    </message>
    <message>
        <source>%1 is not a multiple of %2 above %3</source>
        <translation>값 %1이(가) %3부터 %2 간격의 값이 아닙니다</translation>
    </message>
    <message>
        <source>the camera keeps %1 instead of %2</source>
        <translation>카메라의 값이 %2 대신 %1입니다</translation>
    </message>
    <message>
        <source>the value is not a finite number</source>
        <translation>값이 유한한 수가 아닙니다</translation>
    </message>
    <message>
        <source>the camera keeps another value than %1</source>
        <translation>카메라의 값이 %1(으)로 바뀌지 않습니다</translation>
    </message>
    <message>
        <source>the camera does not finish the command</source>
        <translation>카메라가 명령을 완료하지 않습니다</translation>
    </message>
    <message>
        <source>the text is longer than %1 bytes</source>
        <translation>텍스트가 %1바이트를 초과합니다</translation>
    </message>
    <message>
        <source>an integer is expected</source>
        <translation>정수를 입력하십시오</translation>
    </message>
    <message>
        <source>a number is expected</source>
        <translation>숫자를 입력하십시오</translation>
    </message>
    <message>
        <source>0 or 1 is expected</source>
        <translation>0 또는 1을 입력하십시오</translation>
    </message>
    <message>
        <source>has no value</source>
        <translation>값이 없습니다</translation>
    </message>
    <message>
        <source>There is no node map &quot;%1&quot;.</source>
        <translation>노드 맵 &quot;%1&quot;이(가) 없습니다.</translation>
    </message>
    <message>
        <source>the camera has not finished the command yet</source>
        <translation>카메라가 아직 명령을 완료하지 않았습니다</translation>
    </message>
    <message>
        <source>the camera refuses the access</source>
        <translation>카메라가 액세스를 거부했습니다</translation>
    </message>
    <message>
        <source>the text has a NUL character</source>
        <translation>텍스트에 NUL 문자가 포함되어 있습니다</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::FeatureStream</name>
    <message>
        <source>Line %1: %2
</source>
        <translation>%1행: %2
</translation>
    </message>
    <message>
        <source>And %1 more lines.
</source>
        <translation>그 외에 %1개 행이 더 있습니다.
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no tab and no value.</source>
        <translation>&quot;%1&quot; 뒤에 탭과 값이 없습니다.</translation>
    </message>
    <message>
        <source>the camera has no feature &quot;%1&quot;.</source>
        <translation>카메라에 &quot;%1&quot; 기능이 없습니다.</translation>
    </message>
    <message>
        <source>skipped, as %1 could not be set</source>
        <translation>%1 기능을 설정하지 못하여 건너뛰었습니다</translation>
    </message>
    <message>
        <source>skipped, as it is not saved with the camera&apos;s settings</source>
        <translation>카메라 설정과 함께 저장되지 않는 기능이므로 건너뛰었습니다</translation>
    </message>
    <message>
        <source>skipped, as its present text could not be given back</source>
        <translation>현재 텍스트를 되돌릴 수 없게 되므로 건너뛰었습니다</translation>
    </message>
    <message>
        <source>%1: %2 could not be put back while settings were read; set it to &quot;%3&quot;. (%4)</source>
        <translation>%1: 설정을 읽는 중에 %2을(를) 되돌리지 못했습니다. &quot;%3&quot;(으)로 설정하십시오. (%4)</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::Frame</name>
    <message>
        <source>The frame holds no image.</source>
        <translation>프레임에 이미지가 없습니다.</translation>
    </message>
    <message>
        <source>The pixel format 0x%1 is not known; choose another one.</source>
        <translation>픽셀 형식 0x%1은(는) 지원되지 않습니다. 다른 형식을 선택하십시오.</translation>
    </message>
    <message>
        <source>The frame cannot be used (%1). Choose another pixel format or another image size.</source>
        <translation>이 프레임을 사용할 수 없습니다(%1). 다른 픽셀 형식이나 다른 이미지 크기를 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::FrameStream</name>
    <message>
        <source>The camera does not tell how large its images are.</source>
        <translation>카메라에서 이미지 크기를 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>The camera says that an image has %1 bytes, which is too much.</source>
        <translation>카메라가 알린 이미지 크기(%1바이트)가 너무 큽니다.</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::GenicamCamera</name>
    <message>
        <source>Network cameras</source>
        <translation>네트워크 카메라</translation>
    </message>
    <message>
        <source>USB cameras</source>
        <translation>USB 카메라</translation>
    </message>
    <message>
        <source>%1: %2 of %3 images were damaged on their way and left out (%4 packets are missing). Set a larger packet size or a packet delay.</source>
        <translation>%1: 이미지 %3장 중 %2장이 전송 과정에서 손상되어 폐기되었습니다(누락된 패킷 %4개). 패킷 크기를 늘리거나 패킷 지연을 설정하십시오.</translation>
    </message>
    <message>
        <source>%1: %2 of %3 images were shorter than the camera says and were left out. Nothing was lost on the way. Restart the camera, or choose another image size or pixel format.</source>
        <translation>%1: 이미지 %3장 중 %2장이 카메라가 알린 크기보다 짧아 폐기되었습니다. 전송 중 누락된 것은 없습니다. 카메라를 다시 시작하거나 다른 이미지 크기 또는 픽셀 형식을 선택하십시오.</translation>
    </message>
    <message>
        <source>%1: %2 of %3 images came faster than this computer takes them and were left out. Set a lower frame rate or a smaller image.</source>
        <translation>%1: 이 컴퓨터의 처리가 따라가지 못해 이미지 %3장 중 %2장이 폐기되었습니다. 프레임 속도를 낮추거나 이미지 크기를 줄이십시오.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::LibraryLog</name>
    <message>
        <source>The camera library reports: %1.</source>
        <translation>카메라 라이브러리 메시지: %1.</translation>
    </message>
    <message>
        <source>The camera library reports of the camera &quot;%1&quot;: %2.</source>
        <translation>&quot;%1&quot; 카메라에 대한 카메라 라이브러리 메시지: %2.</translation>
    </message>
    <message>
        <source>The description of the camera &quot;%1&quot; is faulty: %2.</source>
        <translation>&quot;%1&quot; 카메라의 기능 설명 파일에 오류가 있습니다: %2.</translation>
    </message>
    <message>
        <source>The description of the camera &quot;%1&quot; is faulty at the feature &quot;%2&quot;: %3.</source>
        <translation>&quot;%1&quot; 카메라의 기능 설명 파일에서 &quot;%2&quot; 기능에 오류가 있습니다: %3.</translation>
    </message>
    <message>
        <source>The camera library has much to complain of; no more of it is shown.</source>
        <translation>카메라 라이브러리의 메시지가 너무 많아 더 이상 표시하지 않습니다.</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::NodeMap</name>
    <message>
        <source>The camera&apos;s description cannot be used: %1.</source>
        <translation>카메라의 기능 설명 파일을 사용할 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>it describes no registers</source>
        <translation>레지스터 정의가 없습니다</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1행: %2</translation>
    </message>
    <message>
        <source>it has no feature tree</source>
        <translation>기능 트리가 없습니다</translation>
    </message>
    <message>
        <source>The connection to the camera is lost.</source>
        <translation>카메라 연결이 끊어졌습니다.</translation>
    </message>
</context>
<context>
    <name>Cameras::HostCamera</name>
    <message>
        <source>The camera is being used by another part of the program.</source>
        <translation>이 프로그램의 다른 작업에서 카메라를 사용하고 있습니다.</translation>
    </message>
</context>
<context>
    <name>Core::CameraPoolComponents::CameraTexts</name>
    <message>
        <source>The camera could not be opened. Close it in other programs, open it in the viewer, then try again.</source>
        <translation>카메라를 열지 못했습니다. 다른 응용 프로그램에서 카메라를 닫고, 이 뷰어에서 카메라를 연 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The camera&apos;s original settings couldn&apos;t be restored. Load them from a user set or a settings file.</source>
        <translation>카메라의 원래 설정을 복원하지 못했습니다. 사용자 세트 또는 설정 파일에서 설정을 불러오십시오.</translation>
    </message>
    <message>
        <source>The camera&apos;s original settings couldn&apos;t be restored. Check the connection of the camera and try again, or cancel.</source>
        <translation>카메라의 원래 설정을 복원하지 못했습니다. 카메라 연결을 확인한 후 다시 시도하거나, 취소하십시오.</translation>
    </message>
    <message>
        <source>The camera&apos;s settings couldn&apos;t be backed up. Check the connection of the camera and try again, or cancel.</source>
        <translation>카메라의 설정을 백업하지 못했습니다. 카메라 연결을 확인한 후 다시 시도하거나, 취소하십시오.</translation>
    </message>
    <message>
        <source>The connection to the camera was lost while its settings were being stored in the user set &quot;%1&quot;. Whether it holds the new settings is not known. Open the camera again and check it, and which user set the camera starts with.</source>
        <translation>카메라 설정을 사용자 세트 &quot;%1&quot;에 저장하는 동안 카메라와의 연결이 끊어졌습니다. 새 설정이 저장되었는지는 알 수 없습니다. 카메라를 다시 열고 이 사용자 세트의 내용과, 카메라가 시작할 때 사용하는 사용자 세트를 확인하십시오.</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraCommands</name>
    <message>
        <source>%1 could not be opened. %2</source>
        <translation>%1 카메라를 열지 못했습니다. %2</translation>
    </message>
    <message>
        <source>%1 delivers no images, as another part of the program is using it. End that first.</source>
        <translation>%1 카메라는 이 프로그램의 다른 작업에서 사용 중이므로 이미지를 획득할 수 없습니다. 먼저 그 작업을 종료하십시오.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>Open the selected camera</source>
        <translation>선택한 카메라를 엽니다</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Close the selected camera</source>
        <translation>선택한 카메라를 닫습니다</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>시작(&amp;S)</translation>
    </message>
    <message>
        <source>Show the camera&apos;s picture continuously</source>
        <translation>카메라의 이미지를 연속으로 표시합니다</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>중지(&amp;T)</translation>
    </message>
    <message>
        <source>Stop the camera</source>
        <translation>카메라의 이미지 획득을 중지합니다</translation>
    </message>
    <message>
        <source>Single &amp;Picture</source>
        <translation>단일 촬영(&amp;P)</translation>
    </message>
    <message>
        <source>Take one picture</source>
        <translation>이미지를 한 장 획득합니다</translation>
    </message>
    <message>
        <source>%1 delivers no images. %2</source>
        <translation>%1 카메라에서 이미지를 획득할 수 없습니다. %2</translation>
    </message>
    <message>
        <source>%1 takes no picture, as another part of the program is using it. Try again later.</source>
        <translation>%1 카메라는 이 프로그램의 다른 작업에서 사용 중이므로 이미지를 획득할 수 없습니다. 잠시 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>%1 takes no picture. %2</source>
        <translation>%1 카메라에서 이미지 한 장을 획득할 수 없습니다. %2</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraList</name>
    <message>
        <source>closed</source>
        <translation>닫힘</translation>
    </message>
    <message>
        <source>open</source>
        <translation>열림</translation>
    </message>
    <message>
        <source>acquiring</source>
        <translation>획득 중</translation>
    </message>
    <message>
        <source>recording</source>
        <translation>녹화 중</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSelectorPanel</name>
    <message>
        <source>%1
Model %2, %3</source>
        <translation>%1
모델 %2, %3</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>카메라</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettingsCommands</name>
    <message>
        <source>&amp;Look for Cameras</source>
        <translation>카메라 검색(&amp;L)</translation>
    </message>
    <message>
        <source>Look for cameras on the network and on USB now</source>
        <translation>네트워크와 USB의 카메라를 지금 검색합니다</translation>
    </message>
    <message>
        <source>Camera Setti&amp;ngs...</source>
        <translation>카메라 연결 설정(&amp;N)...</translation>
    </message>
    <message>
        <source>Choose which cameras are shown and how they are reached</source>
        <translation>표시할 카메라와 연결 방법을 선택합니다</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1(%2)</translation>
    </message>
    <message>
        <source>These settings close cameras that are in use:

%1

Do you want to close them and use the settings?</source>
        <translation>이 설정을 적용하면 사용 중인 다음 카메라가 닫힙니다.

%1

카메라를 닫고 이 설정을 적용하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettingsDialog</name>
    <message>
        <source>Camera Settings</source>
        <translation>카메라 연결 설정</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>표시(&amp;S):</translation>
    </message>
    <message>
        <source>Emulated and real cameras</source>
        <translation>에뮬레이션 카메라와 실제 카메라</translation>
    </message>
    <message>
        <source>Cameras on the network and on USB</source>
        <translation>네트워크와 USB의 카메라</translation>
    </message>
    <message>
        <source>Emulated cameras</source>
        <translation>에뮬레이션 카메라</translation>
    </message>
    <message>
        <source>&amp;Look for network cameras</source>
        <translation>네트워크 카메라 검색(&amp;L)</translation>
    </message>
    <message>
        <source>Network interfaces</source>
        <translation>네트워크 인터페이스</translation>
    </message>
    <message>
        <source>Searches these network interfaces. If none is selected, all except loopback (lo).</source>
        <translation>검색할 네트워크 인터페이스를 선택하십시오. 선택하지 않으면 루프백(lo)을 제외한 모든 인터페이스에서 검색합니다.</translation>
    </message>
    <message>
        <source>Cameras with a fixed &amp;address</source>
        <translation>고정 주소 카메라(&amp;A)</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>such as 192.168.1.20</source>
        <translation>예: 192.168.1.20</translation>
    </message>
    <message>
        <source>IP address of a camera</source>
        <translation>카메라의 IP 주소</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>추가(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>제거(&amp;R)</translation>
    </message>
    <message>
        <source>Contacted directly, even where broadcasts do not arrive.</source>
        <translation>브로드캐스트가 도달하지 않는 곳의 카메라에도 검색 요청을 직접 보냅니다.</translation>
    </message>
    <message>
        <source>Images from the network</source>
        <translation>네트워크에서 받는 이미지</translation>
    </message>
    <message>
        <source>as large as possible</source>
        <translation>가능한 최대 크기</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation>바이트</translation>
    </message>
    <message>
        <source>&amp;Packet size:</source>
        <translation>패킷 크기(&amp;P):</translation>
    </message>
    <message>
        <source>Takes effect the next time a camera is opened. Choose 1500 if no images arrive.</source>
        <translation>다음에 카메라를 열 때부터 적용됩니다. 이미지가 도착하지 않으면 1500을 선택하십시오.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of a camera. It consists of four numbers, such as 192.168.1.20.</source>
        <translation>&quot;%1&quot;은(는) 카메라 주소가 아닙니다. 주소는 192.168.1.20처럼 네 개의 숫자로 이루어집니다.</translation>
    </message>
    <message>
        <source>&amp;Close Cameras</source>
        <translation>카메라 닫기(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Viewer::ClosingQuestion</name>
    <message>
        <source>Pictures of these cameras are being recorded:

%1

Do you want to end the recording and close the viewer?</source>
        <translation>다음 카메라의 이미지를 녹화하고 있습니다.

%1

녹화를 종료하고 뷰어를 닫으시겠습니까?</translation>
    </message>
    <message>
        <source>&amp;End Recording</source>
        <translation>녹화 종료(&amp;E)</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureModel</name>
    <message>
        <source>Execute</source>
        <translation>실행</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>사용할 수 없음</translation>
    </message>
    <message>
        <source>Range: %1 %2</source>
        <translation>범위: %1 %2</translation>
    </message>
    <message>
        <source>Not available with the camera&apos;s present settings</source>
        <translation>현재 카메라 설정에서는 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>Cannot be changed now</source>
        <translation>지금은 변경할 수 없습니다</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
</context>
<context>
    <name>Viewer::FeaturePanel</name>
    <message>
        <source>Filter features</source>
        <translation>기능 필터링</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Open a camera to see its features.</source>
        <translation>카메라를 열면 기능이 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureValue</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1~%2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>%1 이상</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>%1 이하</translation>
    </message>
    <message>
        <source>, in steps of %1</source>
        <translation>, %1 간격</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of this kind.</source>
        <translation>&quot;%1&quot;은(는) 이 기능에 입력할 수 있는 숫자가 아닙니다.</translation>
    </message>
    <message>
        <source>%1 (possible now: %2).</source>
        <translation>%1(현재 설정할 수 있는 값: %2).</translation>
    </message>
</context>
<context>
    <name>Viewer::FrameConverter</name>
    <message>
        <source>It cannot be shown (%1). Choose another pixel format or another image size.</source>
        <translation>이 이미지를 표시할 수 없습니다(%1). 다른 픽셀 형식이나 다른 이미지 크기를 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>Viewer::LiveSession</name>
    <message>
        <source>Select a camera in the list.</source>
        <translation>목록에서 카메라를 선택하십시오.</translation>
    </message>
    <message>
        <source>The connection to %1 is lost. Reconnect the camera and open it again.</source>
        <translation>%1 카메라의 연결이 끊어졌습니다. 카메라를 다시 연결한 후 다시 여십시오.</translation>
    </message>
    <message>
        <source>%1 is closed. Double-click it, or press F5, to see its picture.</source>
        <translation>%1 카메라는 닫혀 있습니다. 이미지를 보려면 카메라를 두 번 클릭하거나 F5 키를 누르십시오.</translation>
    </message>
    <message>
        <source>%1 is open. Press F5 to see its picture, or F6 for a single one.</source>
        <translation>%1 카메라가 열려 있습니다. 연속 촬영하려면 F5 키, 단일 촬영하려면 F6 키를 누르십시오.</translation>
    </message>
    <message>
        <source>Waiting for the first picture of %1.</source>
        <translation>%1 카메라의 첫 이미지를 기다리는 중입니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::MainMenu</name>
    <message>
        <source>Open the camera to see its tools</source>
        <translation>도구를 보려면 카메라를 여십시오</translation>
    </message>
    <message>
        <source>No tool for the selected camera</source>
        <translation>선택한 카메라에 사용할 수 있는 도구가 없습니다</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>카메라(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>도구(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>언어(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>테마(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>이미지 저장(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>끝내기(&amp;Q)</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>창에 맞추기(&amp;F)</translation>
    </message>
    <message>
        <source>Zoom to &amp;Pixels</source>
        <translation>실제 크기(&amp;P)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>확대(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>축소(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Plugins</source>
        <translation>플러그인(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>뷰어 정보(&amp;A)</translation>
    </message>
    <message>
        <source>Like the &amp;Desktop</source>
        <translation>데스크톱 설정 따르기(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>라이트(&amp;L)</translation>
    </message>
    <message>
        <source>Dar&amp;k</source>
        <translation>다크(&amp;K)</translation>
    </message>
</context>
<context>
    <name>Viewer::MainWindow</name>
    <message>
        <source>Ostria Viewer</source>
        <translation>Ostria 뷰어</translation>
    </message>
    <message>
        <source>There is no picture to save. Start a camera first.</source>
        <translation>저장할 이미지가 없습니다. 먼저 카메라의 이미지 획득을 시작하십시오.</translation>
    </message>
    <message>
        <source>Recording Folder</source>
        <translation>녹화 폴더</translation>
    </message>
    <message>
        <source>%1, %2:  R %3  G %4  B %5</source>
        <translation>%1, %2:  R %3  G %4  B %5</translation>
    </message>
    <message>
        <source>%1 x %2 at %3 %</source>
        <translation>%1 × %2, %3%</translation>
    </message>
    <message>
        <source>%1 pictures/s</source>
        <translation>%1장/초</translation>
    </message>
    <message>
        <source>Live view</source>
        <translation>라이브 뷰</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Camera tools</source>
        <translation>카메라 도구</translation>
    </message>
    <message>
        <source>Writing the last pictures of %1.</source>
        <translation>%1 카메라의 남은 이미지를 저장하고 있습니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::MessageLogModel</name>
    <message>
        <source>Time</source>
        <translation>시각</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>수준</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>출처</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>디버그</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation>치명적 오류</translation>
    </message>
</context>
<context>
    <name>Viewer::MessageLogPanel</name>
    <message>
        <source>All messages</source>
        <translation>모든 메시지</translation>
    </message>
    <message>
        <source>Information and graver</source>
        <translation>정보 이상</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>경고 및 오류</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>오류만</translation>
    </message>
    <message>
        <source>Lowest level shown</source>
        <translation>표시할 최저 수준</translation>
    </message>
    <message>
        <source>Filter messages</source>
        <translation>메시지 필터링</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copy the selected messages, or all that are shown</source>
        <translation>선택한 메시지를 복사합니다(선택하지 않으면 표시된 모든 메시지)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Remove all messages</source>
        <translation>모든 메시지를 지웁니다</translation>
    </message>
</context>
<context>
    <name>Viewer::MessageLogService</name>
    <message>
        <source>Viewer</source>
        <translation>뷰어</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>카메라</translation>
    </message>
</context>
<context>
    <name>Viewer::PictureFile</name>
    <message>
        <source>There is not enough memory for the picture. Close other programs or choose a smaller image size.</source>
        <translation>이미지를 처리할 메모리가 부족합니다. 다른 응용 프로그램을 종료하거나 더 작은 이미지 크기를 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>Viewer::PictureSaver</name>
    <message>
        <source>Save Picture</source>
        <translation>이미지 저장</translation>
    </message>
    <message>
        <source>Pictures (*.png *.tif *.bmp *.jpg)</source>
        <translation>이미지 (*.png *.tif *.bmp *.jpg)</translation>
    </message>
    <message>
        <source>%1 could not be written. Choose another folder or another kind of file, or make room on the disk.</source>
        <translation>%1 파일을 쓰지 못했습니다. 다른 폴더나 파일 형식을 선택하거나 디스크의 여유 공간을 늘리십시오.</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginManager</name>
    <message>
        <source>The plugin stands in the folder twice; %1 is used instead. Remove one of the two files.</source>
        <translation>같은 플러그인이 폴더에 두 개 있습니다. %1 파일을 사용합니다. 두 파일 중 하나를 삭제하십시오.</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; in version %2, which is not there; install it, or a version of this plugin for this viewer.</source>
        <translation>필요한 &quot;%1&quot; 버전 %2을(를) 찾을 수 없습니다. 이를 설치하거나 이 뷰어에 맞는 버전의 플러그인을 설치하십시오.</translation>
    </message>
    <message>
        <source>Its main class is not what it says.</source>
        <translation>플러그인의 주 클래스가 선언과 다릅니다.</translation>
    </message>
    <message>
        <source>A service of the viewer that it needs is missing; install a version of the plugin for this viewer.</source>
        <translation>필요한 뷰어 서비스가 없습니다. 이 뷰어에 맞는 버전의 플러그인을 설치하십시오.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>It could not be initialized.</source>
        <translation>초기화하지 못했습니다.</translation>
    </message>
    <message>
        <source>It could not complete its start.</source>
        <translation>시작을 완료하지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginMetaData</name>
    <message>
        <source>Its list of what it depends on has an entry without name or version.</source>
        <translation>종속성 목록에 이름이나 버전이 없는 항목이 있습니다.</translation>
    </message>
    <message>
        <source>It has no metadata with name and version; rebuild it with them.</source>
        <translation>이름과 버전이 담긴 메타데이터가 없습니다. 메타데이터를 추가하여 다시 빌드하십시오.</translation>
    </message>
    <message>
        <source>The file does not exist any more; install the plugin anew.</source>
        <translation>파일이 더 이상 없습니다. 플러그인을 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>It is no plugin, or was built with another version of Qt; remove the file or install a suitable one.</source>
        <translation>플러그인이 아니거나 다른 버전의 Qt로 빌드되었습니다. 파일을 삭제하거나 맞는 플러그인을 설치하십시오.</translation>
    </message>
    <message>
        <source>It was built against another interface, &quot;%1&quot; instead of &quot;%2&quot;; install a version for this viewer.</source>
        <translation>다른 인터페이스용으로 빌드되었습니다(&quot;%2&quot;이(가) 아닌 &quot;%1&quot;). 이 뷰어에 맞는 버전을 설치하십시오.</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginsDialog</name>
    <message>
        <source>Plugins</source>
        <translation>플러그인</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>There are no plugins.</source>
        <translation>플러그인이 없습니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::Recorder</name>
    <message>
        <source>The folder %1 cannot be made. Choose another one for recordings.</source>
        <translation>%1 폴더를 만들 수 없습니다. 다른 녹화 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>A picture could not be written (%1). Make room on the disk or choose another folder.</source>
        <translation>이미지를 저장하지 못했습니다(%1). 디스크의 여유 공간을 확보하거나 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>A picture could not be converted (%1). Choose another pixel format or another image size.</source>
        <translation>이미지를 변환하지 못했습니다(%1). 다른 픽셀 형식이나 다른 이미지 크기를 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>Viewer::RecordingCommands</name>
    <message numerus="yes">
        <source>The recording of %1 ended after %n picture(s). %2 What was recorded is in %3.</source>
        <translation>
            <numerusform>%1 카메라의 녹화가 이미지 %n장을 기록한 후 종료되었습니다. %2 녹화한 이미지는 %3 폴더에 있습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Recorded %n picture(s) of %1 in %2. %3 more came too fast to be written, %4 failed in the camera; the numbers of the files show where.</source>
        <translation>
            <numerusform>%1 카메라의 이미지 %n장을 %2 폴더에 녹화했습니다. 그 밖에 %3장은 쓰기 속도가 따라가지 못해 저장되지 않았고 %4장은 카메라에서 획득에 실패했습니다. 빠진 위치는 파일 번호로 알 수 있습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Recorded %n picture(s) of %1 in %2.</source>
        <translation>
            <numerusform>%1 카메라의 이미지 %n장을 %2 폴더에 녹화했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>녹화(&amp;R)</translation>
    </message>
    <message>
        <source>Write the camera&apos;s pictures into files until pressed again</source>
        <translation>다시 누를 때까지 카메라의 이미지를 파일로 저장합니다</translation>
    </message>
    <message>
        <source>Recording &amp;Folder...</source>
        <translation>녹화 폴더(&amp;F)...</translation>
    </message>
</context>
<context>
    <name>Viewer::ViewerApplication</name>
    <message>
        <source>A picture of %1 failed: %2</source>
        <translation>%1 카메라의 이미지에 문제가 있습니다: %2</translation>
    </message>
    <message>
        <source>The connection to %1 is lost. Reconnect the camera and open it again.</source>
        <translation>%1 카메라의 연결이 끊어졌습니다. 카메라를 다시 연결한 후 다시 여십시오.</translation>
    </message>
    <message>
        <source>There is no camera &quot;%1&quot;; select one in the list.</source>
        <translation>&quot;%1&quot; 카메라가 없습니다. 목록에서 카메라를 선택하십시오.</translation>
    </message>
    <message>
        <source>There is no plugin in %1, so the viewer runs without tools. Install it again, or start it with the option --plugins and the folder of its plugins.</source>
        <translation>%1에 플러그인이 없어 뷰어가 도구 없이 실행됩니다. 뷰어를 다시 설치하거나, --plugins 옵션으로 플러그인 폴더를 지정하여 뷰어를 시작하십시오.</translation>
    </message>
    <message>
        <source>Plugin %1 %2 is loaded.</source>
        <translation>%1 %2 플러그인을 불러왔습니다.</translation>
    </message>
    <message>
        <source>Plugin %1 is left out. %2</source>
        <translation>%1 플러그인을 불러오지 않았습니다. %2</translation>
    </message>
    <message>
        <source>About Ostria Viewer</source>
        <translation>Ostria 뷰어 정보</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Ostria Viewer %1&lt;/h3&gt;&lt;p&gt;Shows the pictures of cameras, and what plugins do with them.&lt;/p&gt;&lt;p&gt;Licence: Apache 2.0. Built on Qt %2.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Ostria 뷰어 %1&lt;/h3&gt;&lt;p&gt;카메라의 이미지와 플러그인의 처리 결과를 표시합니다.&lt;/p&gt;&lt;p&gt;라이선스: Apache 2.0. Qt %2을(를) 사용합니다.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>%1 was found.</source>
        <translation>%1 카메라를 찾았습니다.</translation>
    </message>
    <message>
        <source>%1 can no longer be found.</source>
        <translation>%1 카메라를 더 이상 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>There are several cameras &quot;%1&quot;; select one in the list.</source>
        <translation>&quot;%1&quot; 카메라가 여러 대 있습니다. 목록에서 카메라를 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>Viewer::ViewerSettings</name>
    <message>
        <source>The settings file %1 cannot be read; the viewer starts with defaults and remembers nothing. Check the file&apos;s permissions.</source>
        <translation>설정 파일 %1을(를) 읽을 수 없어 기본 설정으로 시작합니다. 변경한 내용은 저장되지 않습니다. 파일의 권한을 확인하십시오.</translation>
    </message>
    <message>
        <source>The settings file is damaged; the viewer starts with defaults. The old file was kept as %1.</source>
        <translation>설정 파일이 손상되어 기본 설정으로 시작합니다. 이전 파일은 %1(으)로 보관했습니다.</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged; the viewer starts with defaults and remembers nothing. Remove the file.</source>
        <translation>설정 파일 %1이(가) 손상되어 기본 설정으로 시작합니다. 변경한 내용은 저장되지 않습니다. 이 파일을 삭제하십시오.</translation>
    </message>
    <message>
        <source>The settings were written by a newer viewer; this one starts with defaults and leaves them as they are. What you change is forgotten at the end.</source>
        <translation>설정이 더 새로운 버전의 뷰어에서 저장되었습니다. 이 뷰어는 기본 설정으로 시작하고 저장된 설정은 그대로 둡니다. 변경한 내용은 종료할 때 사라집니다.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be written; what you change is forgotten at the end. Check the file&apos;s permissions and the room on its disk.</source>
        <translation>설정 파일 %1에 쓸 수 없습니다. 변경한 내용은 종료할 때 사라집니다. 파일의 권한과 디스크의 여유 공간을 확인하십시오.</translation>
    </message>
</context>
</TS>
