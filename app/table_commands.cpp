// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "table_commands.h"

#include "interchange/import_error.h"
#include "interchange/table_diff.h"
#include "interchange/table_json.h"
#include "store/store_error.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>

namespace morvel::app {

namespace {

constexpr std::string_view kUsage =
    "usage: morvel-designer export --db FILE --table NAME [-o OUT]\n"
    "       morvel-designer import --db FILE IN [--as NAME] [--replace]\n"
    "       morvel-designer diff A B      (A and B: a JSON file, or FILE:TABLE)\n";

// A mistake on the command line: the message and the usage go to the person.
class UsageError : public Error {
public:
    using Error::Error;
};

// The command's options and positional arguments; each option appears once at most.
struct Arguments {
    std::vector<std::pair<std::string, std::string>> options;
    std::vector<std::string> positional;

    std::optional<std::string> option(std::string_view name) const {
        for (const auto& [key, value] : options)
            if (key == name)
                return value;
        return std::nullopt;
    }
    std::string required(std::string_view name) const {
        if (auto value = option(name))
            return *value;
        throw UsageError("the option " + std::string(name) + " is missing");
    }
};

// Reads `--name VALUE`, `--name=VALUE` and the flags given; anything else starting with '-' is
// refused.
Arguments parse(const std::vector<std::string>& arguments,
                std::initializer_list<std::string_view> valued,
                std::initializer_list<std::string_view> flags) {
    Arguments parsed;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument.size() < 2 || argument[0] != '-') {
            parsed.positional.push_back(argument);
            continue;
        }
        const auto equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        if (parsed.option(name))
            throw UsageError("the option " + name + " is given twice");
        if (std::find(flags.begin(), flags.end(), name) != flags.end() &&
            equals == std::string::npos) {
            parsed.options.emplace_back(name, "");
            continue;
        }
        if (std::find(valued.begin(), valued.end(), name) == valued.end())
            throw UsageError("unknown option " + argument);
        if (equals != std::string::npos) {
            parsed.options.emplace_back(name, argument.substr(equals + 1));
            continue;
        }
        if (++i == arguments.size())
            throw UsageError("the option " + name + " needs a value");
        parsed.options.emplace_back(name, arguments[i]);
    }
    return parsed;
}

void expectPositional(const Arguments& arguments, std::size_t count, const char* what) {
    if (arguments.positional.size() != count)
        throw UsageError(std::string("expected ") + what + ", got " +
                         std::to_string(arguments.positional.size()) + " arguments");
}

std::unique_ptr<SchemaDatabase> openExisting(const std::string& path,
                                             SchemaDatabase::Access access) {
    if (!std::filesystem::exists(path))
        throw StoreError("There is no database " + path + ".");
    return std::make_unique<SchemaDatabase>(std::filesystem::path(path), access);
}

int exportCommand(const std::vector<std::string>& arguments, std::ostream& out) {
    const Arguments parsed = parse(arguments, {"--db", "--table", "-o"}, {});
    expectPositional(parsed, 0, "no arguments besides the options");
    const auto database = openExisting(parsed.required("--db"), SchemaDatabase::Access::ReadOnly);
    const std::string text =
        interchange::writeTableJson(tableDocument(database->load(parsed.required("--table"))));
    if (const auto target = parsed.option("-o"))
        writeFileAtomically(*target, text);
    else
        out << text;
    return kTablesEqual;
}

// A JSON file, or FILE:TABLE of a database.
interchange::TableDocument documentOf(const std::string& argument) {
    if (std::filesystem::is_regular_file(argument)) {
        std::string text = readFile(argument);
        if (text.rfind("SQLite format 3", 0) != 0)
            return interchange::readTableJson(text);
    }
    const auto colon = argument.rfind(':');
    if (colon == std::string::npos || colon == 0)
        throw StoreError(
            std::filesystem::exists(argument)
                ? argument + " is a database: name its table as " + argument + ":TABLE."
                : "There is no file " + argument + " (give a JSON file or FILE:TABLE).");
    const auto database = openExisting(argument.substr(0, colon), SchemaDatabase::Access::ReadOnly);
    return tableDocument(database->load(std::string_view(argument).substr(colon + 1)));
}

