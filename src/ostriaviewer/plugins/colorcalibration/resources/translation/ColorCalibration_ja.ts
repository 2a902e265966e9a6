<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>ColorCorrectionToolDlg</name>
    <message>
        <source>Color Calibrator</source>
        <translation>カラーキャリブレーター</translation>
    </message>
    <message>
        <source>Ostria Color Calibrator</source>
        <translation>Ostria カラーキャリブレーター</translation>
    </message>
    <message>
        <source>&lt;p&gt;The camera has been disconnected.&lt;br/&gt;Reconnect the camera to the computer and open it to continue using the Color Calibrator.&lt;/p&gt;</source>
        <translation>&lt;p&gt;カメラとの接続が切断されました。&lt;br/&gt;カラーキャリブレーターの使用を続けるには、カメラをコンピューターに接続し直してから、カメラを開いてください。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Image acquisition is slowed down by certain parameter settings in the camera, e.g., exposure time.</source>
        <translation>露光時間など、カメラの特定のパラメーター設定により、画像の取り込みが遅くなっています。</translation>
    </message>
</context>
<context>
    <name>Plugin::ColorCalibration::CColorCalibrationPlugin</name>
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
    <name>Progress</name>
    <message>
        <source>Calibration process failed.&lt;br&gt;</source>
        <translation>キャリブレーションに失敗しました。&lt;br&gt;</translation>
    </message>
    <message>
        <source>Could not load previous settings.</source>
        <translation>以前の設定を読み込めませんでした。</translation>
    </message>
    <message>
        <source>Couldn&apos;t apply &lt;br&gt; initial values.</source>
        <translation>初期値を&lt;br&gt;適用できませんでした。</translation>
    </message>
    <message>
        <source>Couldn&apos;t apply initial camera image or set original patch color values.</source>
        <translation>カメラの初期画像を適用できなかったか、パッチの元の色の値を設定できませんでした。</translation>
    </message>
    <message>
        <source>Couldn&apos;t restore detected exposure and gain values.</source>
        <translation>検出した露光時間とゲインの値を復元できませんでした。</translation>
    </message>
    <message>
        <source>Couldn&apos;t restore preneutral camera settings.</source>
        <translation>ニュートラル設定にする前のカメラ設定を復元できませんでした。</translation>
    </message>
    <message>
        <source>Couldn&apos;t store detected exposure and gain values.</source>
        <translation>検出した露光時間とゲインの値を保存できませんでした。</translation>
    </message>
    <message>
        <source>No initial parameters (min, max, value) &lt;br&gt; for exposure time available.</source>
        <translation>露光時間の初期パラメーター（最小値、最大値、現在値）を&lt;br&gt;取得できませんでした。</translation>
    </message>
    <message>
        <source>No initial parameters (min, max, value) &lt;br&gt; for gain value available.</source>
        <translation>ゲインの初期パラメーター（最小値、最大値、現在値）を&lt;br&gt;取得できませんでした。</translation>
    </message>
    <message>
        <source>Unable to set neutral settings.</source>
        <translation>ニュートラル設定を適用できませんでした。</translation>
    </message>
</context>
<context>
    <name>QMLExposureTime</name>
    <message>
        <source>Couldn&apos;t set exposureTime!&lt;br&gt;</source>
        <translation>露光時間を設定できませんでした。&lt;br&gt;</translation>
    </message>
