#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace shell {

/// The program's texts are UTF-8; they become QString here, at the window's edge, and nowhere else.
inline QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace shell
