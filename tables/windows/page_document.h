#pragma once

#include "tables/page.h"

#include <QByteArray>

#include <memory>

class QTextDocument;

namespace tables {

/// The page as a document: its title, its table with the endings bold, and what a grammar has in place of the
/// forms that bear "sic".
std::unique_ptr<QTextDocument> documentOf(const Page& page);

/// The document as the bytes of a file: in HTML, and on sheets of A4 in the broad as PDF.
QByteArray htmlOf(const QTextDocument& document);
QByteArray pdfOf(const QTextDocument& document);

} // namespace tables
