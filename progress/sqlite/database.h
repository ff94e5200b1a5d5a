#pragma once

#include "progress/trouble.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <filesystem>
#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

namespace progress {

/// A connection to an SQLite file. Statements are prepared once. After trouble it does nothing more until the
/// trouble is taken or a transaction begins; one in which there was trouble is undone.
class Database {
public:
    /// Connects to a file, for reading and writing, or so that nothing in it can be changed; then no file is
    /// made beside it either, unless its log was left behind.
    static Database writing(const std::filesystem::path& file);
    static Database readingOnly(const std::filesystem::path& file);

    Database(Database&& other) noexcept;
    Database& operator=(Database&&) = delete;
    ~Database();

    using ReadRow = std::function<void(const QSqlQuery&)>;

    /// Runs a statement with the values of its "?"s in their order; shows each row that it finds.
    void run(std::string_view statement, std::initializer_list<QVariant> values = {}, const ReadRow& = {});

    /// The number in the first column of the first row; 0 where there is none.
    qint64 number(std::string_view statement, std::initializer_list<QVariant> values = {});

    void begin();
    Trouble commit();

    Trouble takeTrouble();

private:
    Database(const QString& name, const QString& options);

    QSqlQuery* prepared(std::string_view statement);
    void note(const QSqlError& error);

    QSqlDatabase connection_;
    std::map<std::string, QSqlQuery, std::less<>> prepared_;
    Trouble trouble_ = Trouble::None;
    bool inTransaction_ = false;
};

} // namespace progress
