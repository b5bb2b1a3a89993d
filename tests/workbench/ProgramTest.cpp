#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>

namespace linewright {

namespace {

struct Ended {
    int status;
    QString out;
    QString error;
};

/** Runs the program where there is no display. */
Ended Ending(const QStringList& arguments) {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(LINEWRIGHT_WORKBENCH), arguments);
    EXPECT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
}

TEST(ProgramTest, HelpAndVersionNeedNoDisplay) {
    const Ended help = Ending({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_TRUE(help.out.contains("--config-dir")) << qUtf8Printable(help.out);
    EXPECT_EQ(help.error, "");
    const Ended version = Ending({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.out.startsWith("linewright-workbench ")) << qUtf8Printable(version.out);
}

TEST(ProgramTest, ArgumentsThatItDoesNotKnowAreRefused) {
    const Ended extra = Ending({"extra"});
    EXPECT_EQ(extra.status, 2);
    EXPECT_EQ(extra.error, "linewright-workbench: \"extra\" is no option; --help lists them\n");
    const Ended unknown = Ending({"--unknown"});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_TRUE(unknown.error.contains("unknown"));
}

TEST(ProgramTest, WithoutADisplayItSaysSo) {
    const Ended ended = Ending({});
    EXPECT_EQ(ended.status, 2);
    EXPECT_EQ(ended.error,
              "linewright-workbench: there is no display that a window can be shown on\n");
}

}  // namespace

}  // namespace linewright
