#include "app/qt_platform.h"

#include "app/sound_player.h"

#include <QApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QMessageBox>
#include <QProcess>
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
    auto* const box =
        new QMessageBox(QMessageBox::Information, QCoreApplication::applicationName(),
                        QString::fromStdString(text), QMessageBox::Ok, QApplication::activeWindow());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    QObject::connect(box, &QMessageBox::finished, box, std::move(dismissed));
    box->open();
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
