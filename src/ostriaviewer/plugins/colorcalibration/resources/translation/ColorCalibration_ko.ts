<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>ColorCorrectionToolDlg</name>
    <message>
        <source>Color Calibrator</source>
        <translation>컬러 캘리브레이터</translation>
    </message>
    <message>
        <source>Ostria Color Calibrator</source>
        <translation>Ostria 컬러 캘리브레이터</translation>
    </message>
    <message>
        <source>&lt;p&gt;The camera has been disconnected.&lt;br/&gt;Reconnect the camera to the computer and open it to continue using the Color Calibrator.&lt;/p&gt;</source>
        <translation>&lt;p&gt;카메라 연결이 끊어졌습니다.&lt;br/&gt;컬러 캘리브레이터를 계속 사용하려면 카메라를 컴퓨터에 다시 연결하고 카메라를 여십시오.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Image acquisition is slowed down by certain parameter settings in the camera, e.g., exposure time.</source>
        <translation>노출 시간 등 카메라의 특정 파라미터 설정으로 인해 이미지 획득 속도가 느려졌습니다.</translation>
    </message>
</context>
<context>
    <name>Plugin::ColorCalibration::CColorCalibrationPlugin</name>
    <message>
        <source>Color Calibrator</source>
        <translation>컬러 캘리브레이터</translation>
    </message>
    <message>
        <source>&lt;p&gt;To use the Color Calibrator, you have to stop continuous image acquisition as well as any recordings.&lt;p/&gt;Do you want to stop the camera and start using the Color Calibrator?</source>
        <translation>&lt;p&gt;컬러 캘리브레이터를 사용하려면 연속 이미지 획득과 모든 녹화를 중지해야 합니다.&lt;p/&gt;카메라를 중지하고 컬러 캘리브레이터를 사용하시겠습니까?</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Calibration process failed.&lt;br&gt;</source>
        <translation>캘리브레이션에 실패했습니다.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Could not load previous settings.</source>
        <translation>이전 설정을 불러오지 못했습니다.</translation>
    </message>
    <message>
        <source>Couldn&apos;t apply &lt;br&gt; initial values.</source>
        <translation>초깃값을&lt;br&gt;적용하지 못했습니다.</translation>
    </message>
    <message>
        <source>Couldn&apos;t apply initial camera image or set original patch color values.</source>
        <translation>카메라의 초기 이미지를 적용하거나 패치의 원래 색 값을 설정하지 못했습니다.</translation>
    </message>
    <message>
        <source>Couldn&apos;t restore detected exposure and gain values.</source>
        <translation>검출한 노출 시간 및 게인 값을 복원하지 못했습니다.</translation>
    </message>
    <message>
        <source>Couldn&apos;t restore preneutral camera settings.</source>
        <translation>중립 설정을 적용하기 전의 카메라 설정을 복원하지 못했습니다.</translation>
    </message>
    <message>
        <source>Couldn&apos;t store detected exposure and gain values.</source>
        <translation>검출한 노출 시간 및 게인 값을 저장하지 못했습니다.</translation>
    </message>
    <message>
        <source>No initial parameters (min, max, value) &lt;br&gt; for exposure time available.</source>
        <translation>노출 시간의 초기 파라미터(최솟값, 최댓값, 현재 값)를&lt;br&gt;가져오지 못했습니다.</translation>
    </message>
    <message>
        <source>No initial parameters (min, max, value) &lt;br&gt; for gain value available.</source>
        <translation>게인의 초기 파라미터(최솟값, 최댓값, 현재 값)를&lt;br&gt;가져오지 못했습니다.</translation>
    </message>
    <message>
        <source>Unable to set neutral settings.</source>
        <translation>중립 설정을 적용하지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>QMLExposureTime</name>
    <message>
        <source>Couldn&apos;t set exposureTime!&lt;br&gt;</source>
        <translation>노출 시간을 설정하지 못했습니다.&lt;br&gt;</translation>
    </message>
