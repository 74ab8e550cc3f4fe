#include "core/screen/NarrationBox.h"

#include "core/screen/Controls.h"

#include <QPlainTextEdit>
#include <QTextBlock>

namespace forcelab::screen {

namespace {

/// A line after an empty one, with text below, that is neither a sentence nor arithmetic.
bool IsHeading(const QTextBlock& block)
{
    const QString text = block.text();
    const QTextBlock before = block.previous();
    const QTextBlock after = block.next();
    return !text.isEmpty() && !before.text().trimmed().size() && after.isValid() &&
           !after.text().isEmpty() && !text.contains(u'=') && !text.endsWith(u'.') &&
           !text.endsWith(u':');
}

constexpr qsizetype kLongestWhole = 24; // letters of a pair of parentheses that stays in one line

/// Makes the spaces from `first` to `last` such that no line breaks at them; they read as spaces.
void Join(QString& line, qsizetype first, qsizetype last)
{
    for (qsizetype i = first; i <= last; ++i)
        if (line[i] == u' ') line[i] = QChar::Nbsp;
}

/// Keeps short parentheses in one line, and the last number with its unit.
QString Joined(QString line)
{
    if (!line.contains(u'=')) return line;
    qsizetype open = -1;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'(') open = i;
        if (line[i] != u')' || open < 0) continue;
        if (i - open < kLongestWhole) Join(line, open, i);
        open = -1;
    }
    const auto last = line.lastIndexOf(u' ');
    if (last > 0 && line[last - 1] != u'=') Join(line, last, last);
    return line;
}

} // namespace

void ShowNarration(QPlainTextEdit& box, std::string_view text)
{
    QStringList lines = Q(text).remove(u'\r').split(u'\n');
    for (QString& line : lines) line = Joined(line);
    box.setPlainText(lines.join(u'\n'));
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
        if (!IsHeading(block)) continue;
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(bold);
    }
    box.document()->clearUndoRedoStacks();
}

} // namespace forcelab::screen
