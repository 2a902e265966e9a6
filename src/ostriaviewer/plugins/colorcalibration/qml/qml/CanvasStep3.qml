// SPDX-License-Identifier: Apache-2.0
// The live image in which each patch shows its target, its original and its current color.
import QtQuick 2.6
import QtMultimedia 5.0
import "functions.js" as Utility

Item {
    id: page

    signal toolTipStandard(real mouseX, real mouseY, string toolTipText)

    VideoOutput {
        id: videoOutput
        objectName: "videoOutput"
        width: canvasStep3.transformedWidth
        height: canvasStep3.transformedHeight
        fillMode: VideoOutput.Stretch
        source: camera

        property bool initial: true

        function fitTransformation() {
            Utility.fitTransformation(canvasStep3)
            if (canvasStep3.transformedWidth < 1 || canvasStep3.transformedHeight < 1)
                return
            x = canvasStep3.transformedOffsetX
            y = canvasStep3.transformedOffsetY
            camera.size = Qt.size(canvasStep3.transformedWidth, canvasStep3.transformedHeight)
        }
    }

    Canvas {
        id: canvasStep3
        objectName: "canvasStep3"
        anchors.fill: parent

        property int transformedWidth: 0
        property int transformedHeight: 0
        property int transformedOffsetX: 0
        property int transformedOffsetY: 0

        function fillPolygon(ctx, color, points) {
            // Another patch's color would be a lie, so a color that is not known leaves the image.
            if (!color.valid)
                return
            ctx.fillStyle = color
            ctx.beginPath()
            ctx.moveTo(points[0].x, points[0].y)
            for (var i = 1; i < points.length; ++i)
                ctx.lineTo(points[i].x, points[i].y)
            ctx.closePath()
            ctx.fill()
        }

        function fit() {
            videoOutput.fitTransformation()
            Utility.repaint(canvasStep3)
        }

        onWidthChanged: fit()
        onHeightChanged: fit()

        onPaint: {
            var ctx = getContext("2d")
            ctx.reset()
            var count = grid.count()
            for (var i = 0; i < count; ++i) {
                var patch = grid.list[i]
                fillPolygon(ctx, grid.targetColorAt(i),
                            [patch.upperLeft, patch.upperRight, patch.center])
                fillPolygon(ctx, grid.originalColorAt(i),
                            [patch.upperLeft, patch.center, patch.bottomCenter, patch.lowerLeft])
            }
            ctx.strokeStyle = "black"
            ctx.lineWidth = 1
            for (i = 0; i < count; ++i)
                Utility.drawTrapezoid(ctx, grid.list[i])
        }
    }

    ContrastText {
        id: caption
        objectName: "caption"
        visible: false
    }

    MouseArea {
        objectName: "hoverArea"
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.NoButton

        function showCaption() {
            var color = grid.colorAtPoint(mouseX, mouseY)
            caption.visible = color.a !== 0
            caption.text = caption.visible ? grid.textOfColor(color) : ""
            caption.x = mouseX
            caption.y = mouseY - 10
        }

        function hideCaption() {
            caption.visible = false
            caption.text = ""
        }

        onEntered: showCaption()
        onPositionChanged: showCaption()
        onExited: hideCaption()
    }

    AutoRefreshCheckBox {
        id: autoRefresh
        anchors.top: parent.bottom
        anchors.topMargin: margin / 4 - distanceToImage
        onToolTip: Utility.showToolTip(page, autoRefresh, mouseX, mouseY, tShowAutoRefreshTooltip)
        onCloseToolTip: Utility.hideToolTip()
    }

    Connections {
        target: camera
        function onOriginalSizeChanged() {
            if (videoOutput.initial)
                canvasStep3.fit()
        }
    }

    Connections {
        target: qmlModelInterface
        function onCalibrationFinished() {
            Utility.repaint(canvasStep3)
        }
        function onCleanupQML() {
            Utility.cleanUpQml()
        }
    }

    Component.onCompleted: {
        if (autoRefreshChecked)
            camera.startGrab()
        else
            camera.singleGrab()
    }
}
