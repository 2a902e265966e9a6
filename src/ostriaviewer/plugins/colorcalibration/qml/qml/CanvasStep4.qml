// SPDX-License-Identifier: Apache-2.0
// The image from before the calibration, left of a divider that can be moved, over the live one.
import QtQuick 2.6
import QtMultimedia 5.0
import "functions.js" as Utility

Item {
    id: page

    signal toolTipStandard(real mouseX, real mouseY, string toolTipText)

    function isInImage(x) {
        var border = (width - canvasLeft.transformedWidth) / 2
        return x > border && x < width - border
    }

    function adaptImageTextColor() {
        var x = dragLine.x
        before.opacity = x < before.x + before.width
                ? Math.max(0, (x - before.x) / before.width) : 1
        after.opacity = x > after.x ? Math.max(0, 1 - (x - after.x) / after.width) : 1
    }

    function moveDivider(x) {
        dragLine.x = x
        imageSlider.x = x - imageSlider.width / 2
        Utility.repaint(canvasLeft)
    }

    // The border is tested where the handle stands, so the divider may pass it by half a handle.
    // The way back is always open, or the arrow keys could not leave a border again.
    function stepDivider(step) {
        var outside = imageSlider.x - width / 2
        if (isInImage(imageSlider.x) || outside * step < 0)
            moveDivider(dragLine.x + step)
    }

    function centerDivider() {
        moveDivider(width / 2 + imageSlider.width / 2)
    }

    function fit() {
        videoOutput.fitTransformation()
        Utility.repaint(canvasLeft)
    }

    VideoOutput {
        id: videoOutput
        objectName: "videoOutput"
        width: canvasLeft.transformedWidth
        height: canvasLeft.transformedHeight
        fillMode: VideoOutput.Stretch
        source: camera

        property bool initial: true

        function fitTransformation() {
            Utility.fitTransformation(canvasLeft)
            if (canvasLeft.transformedWidth < 1 || canvasLeft.transformedHeight < 1)
                return
            x = canvasLeft.transformedOffsetX
            y = canvasLeft.transformedOffsetY
            camera.size = Qt.size(canvasLeft.transformedWidth, canvasLeft.transformedHeight)
        }
    }

    Canvas {
        id: canvasLeft
        objectName: "canvasLeft"
        anchors.fill: parent

        property int transformedWidth: 0
        property int transformedHeight: 0
        property int transformedOffsetX: 0
        property int transformedOffsetY: 0

        // The names of images come round, and those of earlier visits may still be in the cache.
        // The provider does not look at the name, so each visit can have names of its own.
        readonly property string visit: Date.now()
        property string imagefile: qmlModelInterface.originalImageUrl + "/" + visit
        property string oldimagefile
        property real imageWidth: 0
        property real imageHeight: 0

        onImagefileChanged: {
            if (oldimagefile !== "")
                unloadImage(oldimagefile)
            loadImage(imagefile)
            oldimagefile = imagefile
        }

        onImageLoaded: {
            imageWidth = 0
            imageHeight = 0
            Utility.repaint(canvasLeft)
        }

        onPaint: {
            // What was painted before stays until then, which avoids flicker.
            if (isImageLoading(imagefile))
                return
            var ctx = getContext("2d")
            ctx.reset()
            if (imageWidth === 0) {
                var image = ctx.createImageData(imagefile)
                imageWidth = image ? image.width : 0
                imageHeight = image ? image.height : 0
            }
            if (imageWidth === 0 || imageHeight === 0)
                return
            var ratio = Math.max(imageWidth / width, imageHeight / height)
            var w = imageWidth / ratio
            var h = imageHeight / ratio
            ctx.beginPath()
            ctx.rect(0, 0, dragLine.x, height)
            ctx.clip()
            ctx.drawImage(imagefile, 0, 0, imageWidth - 1, imageHeight - 1,
                          (width - w) / 2, 0, w, h)
        }

        onWidthChanged: {
            page.fit()
            if (imageSlider.x < transformedOffsetX
                    || imageSlider.x > width - transformedOffsetX - imageSlider.width / 2)
                page.centerDivider()
        }
        onHeightChanged: page.fit()
    }

    ContrastText {
        id: before
        objectName: "before"
        x: canvasLeft.transformedOffsetX + margin / 3
        y: margin / 3
        pixelSize: mIconSize
        text: tBeforeCalibration

        onXChanged: page.adaptImageTextColor()
        onWidthChanged: page.adaptImageTextColor()
    }

    ContrastText {
        id: after
        objectName: "after"
        x: canvasLeft.transformedOffsetX + canvasLeft.transformedWidth - width - margin / 3
        y: margin / 3
        pixelSize: mIconSize
        text: tAfterCalibration

        onXChanged: page.adaptImageTextColor()
        onWidthChanged: page.adaptImageTextColor()
    }

    Rectangle {
        id: dragLine
        objectName: "dragLine"
        width: 1
        height: canvasLeft.transformedHeight
        color: "black"

        onXChanged: page.adaptImageTextColor()

        Canvas {
            anchors.fill: parent
            onPaint: {
                var ctx = getContext("2d")
                ctx.reset()
                ctx.strokeStyle = "white"
                ctx.lineWidth = 1
                ctx.beginPath()
                Utility.drawDashed(ctx, 0.5, 0, 0.5, height, 5)
                ctx.stroke()
            }
        }
    }

    Rectangle {
        id: imageSlider
        objectName: "imageSlider"
        y: canvasLeft.transformedHeight
        width: mIconSize
        height: mIconSize
        color: "transparent"
        border.width: activeFocus ? 1 : 0
        border.color: "black"
        activeFocusOnTab: true

        Accessible.role: Accessible.Slider
        Accessible.name: tImageOverlayTooltip
        Keys.onLeftPressed: page.stepDivider(-1)
        Keys.onRightPressed: page.stepDivider(1)

        Image {
            anchors.fill: parent
            source: "qrc:/ColCal/imageslider.png"
        }

        MouseArea {
            id: sliderArea
            anchors.fill: parent
            hoverEnabled: true

            onEntered: Utility.showToolTip(page, imageSlider, mouseX, mouseY, tImageOverlayTooltip)
            onExited: Utility.hideToolTip()
            onPressed: imageSlider.forceActiveFocus()
            onPositionChanged: {
                if (!pressed)
                    return
                Utility.hideToolTip()
                var x = dragLine.x + mouseX
                if (page.isInImage(x))
                    page.moveDivider(x)
            }
        }
    }

    AutoRefreshCheckBox {
        id: autoRefresh
        anchors.top: parent.bottom
        // Below the way of the handle.
        anchors.topMargin: margin / 4 - distanceToImage + mIconSize
        onToolTip: Utility.showToolTip(page, autoRefresh, mouseX, mouseY, tShowAutoRefreshTooltip)
        onCloseToolTip: Utility.hideToolTip()
    }

    Connections {
        target: camera
        function onOriginalSizeChanged() {
            if (videoOutput.initial)
                page.fit()
        }
    }

    Connections {
        target: qmlModelInterface
        function onCleanupQML() {
            Utility.cleanUpQml()
        }
    }

    Component.onCompleted: {
        centerDivider()
        qmlModelInterface.grabOriginalImage()
        if (autoRefreshChecked)
            camera.startGrab()
        else
            camera.singleGrab()
    }
}
