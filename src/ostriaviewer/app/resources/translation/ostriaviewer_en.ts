<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Viewer::RecordingCommands</name>
    <message numerus="yes">
        <source>The recording of %1 ended after %n picture(s). %2 What was recorded is in %3.</source>
        <translation>
            <numerusform>The recording of %1 ended after %n picture. %2 What was recorded is in %3.</numerusform>
            <numerusform>The recording of %1 ended after %n pictures. %2 What was recorded is in %3.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Recorded %n picture(s) of %1 in %2. %3 more came too fast to be written, %4 failed in the camera; the numbers of the files show where.</source>
        <translation>
            <numerusform>Recorded %n picture of %1 in %2. %3 more came too fast to be written, %4 failed in the camera; the numbers of the files show where.</numerusform>
            <numerusform>Recorded %n pictures of %1 in %2. %3 more came too fast to be written, %4 failed in the camera; the numbers of the files show where.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Recorded %n picture(s) of %1 in %2.</source>
        <translation>
            <numerusform>Recorded %n picture of %1 in %2.</numerusform>
            <numerusform>Recorded %n pictures of %1 in %2.</numerusform>
        </translation>
    </message>
</context>
</TS>