</context>
<context>
    <name>QMLGainvalue</name>
    <message>
        <source>Couldn&apos;t set gain value!&lt;br&gt;</source>
        <translation>ゲインを設定できませんでした。&lt;br&gt;</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Black Level</source>
        <translation>黒レベル</translation>
    </message>
    <message>
        <source>Color Adjustment Hue</source>
        <translation>色調整：色相</translation>
    </message>
    <message>
        <source>Color Adjustment Saturation</source>
        <translation>色調整：彩度</translation>
    </message>
    <message>
        <source>Color Transformation</source>
        <translation>色変換</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>現在の値</translation>
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
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>Hue, Saturation, Brightness, Contrast</source>
        <translation>色相、彩度、明るさ、コントラスト</translation>
    </message>
    <message>
        <source>LUT</source>
        <translation>LUT</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>元の値</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目標値</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>ホワイトバランス</translation>
    </message>
    <message>
        <source>To use the Color Calibrator, the LUT had to be disabled. Using a LUT and the Color Calibrator at the same time, would adversely affect the color calibration.</source>
        <translation>カラーキャリブレーターを使用するため、LUTを無効にしました。LUTとカラーキャリブレーターを同時に使用すると、カラーキャリブレーションに悪影響を及ぼします。</translation>
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
        <translation>黒レベル</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Color Adjustment Hue</source>
        <translation>色調整：色相</translation>
    </message>
    <message>
        <source>Color Adjustment Saturation</source>
        <translation>色調整：彩度</translation>
    </message>
    <message>
        <source>Color Transformation</source>
        <translation>色変換</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>現在の値</translation>
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
        <translation>ガンマ</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Hue, Saturation, Brightness, Contrast</source>
        <translation>色相、彩度、明るさ、コントラスト</translation>
    </message>
    <message>
        <source>LUT</source>
        <translation>LUT</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>元の値</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目標値</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>ホワイトバランス</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Position Grid</source>
        <translation>グリッドの配置</translation>
    </message>
    <message>
        <source>Adjust Brightness</source>
        <translation>明るさの調整</translation>
    </message>
    <message>
        <source>Review Calibration Results</source>
        <translation>キャリブレーション結果の確認</translation>
    </message>
    <message>
        <source>Save Calibration Results</source>
        <translation>キャリブレーション結果の保存</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>If you cancel the color calibration, any changes you made will be lost. The original settings will be restored. 
Do you really want to cancel?</source>
        <translation>カラーキャリブレーションをキャンセルすると、行った変更はすべて失われ、元の設定に戻ります。
