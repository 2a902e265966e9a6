<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>ColorCorrectionToolPlugin</name>
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
    <name>functions</name>
    <message>
        <source>Unable to apply initial camera image and patch values.</source>
        <translation>초기 카메라 이미지와 패치 값을 적용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Unable to set neutral settings.</source>
        <translation>중립 설정을 적용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Apply initial values failed.</source>
        <translation>초깃값을 적용하지 못했습니다.</translation>
    </message>
    <message>
        <source>Calibration process failed.</source>
        <translation>캘리브레이션에 실패했습니다.</translation>
    </message>
</context>
</TS>
