#include <clocale>

#include <gtest/gtest.h>
#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

/// The screen is GULLYMARK_SCREEN (WIDTHxHEIGHT) large, else as large as a designer's.
static void use_screen(const QString& configuration) {
    const QStringList size = qEnvironmentVariable("GULLYMARK_SCREEN", "1600x1000").split('x');
    const QJsonObject screen{{"name", "screen"},
                             {"x", 0},
                             {"y", 0},
                             {"width", size[0].toInt()},
                             {"height", size[1].toInt()},
                             {"logicalDpi", 96},
                             {"logicalBaseDpi", 96},
                             {"dpr", 1}};
    QFile file(configuration);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(QJsonObject{{"screens", QJsonArray{screen}}}).toJson());
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + configuration.toUtf8());
}

int main(int argc, char** argv) {
    const QTemporaryDir folder;
    if (qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") == "offscreen") {
        use_screen(folder.filePath("screen.json"));
    }
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