// Names the file in an import error, whose message names only the place in it.
interchange::TableDocument documentNamed(const std::string& argument) {
    try {
        return documentOf(argument);
    } catch (const interchange::ImportError& error) {
        throw Error(argument + ": " + error.what() + ". Nothing was written.");
    }
}

int importCommand(const std::vector<std::string>& arguments, std::ostream& err) {
    const Arguments parsed = parse(arguments, {"--db", "--as"}, {"--replace"});
    expectPositional(parsed, 1, "one file to import");
    const std::string source = parsed.positional.front();
    const auto document = documentNamed(source);
    const std::string path = parsed.required("--db");
    SchemaDatabase database{std::filesystem::path(path)};
    TableInfo info;
    try {
        info = importTable(database, document, parsed.option("--as").value_or(""),
                           parsed.option("--replace").has_value());
    } catch (const TableNameError& error) {
        throw Error(std::string(error.what()) + " Give --replace to replace it, or --as NAME.");
    }
    err << "Imported " << source << " as the table \"" << info.name << "\" of " << path << ".\n";
    return kTablesEqual;
}

int diffCommand(const std::vector<std::string>& arguments, std::ostream& out) {
    const Arguments parsed = parse(arguments, {}, {});
    expectPositional(parsed, 2, "two definitions to compare");
    const auto lines = interchange::diffTables(documentNamed(parsed.positional[0]),
                                               documentNamed(parsed.positional[1]));
    for (const std::string& line : lines)
        out << line << '\n';
    return lines.empty() ? kTablesEqual : kTablesDiffer;
}

} // namespace

bool isTableCommand(int argc, char** argv) {
    if (argc < 2)
        return false;
    return std::strcmp(argv[1], "export") == 0 || std::strcmp(argv[1], "import") == 0 ||
           std::strcmp(argv[1], "diff") == 0;
}

int runTableCommand(const std::vector<std::string>& arguments, std::ostream& out,
                    std::ostream& err) {
    const std::string command = arguments.empty() ? "" : arguments.front();
    try {
        if (command == "export")
            return exportCommand(arguments, out);
        if (command == "import")
            return importCommand(arguments, err);
        if (command == "diff")
            return diffCommand(arguments, out);
        throw UsageError("unknown command \"" + command + "\"");
    } catch (const UsageError& error) {
        err << "morvel-designer " << command << ": " << error.what() << "\n" << kUsage;
    } catch (const Error& error) {
        err << "morvel-designer " << command << ": " << error.what() << "\n";
    }
    return kCommandFailed;
}

interchange::TableDocument tableDocument(const TableDefinition& table) {
    return {table.info.name, table.info.displayName, table.info.tableType, table.fields};
}

TableInfo importTable(SchemaDatabase& database, const interchange::TableDocument& document,
                      std::string_view name, bool replace) {
    TableDefinition table;
    table.info.name = name.empty() ? document.name : std::string(name);
    table.info.displayName = document.displayName;
    table.info.tableType = document.tableType;
    table.fields = document.fields;
    const auto existing = database.findTable(table.info.name);
    if (!existing) {
        database.saveAsNew(table);
        return table.info;
    }
    if (!replace)
        throw TableNameError("There is a table named \"" + existing->name +
                             "\" already: replace it, or import under another name.");
    table.info.id = existing->id;
    table.info.revision = existing->revision;
    database.save(table);
    return table.info;
}

void writeFileAtomically(const std::string& path, std::string_view bytes) {
    const std::string partial = path + ".partial";
    {
        std::ofstream file(partial, std::ios::binary | std::ios::trunc);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        file.close();
        if (!file) {
            std::error_code ignored;
            std::filesystem::remove(partial, ignored);
            throw Error("Could not write " + path + ".");
        }
    }
    std::error_code failed;
    std::filesystem::rename(partial, path, failed);
    if (failed)
        throw Error("Could not write " + path + ": " + failed.message() + ".");
}

std::string readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw Error("Could not read " + path + ".");
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace morvel::app