本当にキャンセルしますか？</translation>
    </message>
    <message>
        <source>Live View</source>
        <translation>ライブビュー</translation>
    </message>
    <message>
        <source>Show Grid</source>
        <translation>グリッドを表示</translation>
    </message>
    <message>
        <source>Show/hide grid pattern.</source>
        <translation>グリッドの表示／非表示を切り替えます。</translation>
    </message>
    <message>
        <source>Continuous Shot</source>
        <translation>連続撮影</translation>
    </message>
    <message>
        <source>Continuously capture five images per second.</source>
        <translation>毎秒5枚の画像を連続して取り込みます。</translation>
    </message>
    <message>
        <source>Selected Camera: </source>
        <translation>選択中のカメラ：</translation>
    </message>
    <message>
        <source>Load camera settings</source>
        <translation>カメラ設定を読み込む</translation>
    </message>
    <message>
        <source>Load camera settings that were saved in a .cst file in a previous session.</source>
        <translation>以前のセッションで.cstファイルに保存したカメラ設定を読み込みます。</translation>
    </message>
    <message>
        <source>To manually change the size and position of the grid, use the handles provided. The grid must be at least the same size as the color chart.&lt;br&gt;Click &lt;b&gt;Next&lt;/b&gt; to confirm the position of the grid.</source>
        <translation>グリッドの大きさと位置を手動で変更するには、四隅のハンドルを使用します。グリッドは、カラーチャートと同じ大きさか、それより大きくする必要があります。&lt;br&gt;&lt;b&gt;次へ&lt;/b&gt;をクリックして、グリッドの位置を確定します。</translation>
    </message>
    <message>
        <source>Auto-position Grid</source>
        <translation>グリッドの自動配置</translation>
    </message>
    <message>
        <source>Automatically position the grid over the color chart.</source>
        <translation>グリッドをカラーチャートの上に自動で配置します。</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Automatically adjust the exposure time and the gain once.</source>
        <translation>露光時間とゲインを1回だけ自動調整します。</translation>
    </message>
    <message>
        <source>Change the &lt;b&gt;Exposure Time&lt;/b&gt; and &lt;b&gt;Gain&lt;/b&gt; settings, using the sliders or the arrow keys of your keyboard, to adjust the brightness in the image (the needle should point to the green section of the dial). Clicking the &lt;b&gt;Auto&lt;/b&gt; button will adjust the settings automatically. The image is temporarily displayed in grayscale to achieve an optimal calibration result. Any changes you make here will immediately change the camera’s settings. Click &lt;b&gt;Next&lt;/b&gt; to start the calibration.</source>
        <translation>スライダーまたはキーボードの矢印キーで&lt;b&gt;露光時間&lt;/b&gt;と&lt;b&gt;ゲイン&lt;/b&gt;を変更し、画像の明るさを調整します（メーターの針が緑の範囲を指すようにします）。&lt;b&gt;自動&lt;/b&gt;ボタンをクリックすると、自動で調整されます。最適なキャリブレーション結果を得るため、画像は一時的にグレースケールで表示されます。ここでの変更は、ただちにカメラの設定に反映されます。&lt;b&gt;次へ&lt;/b&gt;をクリックすると、キャリブレーションが始まります。</translation>
    </message>
    <message>
        <source>Single Shot</source>
        <translation>1枚撮影</translation>
    </message>
    <message>
        <source>Capture a single image.</source>
        <translation>画像を1枚だけ取り込みます。</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>露光時間</translation>
    </message>
    <message>
        <source>Set the exposure time.</source>
        <translation>露光時間を設定します。</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>ゲイン</translation>
    </message>
    <message>
        <source>Set the gain.</source>
        <translation>ゲインを設定します。</translation>
    </message>
    <message>
        <source>Save camera settings to file</source>
        <translation>カメラ設定をファイルに保存</translation>
    </message>
    <message>
        <source>Save camera settings as .cst file.</source>
        <translation>カメラ設定を.cstファイルとして保存します。</translation>
    </message>
    <message>
        <source>Save calibration summary</source>
        <translation>キャリブレーションの要約を保存</translation>
    </message>
    <message>
        <source>Save camera settings, images, and the calibration report.</source>
        <translation>カメラ設定、画像、キャリブレーションレポートを保存します。</translation>
    </message>
    <message>
        <source>Use the slider to compare the colors in the image before and after calibration. Click &lt;b&gt;Save&lt;/b&gt; to save all selected files and settings. Click &lt;b&gt;Finish&lt;/b&gt; to complete the calibration. If you click &lt;b&gt;Cancel&lt;/b&gt;, the original settings will be restored.</source>
        <translation>スライダーを使って、キャリブレーション前後の画像の色を比較します。&lt;b&gt;保存&lt;/b&gt;をクリックすると、選択したすべてのファイルと設定が保存されます。&lt;b&gt;完了&lt;/b&gt;をクリックすると、キャリブレーションが終了します。&lt;b&gt;キャンセル&lt;/b&gt;をクリックすると、元の設定に戻ります。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Execute all selected save options.</source>
        <translation>選択したすべての保存オプションを実行します。</translation>
    </message>
    <message>
        <source>Save camera settings in user set</source>
        <translation>カメラ設定をユーザーセットに保存</translation>
    </message>
    <message>
        <source>Save camera settings in a user set.</source>
        <translation>カメラ設定をユーザーセットに保存します。</translation>
    </message>
    <message>
        <source>Save settings as default</source>
        <translation>設定をデフォルトとして保存</translation>
    </message>
    <message>
        <source>Save settings as default.</source>
        <translation>設定をデフォルトとして保存します。</translation>
    </message>
    <message>
        <source>Calibration Reports</source>
        <translation>キャリブレーションレポート</translation>
    </message>
    <message>
        <source>Show an overview of the original and new camera settings by parameter.</source>
        <translation>元のカメラ設定と新しいカメラ設定をパラメーターごとに一覧表示します。</translation>
    </message>
    <message>
        <source>Review the color values in the above image by moving the mouse over the patches in the grid. To display an overview of the values of a certain parameter, pick an item in the &lt;b&gt;Calibration Reports&lt;/b&gt; list. Click &lt;b&gt;Next&lt;/b&gt; to continue with these values.</source>
        <translation>グリッド内のパッチにマウスを合わせて、上の画像の色の値を確認します。特定のパラメーターの値の一覧を表示するには、&lt;b&gt;キャリブレーションレポート&lt;/b&gt;リストから項目を選択します。これらの値で続行するには、&lt;b&gt;次へ&lt;/b&gt;をクリックします。</translation>
    </message>
    <message>
        <source>To use the Color Calibrator, the LUT had to be disabled. Using a LUT and the Color Calibrator at the same time, would adversely affect the color calibration.</source>
        <translation>カラーキャリブレーターを使用するため、LUTを無効にしました。LUTとカラーキャリブレーターを同時に使用すると、カラーキャリブレーションに悪影響を及ぼします。</translation>
    </message>
    <message>
        <source>1 - Target Value</source>
        <translation>1 - 目標値</translation>
    </message>
    <message>
        <source>2 - Original Value</source>
        <translation>2 - 元の値</translation>
    </message>
    <message>
        <source>3 - Current Value</source>
        <translation>3 - 現在の値</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Shows whether the target value for calibration has been reached.</source>
        <translation>キャリブレーションの目標値に達しているかどうかを示します。</translation>
    </message>
    <message>
        <source>Too bright</source>
        <translation>明るすぎ</translation>
    </message>
    <message>
        <source>Too dark</source>
        <translation>暗すぎ</translation>
    </message>
    <message>
        <source>Just right</source>
        <translation>適正</translation>
    </message>
    <message>
        <source>Use the slider to compare the colors in images before and after calibration.</source>
        <translation>スライダーでキャリブレーション前後の画像の色を比較します。</translation>
    </message>
    <message>
        <source>Before Calibration</source>
        <translation>キャリブレーション前</translation>
    </message>
    <message>
        <source>After Calibration</source>
        <translation>キャリブレーション後</translation>
    </message>
    <message>
        <source>Recalibrate Camera</source>
        <translation>再キャリブレーション</translation>
    </message>
    <message>
        <source>Automatically recalibrate the camera.</source>
        <translation>カメラを自動で再キャリブレーションします。</translation>
    </message>
    <message>
        <source>Color Calibrator</source>
        <translation>カラーキャリブレーター</translation>
    </message>
    <message>
        <source>Autoadjust values &lt;br&gt; impossible!</source>
        <translation>値を自動調整&lt;br&gt;できませんでした。</translation>
    </message>
    <message>
        <source>The image size is too small to achieve a good calibration result. Ideally, the color checker should fill the whole image view area.</source>
        <translation>画像サイズが小さすぎるため、良好なキャリブレーション結果が得られません。カラーチャートが画像の表示領域全体を占めるのが理想的です。</translation>
    </message>
    <message>
        <source>The image is too dark and the calibration failed. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>画像が暗すぎるため、キャリブレーションに失敗しました。最適な明るさになるように、露光時間とゲインを調整してください。&lt;br&gt;</translation>
    </message>
    <message>
        <source>The image is too bright and the calibration failed. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>画像が明るすぎるため、キャリブレーションに失敗しました。最適な明るさになるように、露光時間とゲインを調整してください。&lt;br&gt;</translation>
    </message>
    <message>
        <source>You haven’t selected any of the save options. To save settings or results, select one of the available options.&lt;br&gt;</source>
        <translation>保存オプションが選択されていません。設定または結果を保存するには、いずれかのオプションを選択してください。&lt;br&gt;</translation>
    </message>
    <message>
        <source>Couldn&apos;t save settings to file path!&lt;br&gt;</source>
        <translation>指定したファイルパスに設定を保存できませんでした。&lt;br&gt;</translation>
    </message>
    <message>
        <source>Couldn&apos;t save summary!&lt;br&gt;</source>
        <translation>要約を保存できませんでした。&lt;br&gt;</translation>
    </message>
    <message>
        <source>Couldn&apos;t store settings in user set: </source>
        <translation>設定を次のユーザーセットに保存できませんでした：</translation>
    </message>
    <message>
        <source>Grid could not be positioned automatically.</source>
        <translation>グリッドを自動で配置できませんでした。</translation>
    </message>
    <message>
        <source>The image is too dark. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>画像が暗すぎます。最適な明るさになるように、露光時間とゲインを調整してください。&lt;br&gt;</translation>
    </message>
    <message>
        <source>The image is too bright. Adjust the exposure time and the gain to achieve optimum brightness.&lt;br&gt;</source>
        <translation>画像が明るすぎます。最適な明るさになるように、露光時間とゲインを調整してください。&lt;br&gt;</translation>
    </message>
    <message>
        <source>The calibration process failed because the image is either too bright or too dark. Adjust the brightness and try again.</source>
        <translation>画像が明るすぎるか暗すぎるため、キャリブレーションに失敗しました。明るさを調整して、もう一度実行してください。</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>シアン</translation>
    </message>
</context>
</TS>
