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

/// Spaces that a line must not break at become such that it cannot; they read as spaces.
QString Joined(QString line)
{
    if (!line.contains(u'=')) return line;
    int depth = 0;
    for (QChar& c : line) {
        if (c == u'(') ++depth;
        if (c == u')') --depth;
        if (c == u' ' && depth > 0) c = QChar::Nbsp;
    }
    const auto last = line.lastIndexOf(u' ');
    if (last > 0 && line[last - 1] != u'=') line[last] = QChar::Nbsp;
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
