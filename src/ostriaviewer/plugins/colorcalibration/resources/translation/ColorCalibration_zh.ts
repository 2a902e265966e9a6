<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ColorCorrectionToolDlg</name>
    <message>
        <source>Color Calibrator</source>
        <translation>色彩校准器</translation>
    </message>
    <message>
        <source>Ostria Color Calibrator</source>
        <translation>Ostria 色彩校准器</translation>
    </message>
    <message>
        <source>&lt;p&gt;The camera has been disconnected.&lt;br/&gt;Reconnect the camera to the computer and open it to continue using the Color Calibrator.&lt;/p&gt;</source>
        <translation>&lt;p&gt;相机已断开连接。&lt;br/&gt;要继续使用色彩校准器，请将相机重新连接到计算机并打开相机。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Image acquisition is slowed down by certain parameter settings in the camera, e.g., exposure time.</source>
        <translation>相机的某些参数设置（例如曝光时间）导致图像采集变慢。</translation>
    </message>
</context>
<context>
    <name>Plugin::ColorCalibration::CColorCalibrationPlugin</name>
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
    <name>Progress</name>
    <message>
        <source>Calibration process failed.&lt;br&gt;</source>
        <translation>校准失败。&lt;br&gt;</translation>
    </message>
    <message>
        <source>Could not load previous settings.</source>
        <translation>无法加载以前的设置。</translation>
    </message>
    <message>
        <source>Couldn&apos;t apply &lt;br&gt; initial values.</source>
        <translation>无法应用&lt;br&gt;初始值。</translation>
    </message>
    <message>
        <source>Couldn&apos;t apply initial camera image or set original patch color values.</source>
        <translation>无法应用相机的初始图像，或无法设置色块的原始颜色值。</translation>
    </message>
    <message>
        <source>Couldn&apos;t restore detected exposure and gain values.</source>
        <translation>无法恢复检测到的曝光时间和增益值。</translation>
    </message>
    <message>
        <source>Couldn&apos;t restore preneutral camera settings.</source>
        <translation>无法恢复应用中性设置之前的相机设置。</translation>
    </message>
    <message>
        <source>Couldn&apos;t store detected exposure and gain values.</source>
        <translation>无法保存检测到的曝光时间和增益值。</translation>
    </message>
    <message>
        <source>No initial parameters (min, max, value) &lt;br&gt; for exposure time available.</source>
        <translation>曝光时间的初始参数（最小值、最大值、当前值）&lt;br&gt;不可用。</translation>
    </message>
    <message>
        <source>No initial parameters (min, max, value) &lt;br&gt; for gain value available.</source>
        <translation>增益的初始参数（最小值、最大值、当前值）&lt;br&gt;不可用。</translation>
    </message>
    <message>
        <source>Unable to set neutral settings.</source>
        <translation>无法应用中性设置。</translation>
    </message>
</context>
<context>
    <name>QMLExposureTime</name>
    <message>
        <source>Couldn&apos;t set exposureTime!&lt;br&gt;</source>
        <translation>无法设置曝光时间。&lt;br&gt;</translation>
    </message>
