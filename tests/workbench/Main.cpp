#include <gtest/gtest.h>

#include <QApplication>

// Without a screen, wherever it runs.
int main(int count, char** values) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&count, values);
    const QApplication program(count, values);
    return RUN_ALL_TESTS();
}
