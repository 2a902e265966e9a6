// SPDX-License-Identifier: Apache-2.0
// The user sets of an emulated camera, kept in a file.
#include "usersets.h"

#include "genicamexception.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <utility>

namespace Cameras::Emulation {
namespace {

const QString factorySet = QStringLiteral("Default");
const QString setsKey = QStringLiteral("UserSets");
const QString startUpKey = QStringLiteral("UserSetDefault");

bool isSaved(const FeatureDefinition& feature)
{
    return feature.inUserSets && !feature.selecting;
}

QJsonArray cells(const FeatureDefinition& feature, const FeatureValues& values)
{
    QJsonArray result;
    for (int cell = 0; cell < values.table().cellCount(feature); ++cell)
        result.append(values.value(feature.name, cell));
    return result;
}

// Limits may depend on features that come later, so all values are taken before they are checked.
void apply(const FeatureDefinition& feature, const QJsonArray& stored, FeatureValues& values)
{
    if (stored.size() != values.table().cellCount(feature))
        return;
    for (int cell = 0; cell < stored.size(); ++cell)
        if (stored.at(cell).isDouble())
            values.set(feature.name, stored.at(cell).toDouble(), cell);
}

// Gives a feature's cells their factory value back where they have none that it takes.
void repair(const FeatureDefinition& feature, FeatureValues& values)
{
    for (int cell = 0; cell < values.table().cellCount(feature); ++cell) {
        const double value = values.value(feature.name, cell);
        values.set(feature.name,
                   values.accepts(feature, value) ? values.nearest(feature, value)
                                                  : FeatureTable::initialValue(feature, cell),
                   cell);
    }
}

::GenICam::RuntimeException unwritable(const QString& file)
{
    return ::GenICam::RuntimeException(
        QCoreApplication::translate("Cameras::Emulation::UserSets",
                                    "The user sets cannot be written to %1.")
            .arg(file)
            .toStdString());
}

} // namespace

UserSets::UserSets(std::shared_ptr<const FeatureTable> table, const QString& file)
    : m_table(std::move(table))
    , m_file(file)
    , m_startUpSet(factorySet)
{
    read();
}

/// \return  whether there is no file, or one of user sets
bool UserSets::read()
{
    constexpr qint64 longest = 4 * 1024 * 1024;
    QFile file(m_file);
    if (!file.exists())
        return true;
    if (!file.open(QIODevice::ReadOnly) || file.size() > longest)
        return false;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject())
        return false;
    const QJsonObject root = document.object();
    m_sets = root.value(setsKey).toObject();
    const QString startUp = root.value(startUpKey).toString();
    const FeatureDefinition* choice = m_table->find(startUpKey);
    if (!choice)
        return true;
    for (const EntryDefinition& entry : choice->entries)
        if (entry.name == startUp)
            m_startUpSet = startUp;
    return true;
}

/// What stands in the file may be all that somebody has, so it is moved, not written over.
void UserSets::readToChange()
{
    if (read())
        return;
    const QString name = m_file + QStringLiteral(".damaged");
    QString aside = name;
    for (int number = 2; QFile::exists(aside); ++number)
        aside = name + QString::number(number);
    if (!QFile::rename(m_file, aside))
        throw unwritable(m_file);
}

void UserSets::load(const QString& set, FeatureValues& values)
{
    // Another program may have saved it meanwhile.
    read();
    const QJsonObject stored = m_sets.value(set).toObject();
    for (int i = 0; i < m_table->size(); ++i) {
        const FeatureDefinition& feature = m_table->at(i);
        if (!isSaved(feature))
            continue;
        for (int cell = 0; cell < m_table->cellCount(feature); ++cell)
            values.set(feature.name, FeatureTable::initialValue(feature, cell), cell);
        if (set != factorySet)
            apply(feature, stored.value(feature.name).toArray(), values);
    }
    for (int i = 0; i < m_table->size(); ++i)
        if (isSaved(m_table->at(i)))
            repair(m_table->at(i), values);
}

void UserSets::save(const QString& set, const FeatureValues& values)
{
    const FeatureValues factory(m_table);
    QJsonObject stored;
    for (int i = 0; i < m_table->size(); ++i) {
        const FeatureDefinition& feature = m_table->at(i);
        const QJsonArray now = cells(feature, values);
        if (isSaved(feature) && now != cells(feature, factory))
            stored.insert(feature.name, now);
    }
    // Another program may have saved other sets meanwhile.
    const auto lock = lockFile();
    readToChange();
    QJsonObject sets = m_sets;
    sets.insert(set, stored);
    write(sets, m_startUpSet);
}

void UserSets::setStartUpSet(const QString& set)
{
    const auto lock = lockFile();
    readToChange();
    write(m_sets, set);
}

/// Nobody else changes the file as long as the lock lives.
std::unique_ptr<QLockFile> UserSets::lockFile() const
{
    constexpr int longestWaitMs = 5000;
    auto lock = std::make_unique<QLockFile>(m_file + QStringLiteral(".lock"));
    if (!QDir().mkpath(QFileInfo(m_file).absolutePath()) || !lock->tryLock(longestWaitMs))
        throw unwritable(m_file);
    return lock;
}

void UserSets::write(const QJsonObject& sets, const QString& startUpSet)
{
    const QByteArray text =
        QJsonDocument(QJsonObject{{setsKey, sets}, {startUpKey, startUpSet}}).toJson();
    QSaveFile file(m_file);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        throw unwritable(m_file);
    m_sets = sets;
    m_startUpSet = startUpSet;
}

} // namespace Cameras::Emulation
