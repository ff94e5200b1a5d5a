#include <QApplication>
#include <QLocale>
#include <QStyleFactory>

#include <clocale>
#include <gtest/gtest.h>

int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_HASH_SEED", "0");
    qputenv("LC_ALL", "C.UTF-8");
    QLocale::setDefault(QLocale::c());
    testing::InitGoogleTest(&argumentCount, arguments);
    const QApplication application(argumentCount, arguments);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
