#include "progress/sqlite/database.h"

#include <QSqlError>
#include <QUrl>
#include <QVariant>

#include <utility>

namespace progress {

namespace {

// Another window of the program writes for less than this; the learner does not feel it.
constexpr int MillisecondsForOthers = 50;

QString newConnectionName()
{
    static int connections = 0;
    return QStringLiteral("progress%1").arg(++connections);
}

// The result codes of SQLite, without what their upper bytes say in addition.
enum ResultCode {
    StatementDoesNotFit = 1,
    Busy = 5,
    TableLocked = 6,
    InputOutputFailed = 10,
    Corrupt = 11,
    DiskFull = 13,
    NoDatabase = 26,
};

Trouble troubleOf(int resultCode)
{
    switch (resultCode & 0xFF) {
    case Busy:
    case TableLocked:
        return Trouble::Locked;
    case InputOutputFailed:
    case DiskFull:
        return Trouble::Full;
    case StatementDoesNotFit:
        return Trouble::OtherTables;
    case Corrupt:
    case NoDatabase:
        return Trouble::Damaged;
    default:
        return Trouble::Unavailable;
    }
}

// Where the log is empty or gone, the file alone holds everything, and is read without a lock or a new log.
bool hasLog(std::filesystem::path file)
{
    file += "-wal";
    std::error_code missing;
    const auto bytes = std::filesystem::file_size(file, missing);
    return !missing && bytes > 0;
}

} // namespace

Database Database::writing(const std::filesystem::path& file)
{
    return {QString::fromStdString(file.string()),
            QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(MillisecondsForOthers)};
}

Database Database::readingOnly(const std::filesystem::path& file)
{
    const QString options =
        QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=%1").arg(MillisecondsForOthers);
    if (hasLog(file))
        return {QString::fromStdString(file.string()), options};
    const QByteArray name = QUrl::toPercentEncoding(QString::fromStdString(file.string()), "/");
    return {QStringLiteral("file:") + QString::fromLatin1(name) + QStringLiteral("?immutable=1"),
            options + QStringLiteral(";QSQLITE_OPEN_URI")};
}

Database::Database(const QString& name, const QString& options)
    : connection_(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), newConnectionName()))
{
    connection_.setDatabaseName(name);
    connection_.setConnectOptions(options);
    if (!connection_.open())
        note(connection_.lastError());
}

Database::Database(Database&& other) noexcept
    : connection_(std::exchange(other.connection_, {})), prepared_(std::move(other.prepared_)),
      trouble_(other.trouble_), inTransaction_(other.inTransaction_)
{
}

Database::~Database()
{
    const QString name = connection_.connectionName();
    if (name.isEmpty())
        return;
    prepared_.clear();
    connection_.close();
    connection_ = {};
    QSqlDatabase::removeDatabase(name);
}

void Database::run(std::string_view statement, std::initializer_list<QVariant> values, const ReadRow& readRow)
{
    if (trouble_ != Trouble::None)
        return;
    QSqlQuery* const query = prepared(statement);
    if (query == nullptr)
        return;
    int place = 0;
    for (const QVariant& value : values)
        query->bindValue(place++, value);
    query->exec();
    while (readRow && query->next())
        readRow(*query);
    if (query->lastError().isValid())
        note(query->lastError());
    query->finish();
}

qint64 Database::number(std::string_view statement, std::initializer_list<QVariant> values)
{
    qint64 found = 0;
    run(statement, values, [&found](const QSqlQuery& row) { found = row.value(0).toLongLong(); });
    return found;
}

void Database::begin()
{
    takeTrouble();
    run("BEGIN IMMEDIATE");
    inTransaction_ = trouble_ == Trouble::None;
}

Trouble Database::commit()
{
    run("COMMIT");
    const Trouble trouble = takeTrouble();
    if (trouble != Trouble::None && inTransaction_)
        run("ROLLBACK");
    inTransaction_ = false;
    // Some failures undo the transaction by themselves: then there is nothing to roll back.
    takeTrouble();
    return trouble;
}

Trouble Database::takeTrouble()
{
    return std::exchange(trouble_, Trouble::None);
}

QSqlQuery* Database::prepared(std::string_view statement)
{
    const auto known = prepared_.find(statement);
    if (known != prepared_.end())
        return &known->second;
    QSqlQuery query(connection_);
    query.setForwardOnly(true);
    if (query.prepare(QString::fromUtf8(statement.data(), static_cast<qsizetype>(statement.size()))))
        return &prepared_.emplace(statement, std::move(query)).first->second;
    note(query.lastError());
    return nullptr;
}

void Database::note(const QSqlError& error)
{
    if (trouble_ == Trouble::None)
        trouble_ = troubleOf(error.nativeErrorCode().toInt());
}

} // namespace progress