</context>
<context>
    <name>QMLGainvalue</name>
    <message>
        <source>Couldn&apos;t set gain value!&lt;br&gt;</source>
        <translation>게인 값을 설정하지 못했습니다.&lt;br&gt;</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Black Level</source>
        <translation>블랙 레벨</translation>
    </message>
    <message>
        <source>Color Adjustment Hue</source>
        <translation>색 조정: 색조</translation>
    </message>
    <message>
        <source>Color Adjustment Saturation</source>
        <translation>색 조정: 채도</translation>
    </message>
    <message>
        <source>Color Transformation</source>
        <translation>색 변환</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>색</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>현재 값</translation>
    </message>
    <message>
        <source>Delta C</source>
        <translation>ΔC</translation>
    </message>
    <message>
        <source>Delta E</source>
        <translation>ΔE</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>감마</translation>
    </message>
    <message>
        <source>Hue, Saturation, Brightness, Contrast</source>
        <translation>색조, 채도, 밝기, 대비</translation>
    </message>
    <message>
        <source>LUT</source>
        <translation>LUT</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>원래 값</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>목표 값</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>화이트 밸런스</translation>
    </message>
    <message>
        <source>To use the Color Calibrator, the LUT had to be disabled. Using a LUT and the Color Calibrator at the same time, would adversely affect the color calibration.</source>
        <translation>컬러 캘리브레이터를 사용하기 위해 LUT를 비활성화했습니다. LUT와 컬러 캘리브레이터를 동시에 사용하면 컬러 캘리브레이션에 부정적인 영향을 줍니다.</translation>
    </message>
</context>
<context>
    <name>Step3Legend</name>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
</context>
<context>
    <name>Step3ToolBox</name>
    <message>
        <source>Black Level</source>
        <translation>블랙 레벨</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>밝기</translation>
    </message>
    <message>
        <source>Color Adjustment Hue</source>
        <translation>색 조정: 색조</translation>
    </message>
    <message>
        <source>Color Adjustment Saturation</source>
        <translation>색 조정: 채도</translation>
    </message>
    <message>
        <source>Color Transformation</source>
        <translation>색 변환</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>색</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>대비</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>현재 값</translation>
    </message>
    <message>
        <source>Delta C</source>
        <translation>ΔC</translation>
    </message>
    <message>
        <source>Delta E</source>
        <translation>ΔE</translation>
    </message>
    <message>
        <source>Gain00</source>
        <translation>Gain00</translation>
    </message>
    <message>
        <source>Gain01</source>
        <translation>Gain01</translation>
    </message>
    <message>
        <source>Gain02</source>
        <translation>Gain02</translation>
    </message>
    <message>
        <source>Gain10</source>
        <translation>Gain10</translation>
    </message>
    <message>
        <source>Gain11</source>
        <translation>Gain11</translation>
    </message>
    <message>
        <source>Gain12</source>
        <translation>Gain12</translation>
    </message>
    <message>
        <source>Gain20</source>
        <translation>Gain20</translation>
    </message>
    <message>
        <source>Gain21</source>
        <translation>Gain21</translation>
    </message>
    <message>
        <source>Gain22</source>
        <translation>Gain22</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>감마</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>색조</translation>
    </message>
    <message>
        <source>Hue, Saturation, Brightness, Contrast</source>
        <translation>색조, 채도, 밝기, 대비</translation>
    </message>
    <message>
        <source>LUT</source>
        <translation>LUT</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>원래 값</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>채도</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>목표 값</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>화이트 밸런스</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Position Grid</source>
        <translation>그리드 배치</translation>
    </message>
    <message>
        <source>Adjust Brightness</source>
        <translation>밝기 조정</translation>
    </message>
    <message>
        <source>Review Calibration Results</source>
        <translation>캘리브레이션 결과 확인</translation>
    </message>
    <message>
        <source>Save Calibration Results</source>
        <translation>캘리브레이션 결과 저장</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>If you cancel the color calibration, any changes you made will be lost. The original settings will be restored. 
