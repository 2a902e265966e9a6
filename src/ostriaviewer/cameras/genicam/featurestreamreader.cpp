// SPDX-License-Identifier: Apache-2.0
// Applies a camera's settings from text.
#include "featurestream_p.h"

#include "genicamexception.h"
#include "nodemap_p.h"
#include "shown_p.h"
#include "textfeature_p.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <QVector>

#include <limits>

namespace Cameras::GenICam {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::GenICam::FeatureStream)
};

constexpr int mostErrors = 1000;
constexpr int mostPasses = 5;

/// Of a text with more of them no pass is likely to help, and each takes seconds.
constexpr int mostRefusals = 1000;

/// What a badly written line may have meant as its name.
QStringRef firstWord(const QStringRef& line)
{
    const QStringRef words = line.trimmed();
    int end = 0;
    while (end < words.size() &&
           (words.at(end).isLetterOrNumber() || words.at(end) == QLatin1Char('_')))
        ++end;
    return words.left(end);
}

class Errors
{
public:
    void add(int line, const QString& reason)
    {
        ++m_count;
        if (m_count <= mostErrors)
            m_text += Texts::tr("Line %1: %2\n").arg(line).arg(reason);
    }

    int count() const { return m_count; }

    QString text() const
    {
        if (m_count <= mostErrors)
            return m_text;
        return m_text + Texts::tr("And %1 more lines.\n").arg(m_count - mostErrors);
    }

private:
    QString m_text;
    int m_count = 0;
};

/// One pass over a text.
class Reader
{
public:
    explicit Reader(NodeMapPrivate& map)
        : m_map(map)
    {}

    void readLine(int number, QStringRef line)
    {
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            return;
        const int tab = line.indexOf(QLatin1Char('\t'));
        const QStringRef name = tab < 0 ? line : line.left(tab);
        if (tab < 0)
            passOver(number, line, Texts::tr("\"%1\" has no tab and no value.").arg(shown(line)));
        else if (const Feature* feature = find(name))
            apply(number, *feature, line.mid(tab + 1).toString());
        else
            passOver(number, name, Texts::tr("the camera has no feature \"%1\".").arg(shown(name)));
    }

    const Errors& errors() const { return m_errors; }

    /// How many values features have refused.
    int refusals() const { return m_refusals; }

private:
    const Feature* find(const QStringRef& name)
    {
        const QString key = name.toString();
        const auto known = m_features.constFind(key);
        if (known != m_features.constEnd())
            return &*known;
        const Feature feature = Feature::find(m_map, key);
        return feature.isEmpty() ? nullptr : &*m_features.insert(key, feature);
    }

    /// A line that is badly written may have been a selector's.
    void passOver(int number, const QStringRef& line, const QString& reason)
    {
        m_errors.add(number, reason);
        if (const Feature* feature = find(firstWord(line)))
            lose(m_map.tree().indexOf(feature->name()));
    }

    void lose(int index)
    {
        if (index >= 0)
            m_lostSelectors.insert(index);
    }

    void apply(int number, const Feature& feature, const QString& value)
    {
        const int index = m_map.tree().indexOf(feature.name());
        try {
            requireRestorable(feature, index);
            requireSelectors(feature, index);
            setFeatureText(feature, value);
            m_lostSelectors.remove(index);
        } catch (const ::GenICam::RuntimeException& refusal) {
            m_map.requireConnection();
            m_errors.add(number, QString::fromStdString(refusal.what()));
            ++m_refusals;
            lose(index);
        }
    }

    void requireSelectors(const Feature& feature, int index) const
    {
        if (index < 0 || m_lostSelectors.isEmpty())
            return;
        for (const int selector : m_map.tree().selectorsOf(index))
            if (m_lostSelectors.contains(selector))
                feature.fail(
                    Texts::tr("skipped, as %1 could not be set")
                        .arg(m_map.tree().features()[static_cast<std::size_t>(selector)].name()));
    }

    /// What no backup holds could not be given back.
    void requireRestorable(const Feature& feature, int index) const
    {
        if (hasText(feature) && (index < 0 || !m_map.tree().isStreamed(index)))
            feature.fail(Texts::tr("skipped, as it is not saved with the camera's settings"));
        if (feature.kind() == FeatureKind::Text && feature.isReadable() && !restorableText(feature))
            feature.fail(Texts::tr("skipped, as its present text could not be given back"));
    }

    NodeMapPrivate& m_map;
    QHash<QString, Feature> m_features;
    QSet<int> m_lostSelectors;
    Errors m_errors;
    int m_refusals = 0;
};

void readAll(Reader& reader, const QString& text)
{
    int number = 1;
    // Some editors begin a file with a byte order mark.
    int start = text.startsWith(QChar(QChar::ByteOrderMark)) ? 1 : 0;
    while (start < text.size()) {
        int end = text.indexOf(QLatin1Char('\n'), start);
        if (end < 0)
            end = text.size();
        reader.readLine(number, text.midRef(start, end - start));
        start = end + 1;
        ++number;
    }
}

} // namespace

QString readFeatureStream(NodeMapPrivate& map, const QString& text)
{
    map.requireConnection();
    int fewest = std::numeric_limits<int>::max();
    for (int pass = 1;; ++pass) {
        Reader reader(map);
        readAll(reader, text);
        const int count = reader.errors().count();
        const bool mayHelp = reader.refusals() > 0 && reader.refusals() <= mostRefusals;
        if (!mayHelp || count >= fewest || pass == mostPasses)
            return reader.errors().text();
        fewest = count;
    }
}

} // namespace Cameras::GenICam
