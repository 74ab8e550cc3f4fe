#include "support/Doubles.h"

#include <QPdfWriter>

#include <gtest/gtest.h>

#include <algorithm>

namespace forcelab::test {

int ScriptedMessages::Show(QWidget* /*owner*/, int code, const std::string& text,
                           const std::string& title)
{
    Shown.push_back({code, title, text});
    if (AcceptAny) return kAnswerOk;
    if (Expected.empty()) {
        ADD_FAILURE() << "a message box that was not expected: " << title << ": " << text;
        return kAnswerOk;
    }
    const MsgBox expected = Expected.front();
    Expected.pop_front();
    EXPECT_EQ(code, expected.Code) << title;
    EXPECT_EQ(title, expected.Title);
    EXPECT_EQ(text, expected.Text);
    return expected.Answer;
}

QString ScriptedFiles::Next()
{
    ++Asked;
    if (Answers.empty()) return {};
    const QString answer = Answers.front();
    Answers.pop_front();
    return answer;
}

QString ScriptedFiles::OpenFile(QWidget* /*owner*/, const QString& /*title*/,
                                const QString& /*folder*/, const QString& /*filter*/)
{
    return Next();
}

QString ScriptedFiles::SaveFile(QWidget* /*owner*/, const QString& /*title*/,
                                const QString& /*proposal*/, const QString& /*filter*/)
{
    return Next();
}

std::unique_ptr<QPagedPaintDevice> ScriptedPrinters::AskForPrinter(QWidget* /*owner*/)
{
    ++Asked;
    if (PdfFile.isEmpty()) return nullptr;
    return std::make_unique<QPdfWriter>(PdfFile);
}

void RecordedHelp::Open(const std::string& helpFile, int topic)
{
    Opened.emplace_back(helpFile, topic);
}

std::optional<std::string> DescribedRegistry::Read(const std::string& key,
                                                   const std::string& name) const
{
    const auto found = Values.find({key, name});
    if (found == Values.end()) return std::nullopt;
    return found->second;
}

bool DescribedRegistry::FileExists(const std::string& path) const
{
    return std::find(Files.begin(), Files.end(), path) != Files.end();
}

bool DescribedRegistry::Run(const std::string& path)
{
    Started.push_back(path);
    return true;
}

} // namespace forcelab::test
