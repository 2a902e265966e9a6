<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Cameras::CameraControlService</name>
    <message>
        <source>The camera is not open.</source>
        <translation>相机未打开。</translation>
    </message>
    <message>
        <source>The camera is open already.</source>
        <translation>相机已处于打开状态。</translation>
    </message>
</context>
<context>
    <name>Cameras::Emulation::EmulatedCamera</name>
    <message>
        <source>Emulated cameras</source>
        <translation>仿真相机</translation>
    </message>
    <message>
        <source>The camera is being used by another application.</source>
        <translation>相机正被另一个应用程序使用。</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation>相机没有响应。</translation>
    </message>
    <message>
        <source>The frame is incomplete.</source>
        <translation>帧不完整。</translation>
    </message>
</context>
<context>
    <name>Cameras::Emulation::UserSets</name>
    <message>
        <source>The user sets cannot be written to %1.</source>
        <translation>无法将用户集写入 %1。</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::AcquisitionFeatures</name>
    <message>
        <source>The camera could not be asked for another image.</source>
        <translation>无法向相机请求下一帧图像。</translation>
    </message>
    <message>
        <source>The camera could not be stopped.</source>
        <translation>无法停止相机。</translation>
    </message>
    <message>
        <source>The camera&apos;s features stay locked.</source>
        <translation>相机的功能仍处于锁定状态。</translation>
    </message>
    <message>
        <source>The acquisition mode could not be put back; set AcquisitionMode to &quot;%1&quot;.</source>
        <translation>无法恢复采集模式；请将 AcquisitionMode 设置为“%1”。</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1：%2（%3）</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::CameraFinder</name>
    <message>
        <source>The search for cameras failed (%1). It is repeated soon.</source>
        <translation>搜索相机失败（%1）。稍后将重试。</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::Device</name>
    <message>
        <source>The description of the camera &quot;%1&quot; cannot be used (%2).</source>
        <translation>无法使用相机“%1”的功能描述文件（%2）。</translation>
    </message>
    <message>
        <source>The camera &quot;%1&quot; does not answer (%2).</source>
        <translation>相机“%1”没有响应（%2）。</translation>
    </message>
    <message>
        <source>The camera &quot;%1&quot; does not answer.</source>
        <translation>相机“%1”没有响应。</translation>
    </message>
    <message>
        <source>The camera is being used by another application.</source>
        <translation>相机正被另一个应用程序使用。</translation>
    </message>
    <message>
        <source>The camera gives no description of its features.</source>
        <translation>相机未提供功能描述文件。</translation>
    </message>
    <message>
        <source>The camera&apos;s images cannot be received: %1.</source>
        <translation>无法接收相机的图像：%1。</translation>
    </message>
    <message>
        <source>the connection to the camera is lost</source>
        <translation>与相机的连接已断开</translation>
    </message>
    <message>
        <source>the camera does not answer at present</source>
        <translation>相机当前没有响应</translation>
    </message>
    <message>
        <source>%1: the camera does not take packets of %2 bytes, as the settings want them; it uses packets of %3 bytes.</source>
        <translation>%1：相机不支持设置的 %2 字节数据包，将使用 %3 字节的数据包。</translation>
    </message>
    <message>
        <source>the camera refuses it</source>
        <translation>相机拒绝了该操作</translation>
    </message>
    <message>
        <source>the camera refuses it, and does not answer when asked why</source>
        <translation>相机拒绝了该操作，且未响应对拒绝原因的查询</translation>
    </message>
    <message>
        <source>the camera has not heard from this program for too long and does not obey it any more; open the camera again</source>
        <translation>相机过久未收到本程序的通信，不再接受其控制；请重新打开相机</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::Feature</name>
    <message>
        <source>the camera answers %1, which is no entry</source>
        <translation>相机返回的 %1 不是有效选项</translation>
    </message>
    <message>
        <source>%1 is not available with the camera&apos;s present settings</source>
        <translation>在相机的当前设置下，%1 不可用</translation>
    </message>
    <message>
        <source>there is no entry &quot;%1&quot;</source>
        <translation>没有选项“%1”</translation>
    </message>
    <message>
        <source>the camera has no such feature</source>
        <translation>相机没有此功能</translation>
    </message>
    <message>
        <source>the connection to the camera is lost</source>
        <translation>与相机的连接已断开</translation>
    </message>
    <message>
        <source>not available with the camera&apos;s present settings</source>
        <translation>在相机的当前设置下不可用</translation>
    </message>
    <message>
        <source>cannot be read, only written</source>
        <translation>该功能只写，无法读取</translation>
    </message>
    <message>
        <source>cannot be written, only read</source>
        <translation>该功能只读，无法更改</translation>
    </message>
    <message>
        <source>locked with the camera&apos;s present settings</source>
        <translation>在相机的当前设置下已锁定</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1：%2。</translation>
    </message>
    <message>
        <source>%1 is below the minimum %2</source>
        <translation>%1 小于最小值 %2</translation>
    </message>
    <message>
        <source>%1 is above the maximum %2</source>
        <translation>%1 大于最大值 %2</translation>
    </message>
    <message>
        <source>%1 is not a multiple of %2 above %3</source>
        <translation>%1 不是从 %3 开始、步长为 %2 的值</translation>
    </message>
    <message>
        <source>the camera keeps %1 instead of %2</source>
        <translation>相机中的值是 %1，而不是 %2</translation>
    </message>
    <message>
        <source>the value is not a finite number</source>
        <translation>值不是有限数</translation>
    </message>
    <message>
        <source>the camera keeps another value than %1</source>
        <translation>相机中的值未变为 %1</translation>
    </message>
    <message>
        <source>the camera does not finish the command</source>
        <translation>相机未完成该命令</translation>
    </message>
    <message>
        <source>the text is longer than %1 bytes</source>
        <translation>文本超过 %1 个字节</translation>
    </message>
    <message>
        <source>an integer is expected</source>
        <translation>应为整数</translation>
    </message>
    <message>
        <source>a number is expected</source>
        <translation>应为数字</translation>
    </message>
    <message>
        <source>0 or 1 is expected</source>
        <translation>应为 0 或 1</translation>
    </message>
    <message>
        <source>has no value</source>
        <translation>没有值</translation>
    </message>
    <message>
        <source>There is no node map &quot;%1&quot;.</source>
        <translation>节点映射“%1”不存在。</translation>
    </message>
    <message>
        <source>the camera has not finished the command yet</source>
        <translation>相机尚未完成该命令</translation>
    </message>
    <message>
        <source>the camera refuses the access</source>
        <translation>相机拒绝了访问</translation>
    </message>
    <message>
        <source>the text has a NUL character</source>
        <translation>文本包含 NUL 字符</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::FeatureStream</name>
    <message>
        <source>Line %1: %2
