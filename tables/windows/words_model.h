#pragma once

#include "tables/words.h"

#include <QSortFilterProxyModel>
#include <QStandardItemModel>

namespace tables {

/// The listed words under their groups.
class WordsModel : public QStandardItemModel {
    Q_OBJECT

public:
    using QStandardItemModel::QStandardItemModel;

    /// Whether the words, or how they are named, have changed since they were listed.
    bool isOutOfDate() const;

    /// Lists them anew.
    void list();

    /// The word of a row; none for a group.
    std::optional<Word> wordAt(const QModelIndex& index) const;

    /// The row of a word; none where it is not listed.
    QModelIndex indexOf(const Word& word) const;

private:
    struct Group {
        QString title;
        QStringList names;

        bool operator==(const Group&) const = default;
    };
    static std::vector<Group> named(const std::vector<WordGroup>& groups);

    std::vector<WordGroup> words_;
    std::vector<Group> names_;
};

/// Keeps the words, under their groups, whose names have in them what was typed: capitals and marks do not
/// count.
class WordsFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit WordsFilter(QObject* parent = nullptr);

    void setTyped(const QString& typed);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QString letters_;
};

} // namespace tables
