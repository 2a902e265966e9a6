<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>ColorCorrectionToolPlugin</name>
    <message>
        <source>Color Calibrator</source>
        <translation>カラーキャリブレーター</translation>
    </message>
    <message>
        <source>&lt;p&gt;To use the Color Calibrator, you have to stop continuous image acquisition as well as any recordings.&lt;p/&gt;Do you want to stop the camera and start using the Color Calibrator?</source>
        <translation>&lt;p&gt;カラーキャリブレーターを使用するには、連続画像取り込みとすべての録画を停止する必要があります。&lt;p/&gt;カメラを停止して、カラーキャリブレーターの使用を開始しますか？</translation>
    </message>
</context>
<context>
    <name>functions</name>
    <message>
        <source>Unable to apply initial camera image and patch values.</source>
        <translation>初期のカメラ画像とパッチの値を適用できません。</translation>
    </message>
    <message>
        <source>Unable to set neutral settings.</source>
        <translation>ニュートラル設定を適用できません。</translation>
    </message>
    <message>
        <source>Apply initial values failed.</source>
        <translation>初期値の適用に失敗しました。</translation>
    </message>
    <message>
        <source>Calibration process failed.</source>
        <translation>キャリブレーションに失敗しました。</translation>
    </message>
</context>
</TS>