</context>
<context>
    <name>QMLGainvalue</name>
    <message>
        <source>Couldn&apos;t set gain value!&lt;br&gt;</source>
        <translation>无法设置增益值。&lt;br&gt;</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Black Level</source>
        <translation>黑电平</translation>
    </message>
    <message>
        <source>Color Adjustment Hue</source>
        <translation>色彩调整：色相</translation>
    </message>
    <message>
        <source>Color Adjustment Saturation</source>
        <translation>色彩调整：饱和度</translation>
    </message>
    <message>
        <source>Color Transformation</source>
        <translation>色彩转换</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>当前值</translation>
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
        <translation>伽马</translation>
    </message>
    <message>
        <source>Hue, Saturation, Brightness, Contrast</source>
        <translation>色相、饱和度、亮度、对比度</translation>
    </message>
    <message>
        <source>LUT</source>
        <translation>LUT</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>原始值</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目标值</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>白平衡</translation>
    </message>
    <message>
        <source>To use the Color Calibrator, the LUT had to be disabled. Using a LUT and the Color Calibrator at the same time, would adversely affect the color calibration.</source>
        <translation>为使用色彩校准器，已停用 LUT。同时使用 LUT 和色彩校准器会对色彩校准产生不利影响。</translation>
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
        <translation>黑电平</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Color Adjustment Hue</source>
        <translation>色彩调整：色相</translation>
    </message>
    <message>
        <source>Color Adjustment Saturation</source>
        <translation>色彩调整：饱和度</translation>
    </message>
    <message>
        <source>Color Transformation</source>
        <translation>色彩转换</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>当前值</translation>
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
        <translation>伽马</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Hue, Saturation, Brightness, Contrast</source>
        <translation>色相、饱和度、亮度、对比度</translation>
    </message>
    <message>
        <source>LUT</source>
        <translation>LUT</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>原始值</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目标值</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>白平衡</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Position Grid</source>
        <translation>放置网格</translation>
    </message>
    <message>
        <source>Adjust Brightness</source>
        <translation>调整亮度</translation>
    </message>
    <message>
        <source>Review Calibration Results</source>
        <translation>查看校准结果</translation>
    </message>
    <message>
        <source>Save Calibration Results</source>
        <translation>保存校准结果</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>If you cancel the color calibration, any changes you made will be lost. The original settings will be restored. 
Do you really want to cancel?</source>
        <translation>如果取消色彩校准，您所做的所有更改都将丢失，并恢复原始设置。
