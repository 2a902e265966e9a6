// SPDX-License-Identifier: Apache-2.0
// What several pages do alike. Runs in the scope of the page that imports it.

// Dashes from one point to the other; the whole line is never longer than asked for.
function drawDashed(ctx, fromX, fromY, toX, toY, dashLen) {
    var length = Math.sqrt(Math.pow(toX - fromX, 2) + Math.pow(toY - fromY, 2))
    if (length === 0)
        return
    var dashRatio = dashLen / length
    var reached = 0
    var count = 0
    ctx.moveTo(fromX, fromY)
    while (reached < 1 - dashRatio) {
        reached += dashRatio
        count++
        var x = fromX + (toX - fromX) * reached
        var y = fromY + (toY - fromY) * reached
        if (count % 2 === 1)
            ctx.lineTo(x, y)
        else
            ctx.moveTo(x, y)
    }
    count++
    if (count % 2 === 1)
        ctx.lineTo(toX, toY)
}

// Fits the camera's image into the canvas: as large as it goes, centered, at the top.
function fitTransformation(canvas) {
    var ratioX = camera.originalSize.width / canvas.width
    var ratioY = camera.originalSize.height / canvas.height
    var ratio = Math.max(ratioX, ratioY)
    if (!(ratioX > 0 && ratioY > 0) || !isFinite(ratio))
        return
    canvas.transformedWidth = camera.originalSize.width / ratio
    canvas.transformedHeight = camera.originalSize.height / ratio
    canvas.transformedOffsetX = (canvas.width - canvas.transformedWidth) / 2
    canvas.transformedOffsetY = 0
    distanceToImage = canvas.height - canvas.transformedHeight
    transformer.scale = ratio
    transformer.setX(canvas.transformedOffsetX)
    transformer.setY(canvas.transformedOffsetY)
}

// Paints a canvas anew in the next picture. A canvas that is known to be changed asks for no picture
// more while it is painted in this one, which would keep the picture after it waiting.
function repaint(canvas) {
    canvas.update()
    canvas.requestPaint()
}

function drawTrapezoid(ctx, t) {
    drawTrapezoidMoved(ctx, t, 0, 0)
}

function drawTrapezoidMoved(ctx, t, moveX, moveY) {
    ctx.beginPath()
    ctx.moveTo(t.lowerLeft.x + moveX, t.lowerLeft.y + moveY)
    ctx.lineTo(t.lowerRight.x + moveX, t.lowerRight.y + moveY)
    ctx.lineTo(t.upperRight.x + moveX, t.upperRight.y + moveY)
    ctx.lineTo(t.upperLeft.x + moveX, t.upperLeft.y + moveY)
    ctx.closePath()
    ctx.stroke()
}

function cleanUpQml() {
    camera.stopGrab()
    autoRefreshChecked = true
}

// Calibrates again with the grid and the brightness as they are; the settings come back if it fails.
// Returns whether it succeeded.
function autoCalibrate() {
    var succeeded = false
    stepBar.runAlone(function() {
        succeeded = calibrateAgain()
    })
    return succeeded
}

function calibrateAgain() {
    var errorText = ""
    if (!qmlModelInterface.applyInitialCameraImageAndPatchValues())
        errorText = qsTr("Unable to apply initial camera image and patch values.")
    var success = true
    if (!qmlModelInterface.setNeutralSettings()) {
        if (errorText === "")
            errorText = qsTr("Unable to set neutral settings.")
        success = false
    }
    if (success && !qmlModelInterface.applyInitialColorPatchValues()) {
        if (errorText === "")
            errorText = qsTr("Apply initial values failed.")
        success = false
    }
    if (success && !qmlModelInterface.executeCalibrationAndApply()) {
        if (errorText === "")
            errorText = qsTr("Calibration process failed.")
        success = false
    }
    if (success)
        return true
    if (stepBar.closed)
        return false
    console.log("Calibration process failed: Restore camera settings.")
    qmlModelInterface.restoreSettingsBackup()
    modelError.text = errorText
    modelError.open()
    return false
}

function setPageEnabled(enabled) {
    qmlModelInterface.singleShotEnabled = enabled && !autoRefreshChecked
    setNaviationEnabled(enabled)
    if (!autoRefreshChecked || stepBar.closed)
        return
    if (enabled)
        camera.startGrab()
    else
        camera.stopGrab()
}

function setNaviationEnabled(enabled) {
    if (enabled)
        enableNavigation()
    else
        disableNavigation()
}

function isHexRepresentation(hex) {
    return /^#([A-Fa-f0-9]{3}){1,2}$/.test(hex)
}

function convertHexToRGB(hex) {
    var digits = hex.substring(1)
    if (digits.length === 3)
        digits = digits.replace(/./g, "$&$&")
    var value = parseInt(digits, 16)
    return "R: " + (value >> 16 & 255) + " G: " + (value >> 8 & 255) + " B: " + (value & 255)
}

function convertModelValuesToRGB(modelObject) {
    for (var key in modelObject) {
        if (isHexRepresentation(modelObject[key]))
            modelObject[key] = convertHexToRGB(modelObject[key])
    }
}

// Asks the frame for the tooltip of an item of the page, beside the mouse.
function showToolTip(page, item, mouseX, mouseY, text) {
    var place = item.mapToItem(page, mouseX, mouseY)
    page.toolTipStandard(place.x, place.y, text)
    standardToolTip.visible = true
}

function hideToolTip() {
    standardToolTip.visible = false
}

// The path in a URL, as the native side takes it.
function pathOfUrl(url) {
    var text = url.toString()
    var path = text.replace(/^(file:\/{3})|(qrc:\/{2})|(http:\/{2})/, "")
    // Where paths begin with a slash, the third slash is part of the path.
    if (path !== text && text.indexOf("file:///") === 0 && Qt.platform.os !== "windows")
        path = "/" + path
    return decodeURIComponent(path)
}