</source>
        <translation>第 %1 行：%2
</translation>
    </message>
    <message>
        <source>And %1 more lines.
</source>
        <translation>另有 %1 行。
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no tab and no value.</source>
        <translation>“%1”缺少制表符和值。</translation>
    </message>
    <message>
        <source>the camera has no feature &quot;%1&quot;.</source>
        <translation>相机没有功能“%1”。</translation>
    </message>
    <message>
        <source>skipped, as %1 could not be set</source>
        <translation>无法设置 %1，已跳过</translation>
    </message>
    <message>
        <source>skipped, as it is not saved with the camera&apos;s settings</source>
        <translation>该功能不随相机设置一起保存，已跳过</translation>
    </message>
    <message>
        <source>skipped, as its present text could not be given back</source>
        <translation>当前文本将无法恢复，已跳过</translation>
    </message>
    <message>
        <source>%1: %2 could not be put back while settings were read; set it to &quot;%3&quot;. (%4)</source>
        <translation>%1：读取设置时无法恢复 %2；请将其设置为“%3”。（%4）</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::Frame</name>
    <message>
        <source>The frame holds no image.</source>
        <translation>帧中没有图像。</translation>
    </message>
    <message>
        <source>The pixel format 0x%1 is not known; choose another one.</source>
        <translation>不支持像素格式 0x%1，请选择其他格式。</translation>
    </message>
    <message>
        <source>The frame cannot be used (%1). Choose another pixel format or another image size.</source>
        <translation>无法使用该帧（%1）。请选择其他像素格式或图像尺寸。</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::FrameStream</name>
    <message>
        <source>The camera does not tell how large its images are.</source>
        <translation>无法从相机获取图像大小。</translation>
    </message>
    <message>
        <source>The camera says that an image has %1 bytes, which is too much.</source>
        <translation>相机报告的图像大小（%1 字节）过大。</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::GenicamCamera</name>
    <message>
        <source>Network cameras</source>
        <translation>网络相机</translation>
    </message>
    <message>
        <source>USB cameras</source>
        <translation>USB 相机</translation>
    </message>
    <message>
        <source>%1: %2 of %3 images were damaged on their way and left out (%4 packets are missing). Set a larger packet size or a packet delay.</source>
        <translation>%1：%3 帧图像中有 %2 帧在传输中损坏并被丢弃（缺少 %4 个数据包）。请增大数据包大小或设置数据包延迟。</translation>
    </message>
    <message>
        <source>%1: %2 of %3 images were shorter than the camera says and were left out. Nothing was lost on the way. Restart the camera, or choose another image size or pixel format.</source>
        <translation>%1：%3 帧图像中有 %2 帧小于相机所声明的大小，已被丢弃。传输中没有丢失数据。请重新启动相机，或选择其他图像尺寸或像素格式。</translation>
    </message>
    <message>
        <source>%1: %2 of %3 images came faster than this computer takes them and were left out. Set a lower frame rate or a smaller image.</source>
        <translation>%1：%3 帧图像中有 %2 帧因本计算机来不及处理而被丢弃。请降低帧率或减小图像尺寸。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::LibraryLog</name>
    <message>
        <source>The camera library reports: %1.</source>
        <translation>相机库报告：%1。</translation>
    </message>
    <message>
        <source>The camera library reports of the camera &quot;%1&quot;: %2.</source>
        <translation>相机库针对相机“%1”报告：%2。</translation>
    </message>
    <message>
        <source>The description of the camera &quot;%1&quot; is faulty: %2.</source>
        <translation>相机“%1”的功能描述文件有误：%2。</translation>
    </message>
    <message>
        <source>The description of the camera &quot;%1&quot; is faulty at the feature &quot;%2&quot;: %3.</source>
        <translation>在相机“%1”的功能描述文件中，功能“%2”有误：%3。</translation>
    </message>
    <message>
        <source>The camera library has much to complain of; no more of it is shown.</source>
        <translation>相机库的报告过多，之后的报告不再显示。</translation>
    </message>
