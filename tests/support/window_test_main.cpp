#include <QApplication>
#include <QLocale>
#include <QStyleFactory>

#include <cstdio>
#include <gtest/gtest.h>

namespace {

// The screenless platform complains that it can neither raise nor grab.
void leaveOutScreenless(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

} // namespace

int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_HASH_SEED", "0");
    qputenv("LC_ALL", "C.UTF-8");
    QLocale::setDefault(QLocale::c());
    qInstallMessageHandler(&leaveOutScreenless);
    testing::InitGoogleTest(&argumentCount, arguments);
    const QApplication application(argumentCount, arguments);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
