#include "cli/CommandTable.h"

#include "cli/ApplyCommand.h"
#include "cli/HelpCommands.h"
#include "cli/ListCommands.h"
#include "cli/SettingCommands.h"
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
        changeable{u"settings"_s, "DWT_Localize_Cli_Option_Settings"},
        only{u"only"_s, "DWT_Localize_Cli_Option_Only", Takes::Names, u"NAMES"_s},
        without{u"without"_s, "DWT_Localize_Cli_Option_Without", Takes::Names, u"NAMES"_s},
        result{u"result"_s, "DWT_Localize_Cli_Option_Result", Takes::AnyFile, u"OUT.csv"_s};
    static const QList<Command> all{
        {u"list"_s, {}, {json}, "DWT_Localize_Cli_Help_List", u"list"_s, list},
        {u"show"_s,
         {printer},
         {changeable, json},
         "DWT_Localize_Cli_Help_Show",
         u"show Packing-Desk"_s,
         show},
        {u"get"_s,
         {printer, {u"NAME"_s, Takes::ShownNames, false, true}},
         {json},
         "DWT_Localize_Cli_Help_Get",
         u"get Packing-Desk device.timeout wired.address"_s,
         get},
        {u"settings"_s, {}, {json}, "DWT_Localize_Cli_Help_Settings", u"settings"_s, listSettings},
        {u"diff"_s,
         {{u"A"_s, Takes::PrinterOrFile}, {u"B"_s, Takes::PrinterOrFile}},
         {exitCode, json},
         "DWT_Localize_Cli_Help_Diff",
         u"diff Packing-Desk office.json"_s,
         diff},
        {u"check"_s,
         {file},
         {common, json},
         "DWT_Localize_Cli_Help_Check",
         u"check office.json"_s,
         check},
        {u"apply"_s,
         {printer, file},
         {dryRun, exitCode, yes, only, without, keys, password, json},
         "DWT_Localize_Cli_Help_Apply",
         u"apply Packing-Desk office.json --dry-run"_s,
         apply},
        {u"set"_s,
         {printer, {u"NAME=VALUE"_s, Takes::Values, false, true}},
         {dryRun, exitCode, yes, keys, password, json},
         "DWT_Localize_Cli_Help_Set",
         u"set Packing-Desk device.timeout=90 wireless.key=@office.key"_s,
         set},
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
