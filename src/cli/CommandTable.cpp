#include "cli/CommandTable.h"

#include "cli/ApplyCommand.h"
#include "cli/HelpCommands.h"
#include "cli/ListCommands.h"
#include "cli/ShowCommands.h"
#include "cli/TableCommands.h"

using namespace Qt::StringLiterals;

const QList<Command> &allCommands() {
    static const Argument printer{u"PRINTER"_s, Takes::Printer},
        file{u"FILE"_s, Takes::SettingsFile}, table{u"TABLE.csv"_s, Takes::TableFile};
    static const Option json{u"json"_s, "DWT_Localize_Cli_Option_Json"},
        dryRun{u"dry-run"_s, "DWT_Localize_Cli_Option_DryRun"},
        yes{u"yes"_s, "DWT_Localize_Cli_Option_Yes"},
        again{u"again"_s, "DWT_Localize_Cli_Option_Again"},
        password{u"password-file"_s, "DWT_Localize_Cli_Option_PasswordFile", Takes::AnyFile,
                 u"F"_s},
        common{u"template"_s, "DWT_Localize_Cli_Option_Template", Takes::SettingsFile, u"FILE"_s},
        exitCode{u"exit-code"_s, "DWT_Localize_Cli_Option_ExitCode"},
        once{u"once"_s, "DWT_Localize_Cli_Option_Once"},
        timeout{u"timeout"_s, "DWT_Localize_Cli_Option_Timeout", Takes::Word, u"SECONDS"_s},
        keys{u"keys"_s, "DWT_Localize_Cli_Option_Keys", Takes::Keys, u"WHEN"_s},
        result{u"result"_s, "DWT_Localize_Cli_Option_Result", Takes::AnyFile, u"OUT.csv"_s};
    static const QList<Command> all{
        {u"list"_s, {}, {json}, "DWT_Localize_Cli_Help_List", u"list"_s, list},
        {u"show"_s, {printer}, {json}, "DWT_Localize_Cli_Help_Show", u"show Packing-Desk"_s, show},
        {u"check"_s,
         {file},
         {common, json},
         "DWT_Localize_Cli_Help_Check",
         u"check office.json"_s,
         check},
        {u"apply"_s,
         {printer, file},
         {dryRun, exitCode, yes, keys, password, json},
         "DWT_Localize_Cli_Help_Apply",
         u"apply Packing-Desk office.json --dry-run"_s,
         apply},
        {u"provision"_s,
         {table},
         {common, dryRun, exitCode, result, once, timeout, again, keys, password, json},
         "DWT_Localize_Cli_Help_Provision",
         u"provision table.csv --template office.json --result out.csv"_s,
         provision},
        {u"networks"_s,
         {printer},
         {json},
         "DWT_Localize_Cli_Help_Networks",
         u"networks Packing-Desk"_s,
         networks},
        {u"help"_s,
         {{u"COMMAND"_s, Takes::Command, true}},
         {},
         "DWT_Localize_Cli_Help_Help",
         u"help apply"_s,
         help},
        {u"complete"_s, {{u"WORD"_s, Takes::Nothing, true, true}}, {}, nullptr, {}, complete}};
    return all;
}
