// SPDX-License-Identifier: Apache-2.0
// The live image of steps 1 and 2 with the grid over it.
import QtQuick 2.6
import QtQuick.Controls 1.4
import QtMultimedia 5.0
import "functions.js" as Utility

Item {
    id: page

    signal toolTipStandard(real mouseX, real mouseY, string toolTipText)

    function onShowGridChanged() {
        if (showGrid.checked)
            qmlModelInterface.updateTrapezoidList()
        Utility.repaint(canvasStep12)
    }

    VideoOutput {
        id: videoOutput
        objectName: "videoOutput"

        property bool initial: true

        function fitTransformation() {
            Utility.fitTransformation(canvasStep12)
            if (canvasStep12.transformedWidth < 1 || canvasStep12.transformedHeight < 1)
                return
            x = canvasStep12.transformedOffsetX
            y = canvasStep12.transformedOffsetY
            camera.size = Qt.size(canvasStep12.transformedWidth, canvasStep12.transformedHeight)
        }

        width: canvasStep12.transformedWidth
        height: canvasStep12.transformedHeight
        fillMode: VideoOutput.Stretch
        source: camera
    }

    Canvas {
        id: canvasStep12
        objectName: "canvasStep12"

        property int imageWidth: 0
        property int imageHeight: 0
        // Whole pixels, as those of the image and of the transformer.
        property int transformedWidth: 0
        property int transformedHeight: 0
        property int transformedOffsetX: 0
        property int transformedOffsetY: 0
        property bool initial: true

        readonly property bool handlesVisible: showGrid.checked && !initial
                                               && qmlModelInterface.activeStep === iStep1

        function takeFirstImage() {
            imageWidth = camera.size.width
            imageHeight = camera.size.height
            if (initial) {
                Utility.fitTransformation(canvasStep12)
                if (stepBar.isCameraFree)
                    camera.singleGrab()
            }
            if (qmlModelInterface.initial) {
                qmlModelInterface.initial = false
                qmlModelInterface.getGridPosition()
            }
            fitDragPointsToOutlines()
        }

        function drawGrid(ctx, moved) {
            if (!moved)
                Utility.drawTrapezoidMoved(ctx, gridOutline, 0, 0)
            for (var i = 0; i < grid.count(); ++i)
                Utility.drawTrapezoidMoved(ctx, grid.list[i], moved, moved)
            if (moved)
                Utility.drawTrapezoidMoved(ctx, gridOutline, moved, moved)
        }

        function placeHandle(handle, corner) {
            handle.x = corner.x - mTouchPointRadius
            handle.y = corner.y - mTouchPointRadius
        }

        function fitDragPointsToOutlines() {
            placeHandle(upperLeft, gridOutline.upperLeft)
            placeHandle(upperRight, gridOutline.upperRight)
            placeHandle(lowerRight, gridOutline.lowerRight)
            placeHandle(lowerLeft, gridOutline.lowerLeft)
        }

        function isInsideImage(newX, newY) {
            return newX > transformedOffsetX && newX < transformedOffsetX + transformedWidth
                    && newY > transformedOffsetY && newY < transformedOffsetY + transformedHeight
        }

        // The corner may not cross the line between its neighbors: the outline stays convex there.
        function keepsOutline(newX, newY, first, second, opposite) {
            var vecX = first.x - second.x
            var vecY = first.y - second.y
            var newvecX = newX - second.x - mTouchPointRadius
            var newvecY = newY - second.y - mTouchPointRadius
            var oppX = newX - opposite.x - mTouchPointRadius
            var oppY = newY - opposite.y - mTouchPointRadius
            return vecX * newvecY - vecY * newvecX < 0 && oppX * newvecY - oppY * newvecX > 0
        }

        function moveCorner(handle, movedX, movedY) {
            var newX = movedX + handle.x + mTouchPointRadius
            var newY = movedY + handle.y + mTouchPointRadius
            if (!isInsideImage(newX, newY) || !handle.isInOrder(newX, newY)
                    || !keepsOutline(newX, newY, handle.first, handle.second, handle.opposite))
                return
            gridOutline[handle.objectName] = Qt.point(newX, newY)
            qmlModelInterface.updateTrapezoidList()
            Utility.repaint(canvasStep12)
        }

        function resetGrid() {
            var left = (width - transformedWidth) / 2 + mBorderDist - mTouchPointRadius
            var top = (height - transformedHeight) / 2 + mBorderDist - mTouchPointRadius
            var right = left + transformedWidth - 2 * mBorderDist - mTouchPointRadius
            var bottom = top + transformedHeight - 2 * mBorderDist - mTouchPointRadius
            resetCorner(upperLeft, left, top)
            resetCorner(upperRight, right, top)
            resetCorner(lowerRight, right, bottom)
            resetCorner(lowerLeft, left, bottom)
            qmlModelInterface.updateTrapezoidList()
            Utility.repaint(canvasStep12)
        }

        function resetCorner(handle, x, y) {
            handle.x = x
            handle.y = y
            gridOutline[handle.objectName] = Qt.point(x + mTouchPointRadius, y + mTouchPointRadius)
        }

        function fitToSize() {
            videoOutput.fitTransformation()
            Utility.repaint(canvasStep12)
            fitDragPointsToOutlines()
        }

        anchors.fill: parent
        onWidthChanged: fitToSize()
        onHeightChanged: fitToSize()

        onPaint: {
            if (imageWidth === 0)
                takeFirstImage()
            var ctx = getContext("2d")
            ctx.reset()
            ctx.strokeStyle = "black"
            ctx.lineWidth = 1
            if (!showGrid.checked || initial)
                return
            // Lines along the pixels, and twice, so that they show on dark and on bright pictures.
            ctx.translate(0.5, 0.5)
            drawGrid(ctx, 0)
            ctx.strokeStyle = "white"
            drawGrid(ctx, 1)
        }

        DragPoint {
            id: upperLeft
            objectName: "upperLeft"
            cornerName: qsTr("Upper left corner of the grid")

            readonly property Item first: upperRight
            readonly property Item second: lowerLeft
            readonly property Item opposite: lowerRight

            function isInOrder(newX, newY) {
                return newX < upperRight.x && newY < lowerLeft.y
            }
        }

        DragPoint {
            id: upperRight
            objectName: "upperRight"
            cornerName: qsTr("Upper right corner of the grid")

            readonly property Item first: lowerRight
            readonly property Item second: upperLeft
            readonly property Item opposite: lowerLeft

            function isInOrder(newX, newY) {
                return newX > upperLeft.x && newY < lowerRight.y
            }
        }

        DragPoint {
            id: lowerRight
            objectName: "lowerRight"
            cornerName: qsTr("Lower right corner of the grid")

            readonly property Item first: lowerLeft
            readonly property Item second: upperRight
            readonly property Item opposite: upperLeft

            function isInOrder(newX, newY) {
                return newX > lowerLeft.x && newY > upperRight.y
            }
        }

        DragPoint {
            id: lowerLeft
            objectName: "lowerLeft"
            cornerName: qsTr("Lower left corner of the grid")

            readonly property Item first: upperLeft
            readonly property Item second: lowerRight
            readonly property Item opposite: upperRight

            function isInOrder(newX, newY) {
                return newX < lowerRight.x && newY > upperLeft.y
            }
        }
    }

    Repeater {
        model: [upperLeft, upperRight, lowerRight, lowerLeft]

        Item {
            Binding {
                target: modelData
                property: "visible"
                value: canvasStep12.handlesVisible
            }

            Connections {
                target: modelData
                function onPointChanged(movedX, movedY) {
                    canvasStep12.moveCorner(modelData, movedX, movedY)
                }
                function onMousePressed() {
                    modelData.forceActiveFocus()
                }
                function onMouseReleased() {
                    canvasStep12.fitDragPointsToOutlines()
                }
                function onKeyPressed() {
                    checkTimerKeyDragging.isKeyDragging = true
                    checkTimerKeyDragging.start()
                }
            }
        }
    }

    // Arrow keys have no release: a handle that ran ahead of its corner comes back after a while.
    Timer {
        id: checkTimerKeyDragging
        objectName: "checkTimerKeyDragging"

        property bool isKeyDragging: false

        interval: 5000
        repeat: true
        onTriggered: {
            if (!isKeyDragging)
                return
            canvasStep12.fitDragPointsToOutlines()
            isKeyDragging = false
        }
    }

    CheckBox {
        id: showGrid
        objectName: "showGrid"
        anchors {
            top: canvasStep12.bottom
            topMargin: margin / 4 - distanceToImage
            left: canvasStep12.left
        }
        enabled: false
        checked: qmlModelInterface.showGrid
        style: checkBoxStyle
        text: tTextShowGrid
        onCheckedChanged: qmlModelInterface.showGrid = checked
        onClicked: page.onShowGridChanged()
        onHoveredChanged: {
            if (hovered)
                Utility.showToolTip(page, showGrid, width / 2, height / 2, tTextShowGridTooltip)
            else
                Utility.hideToolTip()
        }
    }

    AutoRefreshCheckBox {
        id: autoRefresh
        anchors { top: showGrid.top; left: showGrid.right; leftMargin: 2 * margin }
        onToolTip: Utility.showToolTip(page, autoRefresh, mouseX, mouseY, tShowAutoRefreshTooltip)
        onCloseToolTip: Utility.hideToolTip()
    }

    Connections {
        target: camera
        function onOriginalSizeChanged() {
            if (videoOutput.initial)
                canvasStep12.fitToSize()
        }
        function onImageChanged() {
            showGrid.enabled = true
            if (!canvasStep12.initial)
                return
            // Else it begins when the camera has been led to another step.
            if (autoRefreshChecked && stepBar.isCameraFree)
                camera.startGrab()
            if (showGrid.checked)
                qmlModelInterface.updateTrapezoidList()
            canvasStep12.fitDragPointsToOutlines()
            canvasStep12.initial = false
            Utility.repaint(canvasStep12)
        }
        function onImageFailed() {
            showGrid.enabled = false
        }
    }

    Connections {
        target: gridOutline
        function onResetOutline() {
            canvasStep12.resetGrid()
        }
    }

    Connections {
        target: qmlModelInterface
        function onAutoChartFindFinished(valid) {
            qmlModelInterface.getGridPosition()
            canvasStep12.fitDragPointsToOutlines()
            Utility.repaint(canvasStep12)
        }
        function onCleanupQML() {
            checkTimerKeyDragging.stop()
            Utility.cleanUpQml()
        }
    }
}
