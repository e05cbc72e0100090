#include "cli/Options.h"

#include <algorithm>

#include "platform/core/Nearest.h"
#include "platform/core/Texts.h"

using namespace Qt::StringLiterals;

namespace {

template <typename Row>
const Row *find(const QList<Row> &rows, const QString &name) {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const Row &row) { return row.name == name; });
    return found == rows.end() ? nullptr : &*found;
}

template <typename Row>
QStringList namesOf(const QList<Row> &rows) {
    QStringList names;
    for (const Row &row : rows) names << row.name;
    return names;
}

// Goes through the words after the command.
class Reader {
  public:
    explicit Reader(Options &options) : m_options(options) {}

    void read(const QStringList &words) {
        bool onlyArguments = false;  // after "--"
        for (qsizetype i = 0; i < words.size(); ++i) {
            const QString &word = words[i];
            if (onlyArguments || word == u"-" || !word.startsWith(u'-'))
                m_options.arguments << word;
            else if (word == u"--")
                onlyArguments = true;
            else
                readOption(word, words, i);
        }
        checkArguments();
    }

  private:
    // `at` is the place of the word, and becomes that of its value when that is a word of its own.
    void readOption(const QString &word, const QStringList &words, qsizetype &at) {
        if (word == u"-h" || word == u"--help") {
            m_options.shown = Options::Shown::Help;
            return;
        }
        const qsizetype sign = word.indexOf(u'=');
        const QString given = word.left(sign);
        const Option *const option =
            given.startsWith(u"--") ? find(m_options.command->options, given.mid(2)) : nullptr;
        if (!option) {
            const QString meant = nearestOf(given.mid(given.lastIndexOf(u'-', 1) + 1),
                                            namesOf(m_options.command->options) << u"help"_s);
            fail(wordsOfUnknownWord("DWT_Localize_Cli_BadOption",
                                    m_options.command->name + u' ' + given,
                                    meant.isEmpty() ? meant : u"--"_s + meant));
        } else if (option->takes == Takes::Nothing) {
            if (sign >= 0) fail(localized("DWT_Localize_Cli_NoValue").arg(given));
            m_options.options.insert(option->name, {});
        } else if (sign >= 0 || at + 1 < words.size()) {
            m_options.options.insert(option->name, sign >= 0 ? word.mid(sign + 1) : words[++at]);
        } else {
            fail(localized("DWT_Localize_Cli_Needs").arg(given, option->value));
        }
    }

    void checkArguments() {
        const QList<Argument> &wanted = m_options.command->arguments;
        const qsizetype given = m_options.arguments.size();
        const bool isOpen = !wanted.isEmpty() && wanted.last().isMany;
        if (given > wanted.size() && !isOpen)
            fail(localized("DWT_Localize_Cli_TooMany")
                     .arg(m_options.command->name, m_options.arguments[wanted.size()]));
        for (qsizetype i = given; i < wanted.size(); ++i)
            if (!wanted[i].isOptional)
                fail(localized("DWT_Localize_Cli_Needs")
                         .arg(m_options.command->name, wanted[i].name));
    }

    // Only the first fault is told.
    void fail(const QString &words) {
        if (m_options.error.isEmpty()) m_options.error = words;
    }

    Options &m_options;
};

}  // namespace

QString wordsOfUnknownWord(const char *key, const QString &word, const QString &meant) {
    const QString words = localized(key).arg(word);
    return meant.isEmpty() ? words : words + u' ' + localized("DWT_Localize_Cli_Meant").arg(meant);
}

Options optionsOf(const QStringList &arguments, const QList<Command> &commands) {
    Options options;
    const QString first = arguments.value(1);
    if (first == u"-h" || first == u"--help")
        options.shown = Options::Shown::Help;
    else if (first == u"-v" || first == u"--version")
        options.shown = Options::Shown::Version;
    else if (first.isEmpty())
        options.error = localized("DWT_Localize_Cli_NoCommand");
    else if (!(options.command = find(commands, first)))
        options.error = wordsOfUnknownWord("DWT_Localize_Cli_BadCommand", first,
                                           nearestOf(first, namesOf(commands)));
    else
        Reader(options).read(arguments.mid(2));
    return options;
}
