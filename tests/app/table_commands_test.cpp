// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
// export, import and diff as a script runs them, one step after another on the same files.
#include "store/sample_schema.h"
#include "store/temp_dir.h"
#include "table_commands.h"

#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace morvel::app {
namespace {

TEST(TableCommands, ExportImportAndDiffAsAScriptUsesThem) {
    const testing::TempDir folder;
    const std::map<std::string, std::string> paths{{"{db}", folder.file("a.morvel").string()},
                                                   {"{db2}", folder.file("b.morvel").string()},
                                                   {"{a}", folder.file("a.json").string()},
                                                   {"{b}", folder.file("b.json").string()},
                                                   {"{bad}", folder.file("bad.json").string()},
                                                   {"{none}", folder.file("none.morvel").string()}};
    {
        SchemaDatabase database(paths.at("{db}"));
        writeSampleSchema(database);
    }
    testing::writeBytes(paths.at("{bad}"),
                        "{\n  \"format\": 1,\n  \"table\": 3,\n  \"fields\": []\n}\n");

    struct Step {
        std::vector<std::string> arguments;
        int exitCode;
        std::string out;
        std::string err;
    };
    const std::vector<Step> steps{
        {{"export", "--db", "{db}", "--table", "Orders", "-o", "{a}"}, 0, "", ""},
        {{"export", "--db={db}", "--table", "Orders"}, 0, "\"name\": \"Orders\"", ""},
        // Into a database that did not exist: export, import, export gives the same bytes.
        {{"import", "--db", "{db2}", "{a}"}, 0, "", "as the table \"Orders\""},
        {{"export", "--db", "{db2}", "--table", "Orders", "-o", "{b}"}, 0, "", ""},
        {{"diff", "{a}", "{db2}:Orders"}, 0, "", ""},
        {{"import", "--db", "{db}", "{a}"}, 2, "", "--replace"},
        {{"import", "--db", "{db}", "{a}", "--replace"}, 0, "", ""},
        {{"import", "--db", "{db}", "--as", "Copy", "{a}"}, 0, "", ""},
        {{"diff", "{db}:Orders", "{db}:Copy"},
         1,
         "Changed table name: \"Orders\" -> \"Copy\"\n",
         ""},
        {{"import", "--db", "{db}", "{bad}", "--as", "Broken"},
         2,
         "",
         "line 3, column 12: the table must be an object"},
        {{"export", "--db", "{db}", "--table", "Broken"}, 2, "", "Broken"},
        {{"export", "--db", "{db}"}, 2, "", "--table is missing"},
        {{"diff", "{a}"}, 2, "", "usage:"},
        {{"import", "--db", "{db}", "{a}", "--colour", "red"}, 2, "", "unknown option --colour"},
        {{"export", "--db", "{none}", "--table", "Orders"}, 2, "", "There is no database"},
        {{"diff", "{a}", "{db}:Nope"}, 2, "", "Nope"},
    };
    for (const Step& step : steps) {
        std::vector<std::string> arguments;
        std::string shown;
        for (std::string argument : step.arguments) {
            shown += argument + " ";
            for (const auto& [placeholder, path] : paths)
                if (const auto at = argument.find(placeholder); at != std::string::npos)
                    argument.replace(at, placeholder.size(), path);
            arguments.push_back(argument);
        }
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(runTableCommand(arguments, out, err), step.exitCode) << shown << err.str();
        EXPECT_NE(out.str().find(step.out), std::string::npos) << shown << out.str();
        EXPECT_NE(err.str().find(step.err), std::string::npos) << shown << err.str();
        if (step.out.empty() && step.arguments.front() != "export") {
            EXPECT_EQ(out.str(), "") << shown;
        }
    }
    EXPECT_EQ(testing::fileBytes(paths.at("{b}")), testing::fileBytes(paths.at("{a}")));
    EXPECT_FALSE(SchemaDatabase(paths.at("{db}")).findTable("Broken"));
}

} // namespace
} // namespace morvel::app
