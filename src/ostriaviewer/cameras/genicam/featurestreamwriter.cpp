// SPDX-License-Identifier: Apache-2.0
// Writes a camera's settings as text.
#include "featurestream_p.h"

#include "enumerationfeature_p.h"
#include "genicamexception.h"
#include "logging.h"
#include "nodemap_p.h"
#include "numberfeature_p.h"
#include "textfeature_p.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

namespace Cameras::GenICam {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::GenICam::FeatureStream)
};

/// A selector with more positions is written at the present one alone.
constexpr quint64 mostPositions = 4096;

struct Block;

/// A feature, or a block of features that depend on one more selector.
struct Item
{
    int feature;
    std::unique_ptr<Block> block;
};

/// What is to be written for each position of a selector.
struct Block
{
    int selector;
    std::vector<Item> items;
};

Block& innerBlock(Block& block, int selector)
{
    for (Item& item : block.items)
        if (item.block && item.block->selector == selector)
            return *item.block;
    block.items.push_back({-1, std::make_unique<Block>(Block{selector, {}})});
    return *block.items.back().block;
}

bool isWanted(const Feature& feature)
{
    return hasText(feature) && feature.isStreamable();
}

/// The blocks of a whole node map, in the order of the category tree.
Block planBlocks(const FeatureTree& tree)
{
    const int count = static_cast<int>(tree.features().size());
    const auto isWantedAt = [&tree](int index) {
        return isWanted(tree.features()[static_cast<std::size_t>(index)]);
    };
    QSet<int> inUse;
    QSet<int> outermost;
    for (int index = 0; index < count; ++index) {
        const std::vector<int>& selectors = tree.selectorsOf(index);
        if (selectors.empty() || !isWantedAt(index))
            continue;
        outermost.insert(selectors.front());
        for (const int selector : selectors)
            inUse.insert(selector);
    }

    Block root{-1, {}};
    for (int index = 0; index < count; ++index) {
        // A block writes its selector itself.
        if (outermost.contains(index))
            innerBlock(root, index);
        if (inUse.contains(index) || !isWantedAt(index))
            continue;
        Block* block = &root;
        for (const int selector : tree.selectorsOf(index))
            block = &innerBlock(*block, selector);
        block->items.push_back({index, nullptr});
    }
    return root;
}

QStringList enumerationPositions(const Feature& selector)
{
    QStringList result;
    for (const auto& entry : enumerationEntryList(selector))
        if (entry.isSettable)
            result.append(entry.name);
    return result;
}

QStringList integerPositions(const Feature& selector)
{
    const qint64 minimum = integerMinimum(selector);
    const qint64 maximum = integerMaximum(selector);
    const auto increment = static_cast<quint64>(integerIncrement(selector));
    QStringList result;
    if (maximum < minimum)
        return result;
    const quint64 steps =
        (static_cast<quint64>(maximum) - static_cast<quint64>(minimum)) / increment;
    if (steps >= mostPositions)
        return result;
    for (quint64 step = 0; step <= steps; ++step)
        result.append(QString::number(minimum + static_cast<qint64>(step * increment)));
    return result;
}

/// The texts of all positions that a selector can take now, of the present one alone if it cannot
/// be moved and put back.
QStringList positions(const Feature& selector, const QString& present)
{
    QStringList result;
    if (selector.kind() == FeatureKind::Enumeration)
        result = enumerationPositions(selector);
    else if (selector.kind() == FeatureKind::Integer)
        result = integerPositions(selector);
    else if (selector.kind() == FeatureKind::Boolean)
        result = QStringList{QStringLiteral("0"), QStringLiteral("1")};
    return result.contains(present) ? result : QStringList{present};
}

/// Puts a selector back, also when reading fails.
class SelectorPosition
{
public:
    explicit SelectorPosition(const Feature& selector)
        : m_selector(selector)
        , m_original(featureText(selector))
    {}

    ~SelectorPosition()
    {
        try {
            restore();
        } catch (const ::GenICam::RuntimeException& refusal) {
            tell(QString::fromStdString(refusal.what()));
        }
    }
    SelectorPosition(const SelectorPosition&) = delete;
    SelectorPosition& operator=(const SelectorPosition&) = delete;

    const QString& original() const { return m_original; }

    void moveTo(const QString& position)
    {
        if (featureText(m_selector) == position)
            return;
        m_isMoved = true;
        setFeatureText(m_selector, position);
    }

    void restore()
    {
        if (m_isMoved)
            setFeatureText(m_selector, m_original);
        m_isMoved = false;
    }

private:
    /// The failure that brought us here is the one to report. That this is left behind is not said
    /// by it.
    void tell(const QString& reason) const
    {
        Core::Logging::createLogEntry(
            Core::Logging::Warning, Core::Logging::getCatId(QStringLiteral("Cameras")),
            Texts::tr("%1: %2 could not be put back while settings were read; set it to \"%3\". "
                      "(%4)")
                .arg(m_selector.map().camera(), m_selector.name(), m_original, reason));
    }

    const Feature& m_selector;
    QString m_original;
    bool m_isMoved = false;
};

class Writer
{
public:
    Writer(NodeMapPrivate& map, const FeatureStreamHead& head)
        : m_map(map)
        , m_tree(map.tree())
    {
        writeComment(QStringLiteral("Feature stream 1"));
        writeComment(QStringLiteral("Model: ") + head.modelName);
        writeComment(QStringLiteral("SFNC: ") + head.sfncVersion.toString());
        writeComment(QStringLiteral("Date: ") +
                     QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
    }

    void writeItems(const Block& block)
    {
        for (const Item& item : block.items) {
            if (item.block)
                writeBlock(*item.block);
            else
                writeFeature(feature(item.feature));
        }
    }

    QString text() const { return m_text; }

private:
    const Feature& feature(int index) const
    {
        return m_tree.features()[static_cast<std::size_t>(index)];
    }

    /// Whatever the camera calls itself, a comment stays one line.
    void writeComment(const QString& comment)
    {
        m_text += QLatin1String("# ") + comment.simplified() + QLatin1Char('\n');
    }

    void writeLine(const Feature& feature, const QString& value)
    {
        m_text += feature.name() + QLatin1Char('\t') + value + QLatin1Char('\n');
    }

    void writeFeature(const Feature& feature)
    {
        if (!feature.isSurelyReadWrite())
            return;
        // Written back changed it would be worse than not at all.
        if (const std::optional<QString> value = restorableText(feature))
            writeLine(feature, *value);
    }

    void writeBlock(const Block& block)
    {
        const Feature& selector = feature(block.selector);
        if (!hasText(selector) || !selector.isSurelyReadWrite()) {
            writeItems(block);
            return;
        }
        SelectorPosition position(selector);
        const QStringList all = positions(selector, position.original());
        // Of a camera that does not answer no position can be taken.
        m_map.requireConnection();
        for (const QString& next : all) {
            position.moveTo(next);
            writeLine(selector, next);
            writeItems(block);
        }
        position.restore();
        writeLine(selector, position.original());
    }

    const NodeMapPrivate& m_map;
    const FeatureTree& m_tree;
    QString m_text;
};

} // namespace

QString writeFeatureStream(NodeMapPrivate& map, const FeatureStreamHead& head)
{
    map.requireConnection();
    Writer writer(map, head);
    writer.writeItems(planBlocks(map.tree()));
    return writer.text();
}

} // namespace Cameras::GenICam