</context>
<context>
    <name>Cameras::GenICam::NodeMap</name>
    <message>
        <source>The camera&apos;s description cannot be used: %1.</source>
        <translation>无法使用相机的功能描述文件：%1。</translation>
    </message>
    <message>
        <source>it describes no registers</source>
        <translation>没有寄存器定义</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>it has no feature tree</source>
        <translation>没有功能树</translation>
    </message>
    <message>
        <source>The connection to the camera is lost.</source>
        <translation>与相机的连接已断开。</translation>
    </message>
</context>
<context>
    <name>Cameras::HostCamera</name>
    <message>
        <source>The camera is being used by another part of the program.</source>
        <translation>相机正被本程序的其他任务使用。</translation>
    </message>
</context>
<context>
    <name>Core::CameraPoolComponents::CameraTexts</name>
    <message>
        <source>The camera could not be opened. Close it in other programs, open it in the viewer, then try again.</source>
        <translation>无法打开相机。请在其他应用程序中关闭相机，在查看器中打开相机，然后重试。</translation>
    </message>
    <message>
        <source>The camera&apos;s original settings couldn&apos;t be restored. Load them from a user set or a settings file.</source>
        <translation>无法恢复相机的原始设置。请从用户集或设置文件加载设置。</translation>
    </message>
    <message>
        <source>The camera&apos;s original settings couldn&apos;t be restored. Check the connection of the camera and try again, or cancel.</source>
        <translation>无法恢复相机的原始设置。请检查相机的连接，然后重试或取消。</translation>
    </message>
    <message>
        <source>The camera&apos;s settings couldn&apos;t be backed up. Check the connection of the camera and try again, or cancel.</source>
        <translation>无法备份相机的设置。请检查相机的连接，然后重试或取消。</translation>
    </message>
    <message>
        <source>The connection to the camera was lost while its settings were being stored in the user set &quot;%1&quot;. Whether it holds the new settings is not known. Open the camera again and check it, and which user set the camera starts with.</source>
        <translation>将相机设置保存到用户集“%1”时，与相机的连接中断。新设置是否已保存尚不清楚。请重新打开相机，检查该用户集的内容以及相机启动时使用的用户集。</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraCommands</name>
    <message>
        <source>%1 could not be opened. %2</source>
        <translation>无法打开 %1。%2</translation>
    </message>
    <message>
        <source>%1 delivers no images, as another part of the program is using it. End that first.</source>
        <translation>%1 正被本程序的其他任务使用，无法采集图像。请先结束该任务。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Open the selected camera</source>
        <translation>打开所选相机</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Close the selected camera</source>
        <translation>关闭所选相机</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>开始(&amp;S)</translation>
    </message>
    <message>
        <source>Show the camera&apos;s picture continuously</source>
        <translation>连续显示相机的图像</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>Stop the camera</source>
        <translation>停止相机的图像采集</translation>
    </message>
    <message>
        <source>Single &amp;Picture</source>
        <translation>单次拍摄(&amp;P)</translation>
    </message>
    <message>
        <source>Take one picture</source>
        <translation>采集一帧图像</translation>
    </message>
    <message>
        <source>%1 delivers no images. %2</source>
        <translation>%1 无法采集图像。%2</translation>
    </message>
    <message>
        <source>%1 takes no picture, as another part of the program is using it. Try again later.</source>
        <translation>%1 正被本程序的其他任务使用，无法采集单帧图像。请稍后重试。</translation>
    </message>
    <message>
        <source>%1 takes no picture. %2</source>
        <translation>%1 无法采集单帧图像。%2</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraList</name>
    <message>
        <source>closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>open</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>acquiring</source>
        <translation>采集中</translation>
    </message>
    <message>
        <source>recording</source>
        <translation>录制中</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSelectorPanel</name>
    <message>
        <source>%1
