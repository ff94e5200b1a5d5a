#include "app/qt_platform.h"

#include "app/qt_texts.h"
#include "app/sound_player.h"
#include "shell/kit/layout.h"

#include <QApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QTime>
#include <QTimer>

#include <utility>

namespace app {

float QtPlatform::secondsSinceMidnight() const
{
    constexpr float millisecondsOfSecond = 1000;
    return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / millisecondsOfSecond;
}

platform::Moment QtPlatform::now() const
{
    const QDateTime now = QDateTime::currentDateTime();
    return {.secondsSinceEpoch = now.toSecsSinceEpoch(), .secondsEastOfUtc = now.offsetFromUtc()};
}

void QtPlatform::waitForEvents(std::chrono::milliseconds atMost)
{
    QTimer alarm;
    alarm.setSingleShot(true);
    alarm.setTimerType(Qt::PreciseTimer);
    alarm.start(atMost);
    QEventLoop loop;
    loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void QtPlatform::beep()
{
    QApplication::beep();
}

void QtPlatform::playSound(const std::string& waveFile)
{
    if (SoundPlayer* const player = soundPlayer())
        player->play(waveFile);
}

bool QtPlatform::soundIsPlaying() const
{
    const SoundPlayer* const player = loadedSoundPlayer();
    return player != nullptr && player->isPlaying();
}

bool QtPlatform::startProgram(const std::string& commandLine)
{
    QStringList words = QProcess::splitCommand(QString::fromStdString(commandLine));
    return !words.isEmpty() && QProcess::startDetached(words.takeFirst(), words);
}

void QtPlatform::showMessage(const std::string& text, std::function<void()> dismissed)
{
    translateQtTexts();
    auto* const box =
        new QMessageBox(QMessageBox::Information, QCoreApplication::applicationName(),
                        QString::fromStdString(text), QMessageBox::Ok, QApplication::activeWindow());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    QObject::connect(box, &QMessageBox::finished, box, std::move(dismissed));
    box->open();
}

namespace {

// The first ending of a kind of files: "HTML (*.html *.htm)".
QString endingOf(const QString& kind)
{
    const qsizetype begin = kind.indexOf(QLatin1String("*.")) + 2;
    return kind.mid(begin).section(QRegularExpression(QStringLiteral("[ )]")), 0, 0);
}

} // namespace

void QtPlatform::chooseFileToSave(const std::string& name, const std::vector<std::string>& kinds,
                                  std::function<void(const std::string& path)> chosen)
{
    translateQtTexts();
    auto* const dialog = new QFileDialog(QApplication::activeWindow());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    const QString offered = QString::fromStdString(name);
    dialog->setDefaultSuffix(QFileInfo(offered).suffix());
    QStringList filters;
    for (const std::string& kind : kinds)
        filters << QString::fromStdString(kind);
    dialog->setNameFilters(filters);
    dialog->selectFile(offered);
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog,
                     [dialog](const QString& kind) { dialog->setDefaultSuffix(endingOf(kind)); });
    QObject::connect(
        dialog, &QFileDialog::fileSelected, dialog,
        [chosen = std::move(chosen)](const QString& path) { chosen(QFile::encodeName(path).toStdString()); });
    dialog->resize(dialog->sizeHint().boundedTo(dialog->screen()->availableSize() * shell::ShareOfScreen));
    dialog->open();
}

void QtPlatform::endProgram(int exitStatus)
{
    ending_ = true;
    QCoreApplication::exit(exitStatus);
}

bool QtPlatform::ending() const
{
    return ending_;
}

} // namespace app
