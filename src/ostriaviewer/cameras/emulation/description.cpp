// SPDX-License-Identifier: Apache-2.0
// The GenICam description of an emulated camera.
#include "description.h"

#include <QByteArray>
#include <QStringList>
#include <QXmlStreamWriter>

#include <limits>

namespace Cameras::Emulation {
namespace {

QString number(double value)
{
    return QString::number(value, 'g', std::numeric_limits<double>::max_digits10);
}

// One variable of a formula.
QString variable(int index)
{
    return QStringLiteral("V%1").arg(index);
}

QString formula(const Condition& condition, const QString& name)
{
    QStringList terms;
    for (const qint64 value : condition.values)
        terms.append(QStringLiteral("(%1%2%3)")
                         .arg(name, condition.negated ? QStringLiteral("<>") : QStringLiteral("="))
                         .arg(value));
    return terms.join(condition.negated ? QStringLiteral("&&") : QStringLiteral("||"));
}

// Writes the nodes of one table. A feature's helper nodes have its name, an underscore and what
// they are for.
class Writer
{
public:
    Writer(const FeatureTable& table, const RegisterLayout& layout)
        : m_table(table)
        , m_layout(layout)
        , m_xml(&m_bytes)
    {}

    std::string write(const QString& modelName)
    {
        m_xml.setAutoFormatting(true);
        m_xml.writeStartDocument();
        writeHead(modelName);
        writeCategories();
        for (int i = 0; i < m_table.size(); ++i)
            writeFeature(i);
        m_xml.writeEmptyElement(QStringLiteral("Port"));
        m_xml.writeAttribute(QStringLiteral("Name"), QStringLiteral("Device"));
        m_xml.writeEndDocument();
        return m_bytes.toStdString();
    }

private:
    void writeHead(const QString& modelName);
    void writeCategories();
    void writeFeature(int index);
    void writeRegister(int index);
    void writeHelpers(const FeatureDefinition& feature);
    void writeFormula(const QString& node, const QString& name, const QVector<QString>& variables,
                      const QString& text);
    void writeCondition(const QString& name, const QVector<Condition>& conditions);
    void writeBound(const QString& name, const Bound& bound, FeatureKind kind);
    void writeBody(const FeatureDefinition& feature);
    void writeLimits(const FeatureDefinition& feature);
    void writeEntries(const FeatureDefinition& feature);
    void writeSelected(const FeatureDefinition& feature);

    void element(const char* name, const QString& text)
    {
        m_xml.writeTextElement(QString::fromLatin1(name), text);
    }
    void start(const QString& node, const QString& name)
    {
        m_xml.writeStartElement(node);
        m_xml.writeAttribute(QStringLiteral("Name"), name);
    }

    QString valueNode(const QString& feature) const
    {
        return feature + QStringLiteral("_Register");
    }

