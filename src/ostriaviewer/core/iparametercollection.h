// SPDX-License-Identifier: Apache-2.0
// All features of a camera by name.
#pragma once

#include "coreexport.h"
#include "iparameter.h"

#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVersionNumber>

#include <vector>

namespace Core::ParameterCollection {

using ParameterPtr = QSharedPointer<IParameter>;
using FloatParameterPtr = QSharedPointer<IFloatParameter>;
using IntegerParameterPtr = QSharedPointer<IIntegerParameter>;
using BooleanParameterPtr = QSharedPointer<IBooleanParameter>;
using EnumerationParameterPtr = QSharedPointer<IEnumerationParameter>;
using CommandParameterPtr = QSharedPointer<ICommandParameter>;

/// A group of features, as the camera sorts them for people.
struct FeatureCategory
{
    QString name;
    QString displayName;
    QStringList features; ///< by name, in the camera's order
    std::vector<FeatureCategory> categories;
};

/// A camera's features.
///
/// A name is a feature's name, "Gain", or one with its node map, "@CameraDevice/Gain". Names joined
/// by a bar are alternatives: the first that the camera has counts. A feature that the camera does
/// not have, or that is of another kind, gives an empty parameter, never a null pointer. Parameters
/// may outlive the collection; after the camera is closed they throw. Thread-safe.
class OSTRIAVIEWER_CORE_EXPORT IParameterCollection
{
public:
    IParameterCollection() = default;
    IParameterCollection(const IParameterCollection&) = delete;
    IParameterCollection& operator=(const IParameterCollection&) = delete;
    virtual ~IParameterCollection() = default;

    /// A feature of any kind.
    virtual ParameterPtr parameter(const QString& name) = 0;
    virtual FloatParameterPtr floatParameter(const QString& name) = 0;
    virtual IntegerParameterPtr integerParameter(const QString& name) = 0;
    virtual BooleanParameterPtr booleanParameter(const QString& name) = 0;
    virtual EnumerationParameterPtr enumerationParameter(const QString& name) = 0;
    virtual CommandParameterPtr commandParameter(const QString& name) = 0;

    /// The categories below the camera's root; none if it has none. Reads no values.
    virtual std::vector<FeatureCategory> categories() const { return {}; }

    /// The version of the Standard Features Naming Convention that the camera follows.
    virtual QVersionNumber sfncVersion() const = 0;

    /// Writes all settings as feature stream text.
    /// \param out      receives the text
    /// \param nodeMap  "@CameraDevice"
    /// \throws GenICam::RuntimeException  the camera cannot be read, or there is no such node map
    virtual void saveFeatures(QString& out, const QString& nodeMap) = 0;

    /// Applies feature stream text line by line. A line that cannot be applied is skipped.
    /// \param errors  receives a line for each that was skipped, with its number, after very many
    ///                only how many more there are; empty if none was skipped
    /// \throws GenICam::RuntimeException  connection lost, or there is no such node map
    virtual void loadFeatures(const QString& text, QString& errors, const QString& nodeMap) = 0;
};

using ParameterCollectionPtr = QSharedPointer<IParameterCollection>;

} // namespace Core::ParameterCollection