确定要取消吗？</translation>
    </message>
    <message>
        <source>Live View</source>
        <translation>实时画面</translation>
    </message>
    <message>
        <source>Show Grid</source>
        <translation>显示网格</translation>
    </message>
    <message>
        <source>Show/hide grid pattern.</source>
        <translation>显示或隐藏网格。</translation>
    </message>
    <message>
        <source>Continuous Shot</source>
        <translation>连续拍摄</translation>
    </message>
    <message>
        <source>Continuously capture five images per second.</source>
        <translation>以每秒 5 帧的速度连续采集图像。</translation>
    </message>
    <message>
        <source>Selected Camera: </source>
        <translation>所选相机：</translation>
    </message>
    <message>
        <source>Load camera settings</source>
        <translation>加载相机设置</translation>
    </message>
    <message>
        <source>Load camera settings that were saved in a .cst file in a previous session.</source>
        <translation>加载以前会话中保存在 .cst 文件中的相机设置。</translation>
    </message>
    <message>
        <source>To manually change the size and position of the grid, use the handles provided. The grid must be at least the same size as the color chart.&lt;br&gt;Click &lt;b&gt;Next&lt;/b&gt; to confirm the position of the grid.</source>
        <translation>要手动更改网格的大小和位置，请使用四角的控制点。网格至少要与色卡一样大。&lt;br&gt;单击&lt;b&gt;下一步&lt;/b&gt;确认网格的位置。</translation>
    </message>
    <message>
        <source>Auto-position Grid</source>
        <translation>自动放置网格</translation>
    </message>
    <message>
        <source>Automatically position the grid over the color chart.</source>
        <translation>自动将网格放置到色卡上。</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Automatically adjust the exposure time and the gain once.</source>
        <translation>自动调整一次曝光时间和增益。</translation>
    </message>
    <message>
        <source>Change the &lt;b&gt;Exposure Time&lt;/b&gt; and &lt;b&gt;Gain&lt;/b&gt; settings, using the sliders or the arrow keys of your keyboard, to adjust the brightness in the image (the needle should point to the green section of the dial). Clicking the &lt;b&gt;Auto&lt;/b&gt; button will adjust the settings automatically. The image is temporarily displayed in grayscale to achieve an optimal calibration result. Any changes you make here will immediately change the camera’s settings. Click &lt;b&gt;Next&lt;/b&gt; to start the calibration.</source>
        <translation>使用滑块或键盘上的方向键更改&lt;b&gt;曝光时间&lt;/b&gt;和&lt;b&gt;增益&lt;/b&gt;，以调整图像的亮度（表盘的指针应指向绿色区域）。单击&lt;b&gt;自动&lt;/b&gt;按钮可自动调整。为获得最佳校准结果，图像会暂时以灰度显示。此处的任何更改都会立即写入相机设置。单击&lt;b&gt;下一步&lt;/b&gt;开始校准。</translation>
    </message>
    <message>
        <source>Single Shot</source>
        <translation>单次拍摄</translation>
    </message>
    <message>
        <source>Capture a single image.</source>
        <translation>采集一帧图像。</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>曝光时间</translation>
    </message>
    <message>
        <source>Set the exposure time.</source>
        <translation>设置曝光时间。</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>Set the gain.</source>
        <translation>设置增益。</translation>
    </message>
    <message>
        <source>Save camera settings to file</source>
        <translation>将相机设置保存到文件</translation>
    </message>
    <message>
        <source>Save camera settings as .cst file.</source>
        <translation>将相机设置保存为 .cst 文件。</translation>
    </message>
    <message>
        <source>Save calibration summary</source>
        <translation>保存校准摘要</translation>
    </message>
    <message>
        <source>Save camera settings, images, and the calibration report.</source>
        <translation>保存相机设置、图像和校准报告。</translation>
    </message>
    <message>
        <source>Use the slider to compare the colors in the image before and after calibration. Click &lt;b&gt;Save&lt;/b&gt; to save all selected files and settings. Click &lt;b&gt;Finish&lt;/b&gt; to complete the calibration. If you click &lt;b&gt;Cancel&lt;/b&gt;, the original settings will be restored.</source>
        <translation>使用滑块比较校准前后图像中的颜色。单击&lt;b&gt;保存&lt;/b&gt;可保存所有选定的文件和设置。单击&lt;b&gt;完成&lt;/b&gt;可结束校准。单击&lt;b&gt;取消&lt;/b&gt;将恢复原始设置。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Execute all selected save options.</source>
        <translation>执行所有选定的保存选项。</translation>
    </message>
    <message>
        <source>Save camera settings in user set</source>
        <translation>将相机设置保存到用户集</translation>
    </message>
    <message>
        <source>Save camera settings in a user set.</source>
        <translation>将相机设置保存到用户集。</translation>
    </message>
    <message>
        <source>Save settings as default</source>
        <translation>将设置保存为默认设置</translation>
    </message>
    <message>
        <source>Save settings as default.</source>
        <translation>将设置保存为默认设置。</translation>
    </message>
    <message>
        <source>Calibration Reports</source>
        <translation>校准报告</translation>
    </message>
    <message>
        <source>Show an overview of the original and new camera settings by parameter.</source>
        <translation>按参数显示原始相机设置和新相机设置的概览。</translation>
    </message>
    <message>
        <source>Review the color values in the above image by moving the mouse over the patches in the grid. To display an overview of the values of a certain parameter, pick an item in the &lt;b&gt;Calibration Reports&lt;/b&gt; list. Click &lt;b&gt;Next&lt;/b&gt; to continue with these values.</source>
        <translation>将鼠标移到网格中的色块上，可查看上方图像中的颜色值。要显示某个参数值的概览，请在&lt;b&gt;校准报告&lt;/b&gt;列表中选择一项。要使用这些值继续，请单击&lt;b&gt;下一步&lt;/b&gt;。</translation>
    </message>
    <message>
        <source>To use the Color Calibrator, the LUT had to be disabled. Using a LUT and the Color Calibrator at the same time, would adversely affect the color calibration.</source>
        <translation>为使用色彩校准器，已停用 LUT。同时使用 LUT 和色彩校准器会对色彩校准产生不利影响。</translation>
    </message>
    <message>
        <source>1 - Target Value</source>
        <translation>1 - 目标值</translation>
    </message>
    <message>
        <source>2 - Original Value</source>
        <translation>2 - 原始值</translation>
    </message>
    <message>
        <source>3 - Current Value</source>
        <translation>3 - 当前值</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Shows whether the target value for calibration has been reached.</source>
        <translation>显示是否已达到校准的目标值。</translation>
    </message>
    <message>
        <source>Too bright</source>
        <translation>过亮</translation>
    </message>
    <message>
        <source>Too dark</source>
        <translation>过暗</translation>
    </message>
    <message>
        <source>Just right</source>
        <translation>合适</translation>
    </message>
    <message>
        <source>Use the slider to compare the colors in images before and after calibration.</source>
        <translation>使用滑块比较校准前后图像中的颜色。</translation>
    </message>
    <message>
        <source>Before Calibration</source>
        <translation>校准前</translation>
    </message>
    <message>
        <source>After Calibration</source>
        <translation>校准后</translation>
    </message>
    <message>
        <source>Recalibrate Camera</source>
        <translation>重新校准相机</translation>
    </message>
    <message>
        <source>Automatically recalibrate the camera.</source>
        <translation>自动重新校准相机。</translation>
    </message>
    <message>
        <source>Color Calibrator</source>
        <translation>色彩校准器</translation>
    </message>
    <message>
        <source>Autoadjust values &lt;br&gt; impossible!</source>
        <translation>无法自动&lt;br&gt;调整这些值。</translation>
    </message>
    <message>
        <source>The image size is too small to achieve a good calibration result. Ideally, the color checker should fill the whole image view area.</source>
        <translation>图像尺寸太小，无法获得良好的校准结果。理想情况下，色卡应占满整个图像显示区域。</translation>
    </message>
    <message>
        <source>The image is too dark and the calibration failed. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>图像过暗，校准失败。请调整曝光时间和增益，以达到最佳亮度。&lt;br&gt;</translation>
    </message>
    <message>
        <source>The image is too bright and the calibration failed. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>图像过亮，校准失败。请调整曝光时间和增益，以达到最佳亮度。&lt;br&gt;</translation>
    </message>
    <message>
        <source>You haven’t selected any of the save options. To save settings or results, select one of the available options.&lt;br&gt;</source>
        <translation>您尚未选择任何保存选项。要保存设置或结果，请选择其中一个可用选项。&lt;br&gt;</translation>
    </message>
    <message>
        <source>Couldn&apos;t save settings to file path!&lt;br&gt;</source>
        <translation>无法将设置保存到指定的文件路径。&lt;br&gt;</translation>
    </message>
    <message>
        <source>Couldn&apos;t save summary!&lt;br&gt;</source>
        <translation>无法保存摘要。&lt;br&gt;</translation>
    </message>
    <message>
        <source>Couldn&apos;t store settings in user set: </source>
        <translation>无法将设置保存到以下用户集：</translation>
    </message>
    <message>
        <source>Grid could not be positioned automatically.</source>
        <translation>无法自动放置网格。</translation>
    </message>
    <message>
        <source>The image is too dark. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>图像过暗。请调整曝光时间和增益，以达到最佳亮度。&lt;br&gt;</translation>
    </message>
    <message>
        <source>The image is too bright. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>图像过亮。请调整曝光时间和增益，以达到最佳亮度。&lt;br&gt;</translation>
    </message>
    <message>
        <source>The calibration process failed because the image is either too bright or too dark. Adjust the brightness and try again.</source>
        <translation>图像过亮或过暗，校准失败。请调整亮度，然后重试。</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>品红</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青</translation>
    </message>
</context>
</TS>
