#pragma once

#include <QDir>
#include <QRegularExpression>

namespace vocabulary {

/// The names of the word lists in a folder, in the order of the alphabet.
inline QStringList listFilesIn(const QDir& folder)
{
    return folder.entryList({QStringLiteral("*.lst"), QStringLiteral("*.txt"), QStringLiteral("*.voc")},
                            QDir::Files, QDir::Name | QDir::IgnoreCase);
}

/// A name as it was typed, with ".lst" where it has no ending: a dot and one to four letters. What follows
/// the dot of "1. Deklination" or "Lektion 1.2" is part of the name.
inline QString withEnding(const QString& name)
{
    static const QRegularExpression ending(QStringLiteral("\\.[A-Za-z]{1,4}$"));
    return ending.match(name).hasMatch() ? name : name + QStringLiteral(".lst");
}

} // namespace vocabulary
