#pragma once

#include "shell/language_texts.h"

#include <QString>

#include <string>
#include <string_view>

namespace shell {

/// The program's texts are UTF-8; they become QString here, at the window's edge, and nowhere else.
inline QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A text in the language of the interface, or else as windows are designed with it.
inline QString fromUtf8(const LanguageTexts& texts)
{
    return fromUtf8(texts.currentOrDesigned());
}

/// A text with another sign for the blanks that a reader would miss: before it, behind it, or one more
/// within.
inline QString withUnseenBlanksAs(QString text, QChar sign)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isUnseen = i == 0 || i == text.size() - 1 || text.at(i + 1) == u' ';
        if (text.at(i) == u' ' && isUnseen)
            text[i] = sign;
    }
    return text;
}

} // namespace shell
