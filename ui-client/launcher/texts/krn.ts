<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>서버와 동기화할 로컬 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>ZephLink 서비스에 연결할 수 없습니다. 네트워크 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>필터 규칙</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>마운트 지점은 사용할 수 없음</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>기간</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>이 공유 폴더가 더 이상 서버에 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>이 이름의 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>서버에 연결할 수 없습니다. 네트워크 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>복구</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>다운로드만</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>동기화 방향</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>이 서버의 첫 번째 동기화 작업</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>없거나 손상된 파일, 바로 가기 및 레지스트리 항목을 복원합니다.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>대상 위치</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>여기를 클릭하여 업데이트</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>폴더 경로</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>아니요, 괜찮습니다</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>인증서 경고</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>연결 설정 변경</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>연결을 테스트하는 중...</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Lumivo Drive 설치</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>이 컴퓨터에 Lumivo Drive를 설치할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>새 공유 폴더</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>사용할 수 있는 폴더를 찾지 못했습니다. 관리자에게 공유 폴더에 대한 접근 권한을 요청하십시오.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>이 공유 폴더의 동기화를 켤 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>종료일</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>이 폴더 다시 동기화</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>%1일 전</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>“%1” 폴더는 마운트 지점이므로 동기화할 수 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>이 컴퓨터는 이미 “%1” 서버와 연동되어 있습니다. 기존 연결을 편집하십시오.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>업데이트 있음</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>1에서 65535 사이의 포트 번호를 입력하십시오.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>동기화 폴더 열기</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive가 설치되었습니다</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>연동 해제</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>이 폴더는 다른 동기화 작업의 폴더와 겹칩니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>서버의 폴더 목록을 가져올 수 없습니다. 네트워크 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>확인 필요</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>서버의 인증서가 변경되었습니다. 계속하기 전에 확인하십시오.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>마지막 페이지</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6월</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>업데이트하지 못했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>서버의 인증서를 검증할 수 없습니다.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>잠시 기다려 주십시오. 몇 분 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>설치할 기능을 선택합니다</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>어디서 일하든 내 파일은 항상 곁에</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>선택한 폴더 다시 동기화</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>이 컴퓨터의 디스크가 가득 찼습니다. 동기화를 계속하려면 여유 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>흑백 트레이 아이콘 사용</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>일부 항목이 올바르게 입력되지 않았습니다. 수정한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>설치가 중단되었습니다. 컴퓨터에 변경된 내용은 없습니다.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>폴더를 찾을 수 없음</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>동기화할 폴더 선택</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>서버의 폴더 및 그 폴더와 동기화할 로컬 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>이름이 점으로 시작하는 파일과 폴더 제외</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>사용자 지정 기간</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>인터넷</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>사용자 이름 또는 암호가 올바르지 않습니다. 둘 다 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>이 주소는 다른 서버의 주소입니다. 주소를 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>파일 유형</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>구성 방법 선택</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>월요일</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>서버의 할당량을 모두 사용했습니다. 일부 파일을 삭제하거나 관리자에게 추가 공간을 요청하십시오.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8월</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>시작하는 중...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>공유 폴더의 최대 개수에 도달했습니다. 먼저 그중 하나의 동기화를 중지하십시오.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>시스템 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>두 버전을 모두 유지하고 로컬 버전의 이름 변경</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>“%1” 동기화가 중지되었습니다. 자세한 내용을 보려면 Lumivo Drive를 여십시오.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>재설정</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>동기화 방향이 이 폴더에 대한 권한과 맞지 않습니다. 다른 방향을 선택하십시오.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>자세히 보기</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10월</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2월</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>이 버전의 Lumivo Drive Server는 너무 오래되었습니다. 서버에서 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>동기화 규칙</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>이 파일을 다운로드할 수 없습니다. 서버에서 권한을 확인하십시오.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>연결하는 중...</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>프록시 사용 안 함</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>공유 폴더</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>이 연결 재개</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>링크 가져오기</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>트레이의 아이콘으로 파일이 동기화되어 있는지 한눈에 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>시작일</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>다시 연동</translation>
    </message>
    <message>
        <source>History</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4월</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>네트워크 설정</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>선택한 내용을 적용하고 있습니다.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>여기서 선택을 해제한 폴더는 이 컴퓨터에서 제거됩니다. 서버에는 그대로 남아 있습니다.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>서버의 디스크가 가득 찼습니다. 동기화를 계속하려면 여유 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>다운로드하지 못했습니다. 네트워크 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>저장 및 링크 복사</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>서버 주소와 계정 정보를 입력하십시오.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>시작하기</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>저장할 변경 사항이 없습니다.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>이전 %1개 페이지</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>나중에 Lumivo Drive를 설치하려면 설치 프로그램을 다시 실행하십시오.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>동기화 폴더의 파일을 마우스 오른쪽 버튼으로 클릭하면 파일을 공유하거나 이전 버전을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>상태 정보</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Lumivo Drive를 시작할 수 없습니다. 컴퓨터를 다시 시작한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>서버의 버전 유지</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1월</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>이 버전의 Lumivo Drive는 서버에서 사용하기에 너무 오래되었습니다. 버전 %1 이상으로 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Lumivo Drive 변경, 복구 또는 제거</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>ZephLink를 통해 연결</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>시작하려면 “설치”를 클릭하십시오. 선택 사항을 검토하거나 변경하려면 “뒤로”를 클릭하십시오. 설치 프로그램을 종료하려면 “취소”를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>문제가 발생했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>사용권 계약 조건에 동의합니다</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>선택적 동기화를 아직 사용할 수 없습니다. 사용하려면 서버에서 Lumivo Drive Server를 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>이름 변경됨</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>이 폴더는 읽기 전용입니다</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Lumivo Drive 제거 준비 완료</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>이 컴퓨터와 동기화할 항목과 저장할 위치를 선택하십시오.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>업로드됨</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>접근 권한이 취소되어 동기화된 파일이 이 컴퓨터에서 제거되었습니다. 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>업로드하는 중...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>설정을 적용하는 중...</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>다음 사용권 계약을 주의 깊게 읽으십시오.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>병합 모드</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>선택한 폴더 동기화 안 함</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>시작하려면 “복구”를 클릭하십시오. 선택 사항을 검토하려면 “뒤로”를 클릭하십시오. 설치 프로그램을 종료하려면 “취소”를 클릭하십시오.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>이 폴더에 쓸 수 없습니다. 폴더의 권한을 변경하거나 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>선택적 동기화</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12월</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>%1에서 %2MB 사이의 파일 크기를 입력하십시오.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>“%1” 동기화를 중지하시겠습니까? 이미 이 컴퓨터에 있는 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>빠른 구성</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>고급 구성</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11월</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>서버 주소</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>서버의 할당량을 모두 사용했습니다.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>트레이 아이콘을 두 번 클릭할 때</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Lumivo Drive를 초기화하는 중...</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>파일을 확인하는 중...</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>이제 이 컴퓨터가 “%1” 서버와 연동되었습니다. 동기화가 바로 시작됩니다.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>모든 파일을 항상 최신으로</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>업데이트하는 중...</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>사용자 지정 기간</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>동기화 상태 확인</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>불러오는 중...</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>비활성</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>설치 프로그램이 업데이트해야 하는 파일을 다음 응용 프로그램에서 사용하고 있습니다:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Lumivo Drive 열기</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>폴더, 동기화 방향 및 동기화 규칙을 직접 선택합니다.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>설치된 파일을 복구합니다</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>0보다 큰 버전 수를 입력하십시오.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>이 사용자 이름이 서버에 없습니다. 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Lumivo Drive 업데이트</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>자세히 알아보기</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>만든 날짜</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>이 컴퓨터와 서버의 파일을 항상 동일하게 유지합니다.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>이 폴더는 이미 다른 클라우드 동기화 앱에서 동기화되고 있습니다. 충돌을 방지하려면 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>컴퓨터 이름</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>무시</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>프록시에 사용자 이름과 암호 필요</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>서버가 요청을 수락하지 않았습니다. 입력한 내용을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>이 버전의 Lumivo Drive Server는 이 컴퓨터의 Lumivo Drive에서 사용하기에 너무 오래되었습니다. 서버에서 버전 %1 이상으로 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>보낼 대상:</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>ZephLink 서비스에서 오류가 발생했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>이 응용 프로그램을 닫고 “다시 시도”를 클릭하거나, “무시”를 클릭하고 나중에 컴퓨터를 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>설치할 기능을 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>이 컴퓨터와 “%1” 서버의 연동을 해제하시겠습니까?\n이미 이 컴퓨터에 있는 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>이 폴더는 백업 작업에서 사용 중입니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>이 컴퓨터의 디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>이 폴더는 비어 있지 않습니다</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>파일이 있는 폴더 열기</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>연결 유형</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>이 ZephLink ID는 존재하지 않습니다. 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>동기화하지 않을 파일</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>이 컴퓨터에서 Lumivo Drive를 제거합니다</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>이 계정에는 2단계 인증이 필요합니다. 서버에서 설정한 후 다시 로그인하십시오.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>서버에서 파일 서비스가 꺼져 있습니다. 관리자에게 켜 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>삭제됨</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>동기화 작업 추가</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>다른 사람과 공유</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>잠긴 파일</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>응용 프로그램을 닫지 않음(나중에 컴퓨터를 다시 시작해야 함)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Lumivo Drive 정보</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>파일 서비스 꺼짐</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>다음 %1개 페이지</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>로컬 동기화 폴더가 이동되었거나 삭제되었습니다. 원래 위치로 되돌리거나 새 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>이 파일을 공유할 수 없습니다. 서버에서 권한을 확인하십시오.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>설치 프로그램을 종료하려면 “마침”을 클릭하십시오.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>유효 기간</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>이 연결 일시 중지</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>항목이 나와 공유되었습니다.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>사용 중인 파일</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>설치가 완료되지 않고 종료되었습니다</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>서버에서 ZephLink를 통한 파일 공유가 꺼져 있습니다. 관리자에게 켜 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>링크</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>단방향 동기화(다운로드만)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>두 폴더의 파일이 병합됩니다.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>서버의 이 폴더는 이미 이 컴퓨터와 동기화되고 있습니다.\n두 번째 동기화 작업을 추가하면 디스크 공간을 두 배로 차지합니다.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>설치가 중단되었습니다</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>확인 코드가 올바르지 않습니다. 현재 코드를 입력하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>양방향 동기화</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>서버가 이 컴퓨터의 주소를 차단하고 있습니다. 관리자에게 허용해 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>사용자 이름과 암호를 확인하는 중...</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Lumivo Drive 설치 프로그램에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>%1자 이내로 입력하십시오.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>병합</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>모든 파일 속성과 권한 동기화</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>“%2” 서버에서 “%1” 공유 폴더를 사용할 수 있습니다. 동기화하려면 여기를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>키워드</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Lumivo Drive용 빈 폴더 만들기</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>파일 필터</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>동기화 폴더에 넣은 모든 항목이 서버와 다른 컴퓨터에도 나타납니다.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>설치 프로그램에서 Lumivo Drive를 변경, 복구 또는 제거할 수 있습니다. 계속하려면 “다음”을 클릭하십시오.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>서버의 폴더와 이 컴퓨터의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>프록시 서버의 주소와 포트를 입력하십시오.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>변경 사항을 감시하는 중...</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>변경</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>“%1” 업데이트됨</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>지금 Lumivo Drive 시작</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3월</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>수행할 작업을 선택하십시오.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>서버에서 홈 폴더 기능이 꺼져 있습니다. 관리자에게 켜 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Lumivo Drive 복구 준비 완료</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>제외된 파일</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>이제 이 컴퓨터에 Lumivo Drive가 설치되었습니다.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비하는 중...</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>시스템 언어</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>변경 사항이 저장되지 않았습니다.\n저장하지 않고 나가시겠습니까?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>이미 동기화 중인 폴더</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>동기화하는 중...</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>이 컴퓨터에서 Lumivo Drive를 제거하려면 “제거”를 클릭하십시오. 선택 사항을 검토하려면 “뒤로”를 클릭하십시오. 설치 프로그램을 종료하려면 “취소”를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Lumivo Drive 설치 프로그램에 다시 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>직접 연결</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>이 폴더는 이미 다른 동기화 작업에서 사용 중입니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>여유 공간 없음</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>공유 폴더를 불러오는 중...</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>연동을 해제하는 중...</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>동기화 중인 파일</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>모든 설정은 나중에 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>동기화 상태 표시</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>서버의 폴더가 마운트되어 있지 않습니다. 서버에서 마운트한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>제외된 파일에 아이콘 표시</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>연결 유형을 확인하는 중...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>내용이 다른 파일은 두 버전이 모두 유지됩니다.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>이 폴더는 이미 동기화되고 있습니다. 다시 추가하시겠습니까?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>고급 설정</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>이 파일의 버전 목록을 볼 수 없습니다. 서버에서 권한을 확인하십시오.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>서버의 응답을 해석할 수 없습니다. Lumivo Drive를 업데이트하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Lumivo Drive 설치를 취소하시겠습니까?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>이 주소에서 다른 서버를 찾았습니다</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7월</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>업데이트해야 하는 일부 파일이 사용 중입니다.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive가 준비되었습니다.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>동기화 데이터베이스가 손상되었습니다. 이 컴퓨터의 연동을 해제한 후 다시 연동하십시오.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>이 컴퓨터에 더 새로운 버전의 Lumivo Drive가 이미 설치되어 있습니다. 이 버전을 설치하기 전에 해당 버전을 제거하십시오.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>환영합니다</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>이 공유 폴더 동기화</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>메인 창 열기</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>현재 단계:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>접근 제한</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>이 컴퓨터에 Lumivo Drive를 설치합니다. 계속하려면 “다음”을 클릭하고 설치 프로그램을 종료하려면 “취소”를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>서버 주소 또는 ZephLink ID, 사용자 이름 및 암호를 입력하십시오.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>“%1” 폴더를 만들 수 없습니다. 경로와 권한을 확인하십시오.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>오류로 인해 설치가 종료되었습니다.\n컴퓨터에 변경된 내용은 없습니다.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>서버의 할당량을 모두 사용했습니다. 동기화를 계속하려면 일부 파일을 삭제하십시오.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>폴더 필터</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>서버의 인증서를 검증할 수 없습니다. 연결 설정에서 확인하십시오.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>다른 폴더 선택</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>언제든지 트레이에서 Lumivo Drive를 열 수 있습니다.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>파일이 두 곳에서 동시에 변경되었습니다. 두 버전이 모두 유지되었습니다. 필요 없는 버전을 삭제하십시오.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>서버의 인증서가 변경되었습니다. 연결 설정에서 확인하십시오.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>연결 암호화(SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>폴더 이름</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>파일 링크를 만들어 누구에게나 보낼 수 있으며, 원하는 경우 암호와 종료일도 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>계정의 확인 코드를 입력하십시오.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>이 컴퓨터에서 Lumivo Drive를 제거하도록 선택했습니다.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>네트워크 드라이브의 변경 사항은 감지할 수 없습니다. 로컬 디스크의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>이 이름의 폴더가 이미 있습니다. 다른 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>금요일</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>프록시 설정</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>연결 편집</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>최신 상태</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>서버와의 연결이 끊어졌습니다. 자동으로 다시 연결됩니다.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>권한 없음</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>다운로드됨</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>항목 수: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>“%1”와(과) “%2” 간의 동기화를 중지하시겠습니까?\n파일은 삭제되지 않습니다.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>로컬 폴더 변경</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>정상적으로 연결되었습니다.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>구성 완료</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>트레이 아이콘</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5월</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>동기화 모드</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>지난달</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>이전 버전 찾아보기</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1시간 전</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>이 규칙과 일치하는 파일과 폴더는 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>이 컴퓨터에서 Lumivo Drive를 제거합니다. 동기화된 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>연결 관리</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>이 디스크에 공간이 부족합니다. 다른 디스크의 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>제외할 파일 이름</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>목요일</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>동기화 재개</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>최근에 변경된 파일</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP 주소, 도메인 이름 또는 ZephLink ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>컨텍스트 메뉴에 Lumivo Drive 표시</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>이 버전의 Lumivo Drive는 너무 오래되었습니다. 이 컴퓨터에서 업데이트하십시오.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>이 폴더는 동기화할 수 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>다운로드가 취소되었습니다.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>다운로드 횟수 제한</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>파일에 동기화 상태 아이콘 표시</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>필수 입력 항목입니다.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>사용 안내 보기</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>다른 서버와 연동</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>사용권 계약 조건에 동의하지 않습니다</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>버전 불일치</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>첫 페이지</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>설치</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>접근 거부됨</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>6자리 확인 코드를 입력하십시오</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>알겠습니다</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>로컬 동기화 폴더가 있는 디스크가 연결되어 있지 않습니다. 동기화를 계속하려면 디스크를 연결하십시오.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>이 메시지를 다시 표시하지 않음</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>지금 시작</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>로컬 네트워크 검색</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>수동으로 프록시 설정</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>이 폴더의 파일을 열 수는 있지만 변경할 수는 없습니다.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>실패 횟수가 너무 많습니다. 몇 분 후에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9월</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>폴더가 비어 있지 않습니다. 폴더의 파일이 서버의 파일과 병합됩니다.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>지난주</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>다운로드가 완료되었습니다.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>덮어쓰거나 삭제한 버전을 되살릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>일요일</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>동기화 폴더</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>업데이트 필요</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>화요일</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>로그인할 때 Lumivo Drive 시작</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>공유 폴더 관리</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1분 전</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>이 공유 폴더는 더 이상 동기화되지 않습니다. 이미 이 컴퓨터에 있는 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>제외할 파일 확장자</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>릴레이 연결</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>로그인 실패</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive에는 개별적으로 선택할 수 있는 기능이 없습니다.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>관리자로 로그인하지 않았습니다. Lumivo Drive가 현재 사용자에게만 설치됩니다.\n계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>파일 서비스가 꺼져 있어 링크를 만들 수 없습니다. 관리자에게 켜 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>응용 프로그램을 닫고 나중에 다시 시작 시도</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>사용권 계약</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>시스템 오류로 인해 폴더를 확인할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>이 버전의 Lumivo Drive가 이미 설치되어 있습니다. 다시 설치하시겠습니까?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>시작일 지정</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>관리</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>이 공유 폴더가 서버에 마운트되어 있지 않습니다. 서버에서 마운트한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>로컬 네트워크</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>모든 이벤트</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>이 연결의 연동 해제</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>연결이 불안정합니다</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>이제 이 폴더들이 이 컴퓨터와 서버 간에 항상 동기화됩니다.\n언제든지 동기화 작업을 추가할 수 있습니다.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>이 폴더 동기화 안 함</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>서버의 인증서가 변경되었습니다.\n변경된 이유를 알고 있는 경우에만 계속하십시오.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>최대 파일 크기(MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>마지막으로 변경된 버전 유지</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>로컬 네트워크에서 서버 찾기</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>이 계정으로는 이 폴더를 동기화할 수 없습니다. 관리자에게 권한을 요청하십시오.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>방금</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Lumivo Drive를 복구할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>이 폴더는 읽기만 가능합니다. 이 컴퓨터에서 변경한 내용은 업로드되지 않습니다.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>이 폴더에 대한 접근 권한이 없습니다. 관리자에게 권한을 요청하십시오.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>항목이 없습니다</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>파일을 동기화하고 있습니다. 그동안 작업을 계속할 수 있습니다.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>서버의 인증서를 검증할 수 없습니다.\n이 네트워크를 신뢰하는 경우에만 계속하십시오.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>동기화 대기 중인 파일: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Lumivo Drive에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>종료일 지정</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>동기화 작업을 제거할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>아이콘을 클릭하면 동기화 중인 파일을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>동기화 폴더</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>서버의 인증서를 검증할 수 없습니다. 관리자에게 유효한 인증서를 설치해 달라고 요청하십시오.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>서버가 교체되었습니다. 이 컴퓨터를 다시 연동하십시오.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>다음 단계에 따라 이 컴퓨터를 서버와 연동하십시오.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>프록시 서버</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>업데이트된 파일</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>그래도 계속</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>로컬 파일의 아이콘</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>사용할 수 있는 동작 없음</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>동기화 중지됨</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>로컬 동기화 폴더</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>서버가 아직 “%1” 폴더를 인덱싱하고 있습니다. 인덱싱이 끝나면 동기화할 수 있습니다.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>파일이 두 곳에서 변경된 경우</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>“%1” 폴더가 비어 있지 않습니다.\n그래도 이 폴더를 사용하시겠습니까?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>폴더 변경</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>권장 설정으로 홈 폴더를 동기화합니다.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>폴더를 불러오는 중...</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>수요일</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL 암호화</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Lumivo Drive 설치 준비 완료</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Lumivo Drive를 설치하려면 언제든지 설치 프로그램을 다시 실행하십시오.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>이제 서버의 홈 폴더가 이 컴퓨터와 동기화됩니다.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>서버 개요</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>동기화 일시 중지</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>토요일</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>이 공유 폴더의 할당량을 모두 사용했습니다. 동기화를 계속하려면 일부 파일을 삭제하십시오.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>새 동기화 작업</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>다운로드 기록</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>다운로드하는 중...</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>새 언어는 다음에 Lumivo Drive를 시작할 때부터 적용됩니다.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Lumivo Drive 설치 중</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>데스크톱 알림 표시</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>대부분의 사용자에게는 빠른 구성이 적합합니다. 나중에 모두 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>서버의 디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>이전 상태로 되돌리기</translation>
    </message>
</context>
</TS>
