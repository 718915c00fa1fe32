// morvel-designer as a person or a script runs it from the command line.
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class CommandLineTest : public QObject {
    Q_OBJECT

private:
    struct Run {
        int exitCode;
        QString output;
    };
    static Run run(const QStringList& arguments) {
        QProcess process;
        process.setProgram(QStringLiteral(MORVEL_DESIGNER));
        process.setArguments(arguments);
        process.start();
        if (!process.waitForFinished(60000))
            return {-1, "did not finish"};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput() +
                                                      process.readAllStandardError())};
    }
    QTemporaryDir folder;

private slots:
    void helpAndVersionExitCleanly() {
        const Run help = run({"--help"});
        QCOMPARE(help.exitCode, 0);
        QVERIFY(help.output.contains("--screenshot"));
        const Run version = run({"--version"});
        QCOMPARE(version.exitCode, 0);
        QVERIFY(version.output.contains(MORVEL_VERSION));
    }

    void aScreenshotOfANewSampleDatabaseIsWritten() {
        const QString png = folder.filePath("designer.png");
        const Run shot = run({"--db", folder.filePath("sample.morvel"), "--screenshot", png});
        QCOMPARE(shot.exitCode, 0);
        const QImage image(png);
        QVERIFY(!image.isNull());
        QVERIFY(image.width() >= 333);
    }

    void aForeignFileIsRefusedUntouchedWithAReason() {
        const QString path = folder.filePath("notes.txt");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("shopping list\n");
        file.close();
        const Run refused = run({"--db", path, "--screenshot", folder.filePath("x.png")});
        QCOMPARE(refused.exitCode, 2);
        QVERIFY2(refused.output.contains("notes.txt"), qPrintable(refused.output));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("shopping list\n"));
        QVERIFY(!QFile::exists(folder.filePath("x.png")));
    }

    void anUnknownTableIsNamedInTheError() {
        const Run missing = run({"--db", folder.filePath("tables.morvel"), "--table", "Invoices",
                                 "--screenshot", folder.filePath("y.png")});
        QCOMPARE(missing.exitCode, 2);
        QVERIFY(missing.output.contains("\"Invoices\""));
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "command_line_test.moc"