    const FeatureTable& m_table;
    const RegisterLayout& m_layout;
    QByteArray m_bytes;
    QXmlStreamWriter m_xml;
};

void Writer::writeHead(const QString& modelName)
{
    m_xml.writeStartElement(QStringLiteral("RegisterDescription"));
    const std::pair<const char*, QString> attributes[] = {
        {"ModelName", modelName},
        {"VendorName", QStringLiteral("Emulated Cameras")},
        {"StandardNameSpace", QStringLiteral("None")},
        {"SchemaMajorVersion", QStringLiteral("1")},
        {"SchemaMinorVersion", QStringLiteral("1")},
        {"SchemaSubMinorVersion", QStringLiteral("0")},
        {"MajorVersion", QStringLiteral("1")},
        {"MinorVersion", QStringLiteral("0")},
        {"SubMinorVersion", QStringLiteral("0")},
        {"ProductGuid", QStringLiteral("6a2f4a0e-5b0f-4a51-9f0d-3d5b1c8e7a10")},
        {"VersionGuid", QStringLiteral("0b1c7c53-9f0a-4b5e-8f62-6d1e2a9c4b11")},
        {"xmlns", QStringLiteral("http://www.genicam.org/GenApi/Version_1_1")},
    };
    for (const auto& [name, value] : attributes)
        m_xml.writeAttribute(QString::fromLatin1(name), value);
}

void Writer::writeCategories()
{
    QStringList categories;
    for (int i = 0; i < m_table.size(); ++i) {
        const QString& category = m_table.at(i).category;
        if (!category.isEmpty() && !categories.contains(category))
            categories.append(category);
    }
    start(QStringLiteral("Category"), QStringLiteral("Root"));
    for (const QString& category : categories)
        element("pFeature", category);
    m_xml.writeEndElement();
    for (const QString& category : categories) {
        start(QStringLiteral("Category"), category);
        for (int i = 0; i < m_table.size(); ++i)
            if (m_table.at(i).category == category)
                element("pFeature", m_table.at(i).name);
        m_xml.writeEndElement();
    }
}

QString nodeName(FeatureKind kind)
{
    switch (kind) {
    case FeatureKind::Integer:
        return QStringLiteral("Integer");
    case FeatureKind::Float:
        return QStringLiteral("Float");
    case FeatureKind::Boolean:
        return QStringLiteral("Boolean");
    case FeatureKind::Enumeration:
        return QStringLiteral("Enumeration");
    case FeatureKind::Command:
        return QStringLiteral("Command");
    case FeatureKind::String:
        break;
    }
    return QStringLiteral("StringReg");
}

void Writer::writeFeature(int index)
{
    const FeatureDefinition& feature = m_table.at(index);
    if (feature.kind != FeatureKind::String)
        writeRegister(index);
    if (feature.category.isEmpty())
        return;

    start(nodeName(feature.kind), feature.name);
    element("DisplayName", feature.name);
    element("Visibility", QStringLiteral("Beginner"));
    if (feature.availableWhile)
        element("pIsAvailable", feature.name + QStringLiteral("_Available"));
    if (!feature.lockedWhile.isEmpty())
        element("pIsLocked", feature.name + QStringLiteral("_Locked"));
    if (feature.kind == FeatureKind::String) {
        element("Address", QStringLiteral("0x%1").arg(m_layout.address(index), 0, 16));
        element("Length", QString::number(RegisterLayout::textSize));
        element("AccessMode", QStringLiteral("RO"));
        element("pPort", QStringLiteral("Device"));
    } else {
        if (feature.streamable)
            element("Streamable", QStringLiteral("Yes"));
        writeBody(feature);
    }
    m_xml.writeEndElement();
    writeHelpers(feature);
}

void Writer::writeRegister(int index)
{
    const FeatureDefinition& feature = m_table.at(index);
    if (feature.selecting) {
        start(QStringLiteral("Integer"), valueNode(feature.name));
        element("Value", QString::number(static_cast<qint64>(feature.initial.first())));
        m_xml.writeEndElement();
        return;
    }
    const bool isFloat = feature.kind == FeatureKind::Float;
    start(isFloat ? QStringLiteral("FloatReg") : QStringLiteral("IntReg"), valueNode(feature.name));
    element("Address", QStringLiteral("0x%1").arg(m_layout.address(index), 0, 16));
    if (!feature.selector.isEmpty()) {
        m_xml.writeStartElement(QStringLiteral("pIndex"));
        m_xml.writeAttribute(QStringLiteral("Offset"), QString::number(RegisterLayout::numberSize));
        m_xml.writeCharacters(valueNode(feature.selector));
        m_xml.writeEndElement();
    }
    element("Length", QString::number(RegisterLayout::numberSize));
    element("AccessMode", feature.writable ? QStringLiteral("RW") : QStringLiteral("RO"));
    element("pPort", QStringLiteral("Device"));
    element("Cachable", QStringLiteral("NoCache"));
    if (!isFloat)
        element("Sign", QStringLiteral("Signed"));
    element("Endianess", QStringLiteral("BigEndian"));
    m_xml.writeEndElement();
}

void Writer::writeBody(const FeatureDefinition& feature)
{
    writeEntries(feature);
    element("pValue", valueNode(feature.name));
    switch (feature.kind) {
    case FeatureKind::Boolean:
        element("OnValue", QStringLiteral("1"));
        element("OffValue", QStringLiteral("0"));
        break;
    case FeatureKind::Command:
        element("CommandValue", QStringLiteral("1"));
        break;
    case FeatureKind::Integer:
    case FeatureKind::Float:
        writeLimits(feature);
        break;
    case FeatureKind::Enumeration:
    case FeatureKind::String:
        break;
    }
    writeSelected(feature);
}

void Writer::writeLimits(const FeatureDefinition& feature)
{
    if (feature.minimum.feature.isEmpty())
        element("Min", number(feature.minimum.constant));
    else
        element("pMin", feature.name + QStringLiteral("_Minimum"));
    if (feature.maximum.feature.isEmpty())
        element("Max", number(feature.maximum.constant));
    else
        element("pMax", feature.name + QStringLiteral("_Maximum"));
    if (feature.kind == FeatureKind::Integer)
        element("Inc", QString::number(feature.increment));
    if (!feature.unit.isEmpty())
        element("Unit", feature.unit);
}

void Writer::writeEntries(const FeatureDefinition& feature)
{
    for (const EntryDefinition& entry : feature.entries) {
        start(QStringLiteral("EnumEntry"), entry.name);
        element("DisplayName", entry.displayName.isEmpty() ? entry.name : entry.displayName);
        if (entry.availableWhile)
            element("pIsAvailable", feature.name + QLatin1Char('_') + entry.name);
        element("Value", QString::number(entry.value));
        m_xml.writeEndElement();
    }
}

void Writer::writeSelected(const FeatureDefinition& feature)
{
    for (int i = 0; i < m_table.size(); ++i)
        if (m_table.at(i).selector == feature.name)
            element("pSelected", m_table.at(i).name);
}

void Writer::writeHelpers(const FeatureDefinition& feature)
{
    if (feature.availableWhile)
        writeCondition(feature.name + QStringLiteral("_Available"), {*feature.availableWhile});
    if (!feature.lockedWhile.isEmpty())
        writeCondition(feature.name + QStringLiteral("_Locked"), feature.lockedWhile);
    for (const EntryDefinition& entry : feature.entries)
        if (entry.availableWhile)
            writeCondition(feature.name + QLatin1Char('_') + entry.name, {*entry.availableWhile});
    writeBound(feature.name + QStringLiteral("_Minimum"), feature.minimum, feature.kind);
    writeBound(feature.name + QStringLiteral("_Maximum"), feature.maximum, feature.kind);
}

void Writer::writeFormula(const QString& node, const QString& name,
                          const QVector<QString>& variables, const QString& text)
{
    start(node, name);
    for (int i = 0; i < variables.size(); ++i) {
        m_xml.writeStartElement(QStringLiteral("pVariable"));
        m_xml.writeAttribute(QStringLiteral("Name"), variable(i));
        m_xml.writeCharacters(variables.at(i));
        m_xml.writeEndElement();
    }
    element("Formula", text);
    m_xml.writeEndElement();
}

void Writer::writeCondition(const QString& name, const QVector<Condition>& conditions)
{
    QVector<QString> variables;
    QStringList terms;
    for (const Condition& condition : conditions) {
        terms.append(QStringLiteral("(%1)").arg(formula(condition, variable(variables.size()))));
        variables.append(valueNode(condition.feature));
    }
    writeFormula(QStringLiteral("IntSwissKnife"), name, variables,
                 terms.join(QStringLiteral("||")));
}

void Writer::writeBound(const QString& name, const Bound& bound, FeatureKind kind)
{
    if (bound.feature.isEmpty())
        return;
    const QString text =
        QStringLiteral("%1+(%2)*%3").arg(number(bound.constant), number(bound.factor), variable(0));
    writeFormula(kind == FeatureKind::Float ? QStringLiteral("SwissKnife")
                                            : QStringLiteral("IntSwissKnife"),
                 name, {valueNode(bound.feature)}, text);
}

} // namespace

std::string describe(const QString& modelName, const FeatureTable& table,
                     const RegisterLayout& layout)
{
    return Writer(table, layout).write(modelName);
}

} // namespace Cameras::Emulation