Model %2, %3</source>
        <translation>%1
型号：%2，%3</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettingsCommands</name>
    <message>
        <source>&amp;Look for Cameras</source>
        <translation>搜索相机(&amp;L)</translation>
    </message>
    <message>
        <source>Look for cameras on the network and on USB now</source>
        <translation>立即搜索网络和 USB 上的相机</translation>
    </message>
    <message>
        <source>Camera Setti&amp;ngs...</source>
        <translation>相机连接设置(&amp;N)...</translation>
    </message>
    <message>
        <source>Choose which cameras are shown and how they are reached</source>
        <translation>选择要显示的相机及其连接方式</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>These settings close cameras that are in use:

%1

Do you want to close them and use the settings?</source>
        <translation>应用这些设置会关闭以下正在使用的相机：

%1

是否关闭上述相机并应用设置？</translation>
    </message>
</context>
<context>
    <name>Viewer::CameraSettingsDialog</name>
    <message>
        <source>Camera Settings</source>
        <translation>相机连接设置</translation>
    </message>
    <message>
        <source>&amp;Show:</source>
        <translation>显示(&amp;S)：</translation>
    </message>
    <message>
        <source>Emulated and real cameras</source>
        <translation>仿真相机和真实相机</translation>
    </message>
    <message>
        <source>Cameras on the network and on USB</source>
        <translation>网络和 USB 上的相机</translation>
    </message>
    <message>
        <source>Emulated cameras</source>
        <translation>仿真相机</translation>
    </message>
    <message>
        <source>&amp;Look for network cameras</source>
        <translation>搜索网络相机(&amp;L)</translation>
    </message>
    <message>
        <source>Network interfaces</source>
        <translation>网络接口</translation>
    </message>
    <message>
        <source>Searches these network interfaces. If none is selected, all except loopback (lo).</source>
        <translation>在所选网络接口上搜索。如果未选择，则在除环回接口（lo）以外的所有接口上搜索。</translation>
    </message>
    <message>
        <source>Cameras with a fixed &amp;address</source>
        <translation>固定地址的相机(&amp;A)</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>such as 192.168.1.20</source>
        <translation>例如 192.168.1.20</translation>
    </message>
    <message>
        <source>IP address of a camera</source>
        <translation>相机的 IP 地址</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>添加(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Contacted directly, even where broadcasts do not arrive.</source>
        <translation>即使广播无法到达，也会直接查询这些相机。</translation>
    </message>
    <message>
        <source>Images from the network</source>
        <translation>来自网络的图像</translation>
    </message>
    <message>
        <source>as large as possible</source>
        <translation>可用的最大值</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> 字节</translation>
    </message>
    <message>
        <source>&amp;Packet size:</source>
        <translation>数据包大小(&amp;P)：</translation>
    </message>
    <message>
        <source>Takes effect the next time a camera is opened. Choose 1500 if no images arrive.</source>
        <translation>从下次打开相机时起生效。如果收不到图像，请选择 1500。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address of a camera. It consists of four numbers, such as 192.168.1.20.</source>
        <translation>“%1”不是相机地址。地址由四个数字组成，例如 192.168.1.20。</translation>
    </message>
    <message>
        <source>&amp;Close Cameras</source>
        <translation>关闭相机(&amp;C)</translation>
    </message>
</context>
<context>
    <name>Viewer::ClosingQuestion</name>
    <message>
        <source>Pictures of these cameras are being recorded:

%1

Do you want to end the recording and close the viewer?</source>
        <translation>正在录制以下相机的图像：

%1

是否结束录制并关闭查看器？</translation>
    </message>
    <message>
        <source>&amp;End Recording</source>
        <translation>结束录制(&amp;E)</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureModel</name>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Range: %1 %2</source>
        <translation>范围：%1 %2</translation>
    </message>
    <message>
        <source>Not available with the camera&apos;s present settings</source>
        <translation>在相机的当前设置下不可用</translation>
    </message>
    <message>
        <source>Cannot be changed now</source>
        <translation>当前无法更改</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>Viewer::FeaturePanel</name>
    <message>
        <source>Filter features</source>
        <translation>按名称筛选</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Open a camera to see its features.</source>
        <translation>打开相机即可查看其功能。</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureValue</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>不小于 %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>不大于 %1</translation>
    </message>
    <message>
        <source>, in steps of %1</source>
        <translation>，步长 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number of this kind.</source>
        <translation>“%1”不是此功能可接受的数字。</translation>
    </message>
    <message>
        <source>%1 (possible now: %2).</source>
        <translation>%1（当前可设置的值：%2）。</translation>
    </message>
</context>
<context>
    <name>Viewer::FrameConverter</name>
    <message>
        <source>It cannot be shown (%1). Choose another pixel format or another image size.</source>
        <translation>无法显示该图像（%1）。请选择其他像素格式或图像尺寸。</translation>
    </message>
</context>
<context>
    <name>Viewer::LiveSession</name>
    <message>
        <source>Select a camera in the list.</source>
        <translation>请在列表中选择相机。</translation>
    </message>
    <message>
        <source>The connection to %1 is lost. Reconnect the camera and open it again.</source>
        <translation>与 %1 的连接已断开。请重新连接相机，然后再次打开。</translation>
    </message>
    <message>
        <source>%1 is closed. Double-click it, or press F5, to see its picture.</source>
        <translation>%1 已关闭。要查看图像，请双击该相机或按 F5 键。</translation>
    </message>
    <message>
        <source>%1 is open. Press F5 to see its picture, or F6 for a single one.</source>
        <translation>%1 已打开。按 F5 键连续显示图像，按 F6 键采集一帧。</translation>
    </message>
    <message>
        <source>Waiting for the first picture of %1.</source>
        <translation>正在等待 %1 的第一帧图像。</translation>
    </message>
</context>
<context>
    <name>Viewer::MainMenu</name>
    <message>
        <source>Open the camera to see its tools</source>
        <translation>请打开相机以查看其工具</translation>
    </message>
    <message>
        <source>No tool for the selected camera</source>
        <translation>没有适用于所选相机的工具</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>相机(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>保存图像(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>适应窗口(&amp;F)</translation>
    </message>
    <message>
        <source>Zoom to &amp;Pixels</source>
        <translation>实际像素(&amp;P)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Plugins</source>
        <translation>插件(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Like the &amp;Desktop</source>
        <translation>跟随系统(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>Dar&amp;k</source>
        <translation>深色(&amp;K)</translation>
    </message>
</context>
<context>
    <name>Viewer::MainWindow</name>
    <message>
        <source>Ostria Viewer</source>
        <translation>Ostria 查看器</translation>
    </message>
    <message>
        <source>There is no picture to save. Start a camera first.</source>
        <translation>没有可保存的图像。请先开始采集图像。</translation>
    </message>
    <message>
        <source>Recording Folder</source>
        <translation>录制文件夹</translation>
    </message>
    <message>
        <source>%1, %2:  R %3  G %4  B %5</source>
        <translation>%1, %2:  R %3  G %4  B %5</translation>
    </message>
    <message>
        <source>%1 x %2 at %3 %</source>
        <translation>%1 × %2，%3%</translation>
    </message>
    <message>
        <source>%1 pictures/s</source>
        <translation>%1 帧/秒</translation>
    </message>
    <message>
        <source>Live view</source>
        <translation>实时画面</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Camera tools</source>
        <translation>相机工具</translation>
    </message>
    <message>
        <source>Writing the last pictures of %1.</source>
        <translation>正在写入 %1 的剩余图像。</translation>
    </message>
</context>
<context>
    <name>Viewer::MessageLogModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>调试</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation>致命错误</translation>
    </message>
</context>
<context>
    <name>Viewer::MessageLogPanel</name>
    <message>
        <source>All messages</source>
        <translation>所有消息</translation>
    </message>
    <message>
        <source>Information and graver</source>
        <translation>信息及以上</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>警告和错误</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>仅错误</translation>
    </message>
    <message>
        <source>Lowest level shown</source>
        <translation>显示的最低级别</translation>
    </message>
    <message>
        <source>Filter messages</source>
        <translation>筛选消息</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the selected messages, or all that are shown</source>
        <translation>复制所选消息；如果未选择，则复制显示的所有消息</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Remove all messages</source>
        <translation>清除所有消息</translation>
    </message>
</context>
<context>
    <name>Viewer::MessageLogService</name>
    <message>
        <source>Viewer</source>
        <translation>查看器</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
</context>
<context>
    <name>Viewer::PictureFile</name>
    <message>
        <source>There is not enough memory for the picture. Close other programs or choose a smaller image size.</source>
        <translation>内存不足，无法处理图像。请关闭其他应用程序，或选择较小的图像尺寸。</translation>
    </message>
</context>
<context>
    <name>Viewer::PictureSaver</name>
    <message>
        <source>Save Picture</source>
        <translation>保存图像</translation>
    </message>
    <message>
        <source>Pictures (*.png *.tif *.bmp *.jpg)</source>
        <translation>图像 (*.png *.tif *.bmp *.jpg)</translation>
    </message>
    <message>
        <source>%1 could not be written. Choose another folder or another kind of file, or make room on the disk.</source>
        <translation>无法写入 %1。请选择其他文件夹或文件格式，或释放磁盘空间。</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginManager</name>
    <message>
        <source>The plugin stands in the folder twice; %1 is used instead. Remove one of the two files.</source>
        <translation>文件夹中有两个相同的插件，将使用 %1。请删除其中一个文件。</translation>
    </message>
    <message>
        <source>It needs &quot;%1&quot; in version %2, which is not there; install it, or a version of this plugin for this viewer.</source>
        <translation>找不到所需的“%1”（版本 %2）。请安装它，或安装适用于此查看器的插件版本。</translation>
    </message>
    <message>
        <source>Its main class is not what it says.</source>
        <translation>插件的主类与其声明不符。</translation>
    </message>
    <message>
        <source>A service of the viewer that it needs is missing; install a version of the plugin for this viewer.</source>
        <translation>缺少所需的查看器服务。请安装适用于此查看器的插件版本。</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>It could not be initialized.</source>
        <translation>无法初始化。</translation>
    </message>
    <message>
        <source>It could not complete its start.</source>
        <translation>无法完成启动。</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginMetaData</name>
    <message>
        <source>Its list of what it depends on has an entry without name or version.</source>
        <translation>其依赖项列表中有缺少名称或版本的条目。</translation>
    </message>
    <message>
        <source>It has no metadata with name and version; rebuild it with them.</source>
        <translation>缺少包含名称和版本的元数据。请添加元数据后重新构建。</translation>
    </message>
    <message>
        <source>The file does not exist any more; install the plugin anew.</source>
        <translation>文件已不存在。请重新安装该插件。</translation>
    </message>
    <message>
        <source>It is no plugin, or was built with another version of Qt; remove the file or install a suitable one.</source>
        <translation>该文件不是插件，或是用其他版本的 Qt 构建的。请删除该文件或安装匹配的插件。</translation>
    </message>
    <message>
        <source>It was built against another interface, &quot;%1&quot; instead of &quot;%2&quot;; install a version for this viewer.</source>
        <translation>该插件是针对其他接口构建的（“%1”，而不是“%2”）。请安装适用于此查看器的版本。</translation>
    </message>
</context>
<context>
    <name>Viewer::PluginsDialog</name>
    <message>
        <source>Plugins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>There are no plugins.</source>
        <translation>没有插件。</translation>
    </message>
</context>
<context>
    <name>Viewer::Recorder</name>
    <message>
        <source>The folder %1 cannot be made. Choose another one for recordings.</source>
        <translation>无法创建文件夹 %1。请为录制选择其他文件夹。</translation>
    </message>
    <message>
        <source>A picture could not be written (%1). Make room on the disk or choose another folder.</source>
        <translation>无法写入图像（%1）。请释放磁盘空间或选择其他文件夹。</translation>
    </message>
    <message>
        <source>A picture could not be converted (%1). Choose another pixel format or another image size.</source>
        <translation>无法转换图像（%1）。请选择其他像素格式或图像尺寸。</translation>
    </message>
</context>
<context>
    <name>Viewer::RecordingCommands</name>
    <message numerus="yes">
        <source>The recording of %1 ended after %n picture(s). %2 What was recorded is in %3.</source>
        <translation>
            <numerusform>%1 的录制已结束，共录制 %n 帧。%2已录制的图像位于 %3。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Recorded %n picture(s) of %1 in %2. %3 more came too fast to be written, %4 failed in the camera; the numbers of the files show where.</source>
        <translation>
            <numerusform>已将 %1 的 %n 帧图像录制到 %2。另有 %3 帧因写入速度不足而丢失，相机端有 %4 帧采集失败；从文件编号可以看出缺失的位置。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Recorded %n picture(s) of %1 in %2.</source>
        <translation>
            <numerusform>已将 %1 的 %n 帧图像录制到 %2。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>录制(&amp;R)</translation>
    </message>
    <message>
        <source>Write the camera&apos;s pictures into files until pressed again</source>
        <translation>将相机的图像写入文件，直到再次按下</translation>
    </message>
    <message>
        <source>Recording &amp;Folder...</source>
        <translation>录制文件夹(&amp;F)...</translation>
    </message>
</context>
<context>
    <name>Viewer::ViewerApplication</name>
    <message>
        <source>A picture of %1 failed: %2</source>
        <translation>%1 的图像有问题：%2</translation>
    </message>
    <message>
        <source>The connection to %1 is lost. Reconnect the camera and open it again.</source>
        <translation>与 %1 的连接已断开。请重新连接相机，然后再次打开。</translation>
    </message>
    <message>
        <source>There is no camera &quot;%1&quot;; select one in the list.</source>
        <translation>没有相机“%1”，请在列表中选择相机。</translation>
    </message>
    <message>
        <source>There is no plugin in %1, so the viewer runs without tools. Install it again, or start it with the option --plugins and the folder of its plugins.</source>
        <translation>%1 中没有插件，查看器将不带工具运行。请重新安装查看器，或在启动时使用选项 --plugins 指定插件文件夹。</translation>
    </message>
    <message>
        <source>Plugin %1 %2 is loaded.</source>
        <translation>已加载插件 %1 %2。</translation>
    </message>
    <message>
        <source>Plugin %1 is left out. %2</source>
        <translation>未加载插件 %1。%2</translation>
    </message>
    <message>
        <source>About Ostria Viewer</source>
        <translation>关于 Ostria 查看器</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Ostria Viewer %1&lt;/h3&gt;&lt;p&gt;Shows the pictures of cameras, and what plugins do with them.&lt;/p&gt;&lt;p&gt;Licence: Apache 2.0. Built on Qt %2.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Ostria 查看器 %1&lt;/h3&gt;&lt;p&gt;显示相机的图像以及插件的处理结果。&lt;/p&gt;&lt;p&gt;许可证：Apache 2.0。基于 Qt %2。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>%1 was found.</source>
        <translation>已检测到 %1。</translation>
    </message>
    <message>
        <source>%1 can no longer be found.</source>
        <translation>已无法检测到 %1。</translation>
    </message>
    <message>
        <source>There are several cameras &quot;%1&quot;; select one in the list.</source>
        <translation>有多台名为“%1”的相机，请在列表中选择。</translation>
    </message>
</context>
<context>
    <name>Viewer::ViewerSettings</name>
    <message>
        <source>The settings file %1 cannot be read; the viewer starts with defaults and remembers nothing. Check the file&apos;s permissions.</source>
        <translation>无法读取设置文件 %1，查看器将以默认设置启动，并且不保存任何更改。请检查该文件的权限。</translation>
    </message>
    <message>
        <source>The settings file is damaged; the viewer starts with defaults. The old file was kept as %1.</source>
        <translation>设置文件已损坏，查看器将以默认设置启动。旧文件已保留为 %1。</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged; the viewer starts with defaults and remembers nothing. Remove the file.</source>
        <translation>设置文件 %1 已损坏，查看器将以默认设置启动，并且不保存任何更改。请删除该文件。</translation>
    </message>
    <message>
        <source>The settings were written by a newer viewer; this one starts with defaults and leaves them as they are. What you change is forgotten at the end.</source>
        <translation>这些设置是由较新版本的查看器保存的。此查看器将以默认设置启动，原有设置保持不变。您所做的更改在退出时会丢失。</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be written; what you change is forgotten at the end. Check the file&apos;s permissions and the room on its disk.</source>
        <translation>无法写入设置文件 %1，您所做的更改在退出时会丢失。请检查该文件的权限和磁盘剩余空间。</translation>
    </message>
</context>
</TS>