Do you really want to cancel?</source>
        <translation>컬러 캘리브레이션을 취소하면 변경한 내용이 모두 사라지고 원래 설정으로 복원됩니다.
정말로 취소하시겠습니까?</translation>
    </message>
    <message>
        <source>Live View</source>
        <translation>라이브 뷰</translation>
    </message>
    <message>
        <source>Show Grid</source>
        <translation>그리드 표시</translation>
    </message>
    <message>
        <source>Show/hide grid pattern.</source>
        <translation>그리드를 표시하거나 숨깁니다.</translation>
    </message>
    <message>
        <source>Continuous Shot</source>
        <translation>연속 촬영</translation>
    </message>
    <message>
        <source>Continuously capture five images per second.</source>
        <translation>초당 5장의 이미지를 연속으로 획득합니다.</translation>
    </message>
    <message>
        <source>Selected Camera: </source>
        <translation>선택한 카메라: </translation>
    </message>
    <message>
        <source>Load camera settings</source>
        <translation>카메라 설정 불러오기</translation>
    </message>
    <message>
        <source>Load camera settings that were saved in a .cst file in a previous session.</source>
        <translation>이전 세션에서 .cst 파일로 저장한 카메라 설정을 불러옵니다.</translation>
    </message>
    <message>
        <source>To manually change the size and position of the grid, use the handles provided. The grid must be at least the same size as the color chart.&lt;br&gt;Click &lt;b&gt;Next&lt;/b&gt; to confirm the position of the grid.</source>
        <translation>그리드의 크기와 위치를 수동으로 변경하려면 네 모서리의 핸들을 사용하십시오. 그리드의 크기는 컬러 차트와 같거나 그보다 커야 합니다.&lt;br&gt;&lt;b&gt;다음&lt;/b&gt;을 클릭하여 그리드 위치를 확정하십시오.</translation>
    </message>
    <message>
        <source>Auto-position Grid</source>
        <translation>그리드 자동 배치</translation>
    </message>
    <message>
        <source>Automatically position the grid over the color chart.</source>
        <translation>그리드를 컬러 차트 위에 자동으로 배치합니다.</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Automatically adjust the exposure time and the gain once.</source>
        <translation>노출 시간과 게인을 한 번만 자동으로 조정합니다.</translation>
    </message>
    <message>
        <source>Change the &lt;b&gt;Exposure Time&lt;/b&gt; and &lt;b&gt;Gain&lt;/b&gt; settings, using the sliders or the arrow keys of your keyboard, to adjust the brightness in the image (the needle should point to the green section of the dial). Clicking the &lt;b&gt;Auto&lt;/b&gt; button will adjust the settings automatically. The image is temporarily displayed in grayscale to achieve an optimal calibration result. Any changes you make here will immediately change the camera’s settings. Click &lt;b&gt;Next&lt;/b&gt; to start the calibration.</source>
        <translation>슬라이더나 키보드의 화살표 키로 &lt;b&gt;노출 시간&lt;/b&gt;과 &lt;b&gt;게인&lt;/b&gt;을 변경하여 이미지의 밝기를 조정하십시오(계기의 바늘이 녹색 구간을 가리켜야 합니다). &lt;b&gt;자동&lt;/b&gt; 버튼을 클릭하면 자동으로 조정됩니다. 최적의 캘리브레이션 결과를 얻기 위해 이미지가 일시적으로 회색조로 표시됩니다. 여기서 변경한 값은 카메라 설정에 즉시 적용됩니다. &lt;b&gt;다음&lt;/b&gt;을 클릭하면 캘리브레이션이 시작됩니다.</translation>
    </message>
    <message>
        <source>Single Shot</source>
        <translation>단일 촬영</translation>
    </message>
    <message>
        <source>Capture a single image.</source>
        <translation>이미지를 한 장만 획득합니다.</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>노출 시간</translation>
    </message>
    <message>
        <source>Set the exposure time.</source>
        <translation>노출 시간을 설정합니다.</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>게인</translation>
    </message>
    <message>
        <source>Set the gain.</source>
        <translation>게인을 설정합니다.</translation>
    </message>
    <message>
        <source>Save camera settings to file</source>
        <translation>카메라 설정을 파일로 저장</translation>
    </message>
    <message>
        <source>Save camera settings as .cst file.</source>
        <translation>카메라 설정을 .cst 파일로 저장합니다.</translation>
    </message>
    <message>
        <source>Save calibration summary</source>
        <translation>캘리브레이션 요약 저장</translation>
    </message>
    <message>
        <source>Save camera settings, images, and the calibration report.</source>
        <translation>카메라 설정, 이미지 및 캘리브레이션 보고서를 저장합니다.</translation>
    </message>
    <message>
        <source>Use the slider to compare the colors in the image before and after calibration. Click &lt;b&gt;Save&lt;/b&gt; to save all selected files and settings. Click &lt;b&gt;Finish&lt;/b&gt; to complete the calibration. If you click &lt;b&gt;Cancel&lt;/b&gt;, the original settings will be restored.</source>
        <translation>슬라이더를 사용하여 캘리브레이션 전후 이미지의 색을 비교하십시오. &lt;b&gt;저장&lt;/b&gt;을 클릭하면 선택한 파일과 설정이 모두 저장됩니다. &lt;b&gt;마침&lt;/b&gt;을 클릭하면 캘리브레이션을 마칩니다. &lt;b&gt;취소&lt;/b&gt;를 클릭하면 원래 설정으로 복원됩니다.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Execute all selected save options.</source>
        <translation>선택한 저장 옵션을 모두 실행합니다.</translation>
    </message>
    <message>
        <source>Save camera settings in user set</source>
        <translation>카메라 설정을 사용자 세트에 저장</translation>
    </message>
    <message>
        <source>Save camera settings in a user set.</source>
        <translation>카메라 설정을 사용자 세트에 저장합니다.</translation>
    </message>
    <message>
        <source>Save settings as default</source>
        <translation>설정을 기본값으로 저장</translation>
    </message>
    <message>
        <source>Save settings as default.</source>
        <translation>설정을 기본값으로 저장합니다.</translation>
    </message>
    <message>
        <source>Calibration Reports</source>
        <translation>캘리브레이션 보고서</translation>
    </message>
    <message>
        <source>Show an overview of the original and new camera settings by parameter.</source>
        <translation>원래 카메라 설정과 새 카메라 설정을 파라미터별로 한눈에 표시합니다.</translation>
    </message>
    <message>
        <source>Review the color values in the above image by moving the mouse over the patches in the grid. To display an overview of the values of a certain parameter, pick an item in the &lt;b&gt;Calibration Reports&lt;/b&gt; list. Click &lt;b&gt;Next&lt;/b&gt; to continue with these values.</source>
        <translation>그리드의 패치에 마우스를 올려 위쪽 이미지의 색 값을 확인하십시오. 특정 파라미터의 값을 한눈에 보려면 &lt;b&gt;캘리브레이션 보고서&lt;/b&gt; 목록에서 항목을 선택하십시오. 이 값들로 계속하려면 &lt;b&gt;다음&lt;/b&gt;을 클릭하십시오.</translation>
    </message>
    <message>
        <source>To use the Color Calibrator, the LUT had to be disabled. Using a LUT and the Color Calibrator at the same time, would adversely affect the color calibration.</source>
        <translation>컬러 캘리브레이터를 사용하기 위해 LUT를 비활성화했습니다. LUT와 컬러 캘리브레이터를 동시에 사용하면 컬러 캘리브레이션에 부정적인 영향을 줍니다.</translation>
    </message>
    <message>
        <source>1 - Target Value</source>
        <translation>1 - 목표 값</translation>
    </message>
    <message>
        <source>2 - Original Value</source>
        <translation>2 - 원래 값</translation>
    </message>
    <message>
        <source>3 - Current Value</source>
        <translation>3 - 현재 값</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Shows whether the target value for calibration has been reached.</source>
        <translation>캘리브레이션 목표 값에 도달했는지 표시합니다.</translation>
    </message>
    <message>
        <source>Too bright</source>
        <translation>너무 밝음</translation>
    </message>
    <message>
        <source>Too dark</source>
        <translation>너무 어두움</translation>
    </message>
    <message>
        <source>Just right</source>
        <translation>적정</translation>
    </message>
    <message>
        <source>Use the slider to compare the colors in images before and after calibration.</source>
        <translation>슬라이더로 캘리브레이션 전후 이미지의 색을 비교합니다.</translation>
    </message>
    <message>
        <source>Before Calibration</source>
        <translation>캘리브레이션 전</translation>
    </message>
    <message>
        <source>After Calibration</source>
        <translation>캘리브레이션 후</translation>
    </message>
    <message>
        <source>Recalibrate Camera</source>
        <translation>카메라 재캘리브레이션</translation>
    </message>
    <message>
        <source>Automatically recalibrate the camera.</source>
        <translation>카메라를 자동으로 다시 캘리브레이션합니다.</translation>
    </message>
    <message>
        <source>Color Calibrator</source>
        <translation>컬러 캘리브레이터</translation>
    </message>
    <message>
        <source>Autoadjust values &lt;br&gt; impossible!</source>
        <translation>값을 자동으로&lt;br&gt;조정하지 못했습니다.</translation>
    </message>
    <message>
        <source>The image size is too small to achieve a good calibration result. Ideally, the color checker should fill the whole image view area.</source>
        <translation>이미지 크기가 너무 작아 좋은 캘리브레이션 결과를 얻을 수 없습니다. 컬러 차트가 이미지 표시 영역 전체를 채우는 것이 이상적입니다.</translation>
    </message>
    <message>
        <source>The image is too dark and the calibration failed. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>이미지가 너무 어두워 캘리브레이션에 실패했습니다. 최적의 밝기가 되도록 노출 시간과 게인을 조정하십시오.&lt;br&gt;</translation>
    </message>
    <message>
        <source>The image is too bright and the calibration failed. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>이미지가 너무 밝아 캘리브레이션에 실패했습니다. 최적의 밝기가 되도록 노출 시간과 게인을 조정하십시오.&lt;br&gt;</translation>
    </message>
    <message>
        <source>You haven’t selected any of the save options. To save settings or results, select one of the available options.&lt;br&gt;</source>
        <translation>저장 옵션을 선택하지 않았습니다. 설정이나 결과를 저장하려면 옵션 중 하나를 선택하십시오.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Couldn&apos;t save settings to file path!&lt;br&gt;</source>
        <translation>지정한 파일 경로에 설정을 저장하지 못했습니다.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Couldn&apos;t save summary!&lt;br&gt;</source>
        <translation>요약을 저장하지 못했습니다.&lt;br&gt;</translation>
    </message>
    <message>
        <source>Couldn&apos;t store settings in user set: </source>
        <translation>다음 사용자 세트에 설정을 저장하지 못했습니다: </translation>
    </message>
    <message>
        <source>Grid could not be positioned automatically.</source>
        <translation>그리드를 자동으로 배치하지 못했습니다.</translation>
    </message>
    <message>
        <source>The image is too dark. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>이미지가 너무 어둡습니다. 최적의 밝기가 되도록 노출 시간과 게인을 조정하십시오.&lt;br&gt;</translation>
    </message>
    <message>
        <source>The image is too bright. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>이미지가 너무 밝습니다. 최적의 밝기가 되도록 노출 시간과 게인을 조정하십시오.&lt;br&gt;</translation>
    </message>
    <message>
        <source>The calibration process failed because the image is either too bright or too dark. Adjust the brightness and try again.</source>
        <translation>이미지가 너무 밝거나 너무 어두워 캘리브레이션에 실패했습니다. 밝기를 조정한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>항목</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>파랑</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>초록</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>빨강</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>마젠타</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>노랑</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>시안</translation>
    </message>
</context>
</TS>
