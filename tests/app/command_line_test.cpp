// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// morvel-designer as a person or a script runs it from the command line.
#include <QDir>
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

    // Bad input at start: each case says what it found, in a sentence, and only a database that
    // cannot be used stops the program.
    void badInputAtStartIsSaidPlainly() {
        QFile(folder.filePath("empty.morvel")).open(QIODevice::WriteOnly);
        QDir(folder.path()).mkdir("tables");
        struct Case {
            QStringList arguments;
            int exitCode;
            QString said;
        };
        const Case cases[] = {
            {{"--db", folder.filePath("tables")}, 2, "is a folder, not a database file"},
            {{"--db", folder.filePath("t.morvel"), "--table", "Invoices"},
             0,
             "There is no table \"Invoices\""},
            {{"--db", folder.filePath("empty.morvel")}, 0, "The empty file"},
            {{"stray"}, 1, "Unexpected argument \"stray\""},
        };
        for (const Case& c : cases) {
            const Run result =
                run(c.arguments + QStringList{"--screenshot", folder.filePath("z.png")});
            QCOMPARE(result.exitCode, c.exitCode);
            QVERIFY2(result.output.contains(c.said), qPrintable(result.output));
            QVERIFY2(!result.output.contains("I/O error"), qPrintable(result.output));
            const QStringList messages = result.output.split("morvel-designer: ").mid(1);
            QVERIFY(!messages.isEmpty());
            for (const QString& message : messages)
                QVERIFY2(message.front().isUpper(), qPrintable(message));
        }
    }
};

QTEST_GUILESS_MAIN(CommandLineTest)
#include "command_line_test.moc"
