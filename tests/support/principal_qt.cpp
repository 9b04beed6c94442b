#include <QApplication>
#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    app.setStyle("Fusion");
    app.setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
