#include "pages/TextFilter.h"

#include <QString>
#include <algorithm>

#include "platform/ui/TextField.h"

void filterText(TextField *field, const QString &allowed) {
    QString text = field->text();
    const auto foreign = [&](QChar c) { return !allowed.contains(c); };
    const auto first = std::find_if(text.cbegin(), text.cend(), foreign);
    if (first == text.cend()) return;
    const auto last = std::find_if(text.crbegin(), text.crend(), foreign).base();
    const qsizetype begin = first - text.cbegin();
    text.remove(begin, last - first);
    // The change goes from the undo history, too: undoing it would only bring it back.
    field->takeBack();
    field->replaceText(text, static_cast<int>(begin));
}
