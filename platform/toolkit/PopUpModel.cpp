#include "platform/toolkit/PopUpModel.h"

#include "platform/imaging/PictureReader.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QPixmap>

#include <algorithm>
#include <utility>

namespace {

constexpr char16_t kFirstWide = 0x1100; // from here on, letters are mostly as wide as two others

qsizetype guessedLength(const QString &title)
{
    return title.size() +
           std::ranges::count_if(title, [](QChar letter) { return letter >= kFirstWide; });
}

} // namespace

void PopUpModel::setItems(const std::vector<PopUpButton::Item> &items)
{
    beginResetModel();
    m_rows.clear();
    m_rows.reserve(items.size());
    m_rowOfObject.clear();
    m_rowOfObject.reserve(static_cast<qsizetype>(items.size()));
    for (const PopUpButton::Item &item : items) {
        const bool isFirst = !m_rowOfObject.contains(item.representedObject);
        if (isFirst && !item.representedObject.isNull())
            m_rowOfObject.insert(item.representedObject, static_cast<int>(m_rows.size()));
        m_rows.push_back({item});
    }
    endResetModel();
}

void PopUpModel::setPictures(PopUpButton::PictureOf pictureOf)
{
    m_pictureOf = std::move(pictureOf);
}

void PopUpModel::setDetails(PopUpButton::TextOf detailOf)
{
    m_detailOf = std::move(detailOf);
}

void PopUpModel::refreshDetails()
{
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1),
                           {PopUpButton::kDetailRole, Qt::AccessibleTextRole});
}

bool PopUpModel::hasItems(const std::vector<PopUpButton::Item> &items) const
{
    return std::ranges::equal(m_rows, items, {}, &Row::item);
}

QStringList PopUpModel::longestTitles(std::size_t most) const
{
    std::vector<std::pair<qsizetype, const Row *>> rows;
    rows.reserve(m_rows.size());
    for (const Row &row : m_rows)
        rows.emplace_back(guessedLength(row.item.title), &row);
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(std::min(most, rows.size()));
    std::ranges::partial_sort(rows, end, std::ranges::greater());
    QStringList titles;
    for (auto row = rows.begin(); row != end; ++row)
        titles += row->second->item.title;
    return titles;
}

QString PopUpModel::detailOf(const Row &row) const
{
    return m_detailOf ? m_detailOf(row.item.representedObject) : QString();
}

const PopUpModel::Row *PopUpModel::rowAt(int row) const
{
    const bool there = row >= 0 && row < static_cast<int>(m_rows.size());
    return there ? &m_rows[static_cast<std::size_t>(row)] : nullptr;
}

int PopUpModel::rowOfObject(const QString &object) const
{
    // A missing string equals an empty one, which an item may have.
    return object.isNull() ? -1 : m_rowOfObject.value(object, -1);
}

int PopUpModel::rowOfTitle(const QString &title) const
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [&](const Row &candidate) {
        return candidate.item.title == title;
    });
    return row == m_rows.end() ? -1 : static_cast<int>(row - m_rows.begin());
}

const QIcon &PopUpModel::iconOf(const Row &row) const
{
    if (!row.icon) {
        const QString path = m_pictureOf ? m_pictureOf(row.item.representedObject) : QString();
        row.icon = path.isNull() ? QIcon() : QIcon(QPixmap::fromImage(readPicture(path)));
    }
    return *row.icon;
}

QString PopUpModel::representedObject(int row) const
{
    const Row *found = rowAt(row);
    return found ? found->item.representedObject : QString();
}

bool PopUpModel::isEnabled(int row) const
{
    const Row *found = rowAt(row);
    return found && found->enabled;
}

void PopUpModel::setEnabled(int row, bool enabled)
{
    const Row *found = rowAt(row);
    if (!found || found->enabled == enabled)
        return;
    m_rows[static_cast<std::size_t>(row)].enabled = enabled;
    Q_EMIT dataChanged(index(row), index(row));
}

int PopUpModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant PopUpModel::data(const QModelIndex &index, int role) const
{
    const Row *row = rowAt(index.row());
    if (!row)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return row->item.title;
    case Qt::DecorationRole:
        return iconOf(*row);
    case Qt::UserRole:
        return row->item.representedObject;
    // The toolkit tells assistive technology nothing of an item that is disabled.
    case Qt::AccessibleDescriptionRole:
        return row->enabled ? QVariant()
                            : QCoreApplication::translate("PopUpButton", "Not available");
    case PopUpButton::kDetailRole:
        return detailOf(*row);
    case Qt::AccessibleTextRole: {
        const QString detail = detailOf(*row);
        return detail.isEmpty() ? row->item.title
                                : QStringLiteral("%1, %2").arg(row->item.title, detail);
    }
    default:
        return {};
    }
}

Qt::ItemFlags PopUpModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags item = Qt::ItemNeverHasChildren;
    return isEnabled(index.row()) ? item | Qt::ItemIsEnabled | Qt::ItemIsSelectable : item;
}
