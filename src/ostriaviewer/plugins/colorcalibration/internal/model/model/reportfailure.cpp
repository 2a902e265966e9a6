// SPDX-License-Identifier: Apache-2.0
// How failures of the model become log entries.
#include "reportfailure.h"

#include "baseexception.h"
#include "logging.h"

#include <exception>

namespace ColorCalibration {
namespace {

QString describeCurrentException(const QString& function)
{
    try {
        throw;
    } catch (const Core::Exception::BaseException& exception) {
        return QStringLiteral("%1:%2").arg(function, exception.getMessage());
    } catch (const std::exception& exception) {
        return QStringLiteral("%1: %2").arg(function, QString::fromUtf8(exception.what()));
    } catch (...) {
        return QStringLiteral("%1: Unspecified exception occurred.").arg(function);
    }
}

} // namespace

void reportFailure(const QString& message, const QString& function, const QString& category)
{
    const Core::Logging::CatId id = Core::Logging::getCatId(category);
    if (!message.isEmpty())
        Core::Logging::createLogEntry(Core::Logging::Warning, id, message);
    Core::Logging::createLogEntry(Core::Logging::Warning, id, describeCurrentException(function));
}

QString currentExceptionText()
{
    try {
        throw;
    } catch (const Core::Exception::BaseException& exception) {
        return exception.getMessage();
    } catch (const std::exception& exception) {
        return QString::fromUtf8(exception.what());
    } catch (...) {
        return QStringLiteral("Unspecified exception occurred.");
    }
}

QString modelLogCategory()
{
    return QStringLiteral("ostria.viewer.plugins.colorCalibration.colorCorrectionModel");
}

QString adapterLogCategory()
{
    return QStringLiteral("ostria.viewer.plugins.colorCalibration.cameraJustify");
}

} // namespace ColorCalibration
