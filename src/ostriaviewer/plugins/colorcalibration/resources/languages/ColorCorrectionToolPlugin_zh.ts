<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ColorCorrectionToolPlugin</name>
    <message>
        <source>Color Calibrator</source>
        <translation>色彩校准器</translation>
    </message>
    <message>
        <source>&lt;p&gt;To use the Color Calibrator, you have to stop continuous image acquisition as well as any recordings.&lt;p/&gt;Do you want to stop the camera and start using the Color Calibrator?</source>
        <translation>&lt;p&gt;要使用色彩校准器，必须停止连续图像采集以及所有录制。&lt;p/&gt;是否停止相机并开始使用色彩校准器？</translation>
    </message>
</context>
<context>
    <name>functions</name>
    <message>
        <source>Unable to apply initial camera image and patch values.</source>
        <translation>无法应用初始相机图像和色块值。</translation>
    </message>
    <message>
        <source>Unable to set neutral settings.</source>
        <translation>无法应用中性设置。</translation>
    </message>
    <message>
        <source>Apply initial values failed.</source>
        <translation>应用初始值失败。</translation>
    </message>
    <message>
        <source>Calibration process failed.</source>
        <translation>校准失败。</translation>
    </message>
</context>
</TS>
