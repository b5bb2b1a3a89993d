#include <gtest/gtest.h>

#include <QApplication>

// Without a screen, unless a platform is asked for, and with the same fonts, wherever it runs.
int main(int count, char** values) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", LINEWRIGHT_FONTCONFIG);
    testing::InitGoogleTest(&count, values);
    const QApplication program(count, values);
    // Without a desktop's own look.
    QApplication::setStyle(QStringLiteral("Fusion"));
    return RUN_ALL_TESTS();
}
