#include <gtest/gtest.h>

#include <QApplication>

// Without a screen and with the same fonts, wherever it runs.
int main(int count, char** values) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", LINEWRIGHT_FONTCONFIG);
    testing::InitGoogleTest(&count, values);
    const QApplication program(count, values);
    return RUN_ALL_TESTS();
}
