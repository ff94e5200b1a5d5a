#include <QApplication>
#include <QLocale>
#include <QStyleFactory>

#include <gtest/gtest.h>

int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The screenless platform complains that it can neither raise nor grab.
    qputenv("QT_LOGGING_RULES", "default.warning=false");
    qputenv("QT_HASH_SEED", "0");
    qputenv("LC_ALL", "C.UTF-8");
    QLocale::setDefault(QLocale::c());
    testing::InitGoogleTest(&argumentCount, arguments);
    const QApplication application(argumentCount, arguments);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
