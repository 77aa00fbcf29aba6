// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/odbc/one_statement.h"

#include "base/text.h"
#include "data/error.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dn::data::odbc {
namespace {

/// Reserved words that begin a statement and stand in the middle of none of those that are looked at.
constexpr std::array starters{
    "ADD",         "ALTER",    "BACKUP", "BEGIN",      "BREAK",      "BULK",     "CHECKPOINT", "CLOSE",
    "COMMIT",      "CONTINUE", "CREATE", "DBCC",       "DEALLOCATE", "DECLARE",  "DELETE",     "DENY",
    "DROP",        "DUMP",     "EXEC",   "EXECUTE",    "GOTO",       "GRANT",    "IF",         "INSERT",
    "KILL",        "LINENO",   "LOAD",   "MERGE",      "OPEN",       "PRINT",    "RAISERROR",  "READTEXT",
    "RECONFIGURE", "RESTORE",  "RETURN", "REVERT",     "REVOKE",     "ROLLBACK", "SAVE",       "SETUSER",
    "SHUTDOWN",    "TRUNCATE", "UPDATE", "UPDATETEXT", "USE",        "WAITFOR",  "WHILE",      "WRITETEXT"};
/// What begins with one of these has others inside, or words of theirs: only a semicolon tells there.
constexpr std::array holdersOfOthers{"IF", "WHILE", "DECLARE", "MERGE", "GRANT", "DENY", "REVOKE"};

template <class Words>
bool isOneOf(std::string_view word, const Words& words)
{
    return std::any_of(words.begin(), words.end(), [&](const char* one) { return equalsNoCase(word, one); });
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isOfWord(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '@' ||
           c == '#' || c == '$';
}

/// Beyond ASCII there are blanks as well as letters. All count as blanks here: a word must not hide behind one.
bool isBlank(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte <= ' ' || byte >= 0x80;
}

/// Gives the words and signs of a text without its comments; a text or a name in quotes is the sign of its quote.
class Words {
public:
    explicit Words(std::string_view text) : rest_(text) {}

    /// Whether there was a comment or a number of which a server may see another end.
    bool doubtful() const { return doubtful_; }

    /// @return an empty word at the end.
    std::string_view next()
    {
        skipBlanks();
        if (rest_.empty()) return {};
        std::size_t size = 1;
        if (rest_.front() == '\'' || rest_.front() == '"' || rest_.front() == '[') return quoted();
        if (isDigit(rest_.front())) return number();
        if (rest_.front() == '$') return take(1); // an amount of nothing: what follows is a word of its own
        while (isOfWord(rest_.front()) && size < rest_.size() && isOfWord(rest_[size]))
            ++size;
        return take(size);
    }

private:
    std::string_view take(std::size_t size)
    {
        const std::string_view taken = rest_.substr(0, size);
        rest_.remove_prefix(std::min(size, rest_.size()));
        return taken;
    }

    // A number ends where its digits end, without a blank: "12DELETE" is two words to the server. What a letter
    // behind it means, an exponent or the next word, is not guessed here.
    std::string_view number()
    {
        std::size_t size = 1;
        while (size < rest_.size() && (isDigit(rest_[size]) || rest_[size] == '.'))
            ++size;
        doubtful_ = doubtful_ || (size < rest_.size() && isOfWord(rest_[size]));
        return take(size);
    }

    std::string_view quoted()
    {
        const std::string_view sign = rest_.substr(0, 1);
        const char close = sign == "[" ? ']' : sign.front();
        std::size_t at = 1;
        while (at < rest_.size() && (rest_[at] != close || rest_.substr(at + 1).starts_with(close)))
            at += rest_[at] == close ? 2 : 1;
        take(at + 1);
        return sign;
    }

    void skipBlanks()
    {
        while (!rest_.empty()) {
            if (rest_.starts_with("--"))
                skipLine();
            else if (rest_.starts_with("/*"))
                skipComment();
            else if (isBlank(rest_.front()))
                take(1);
            else
                return;
        }
    }

    void skipLine()
    {
        const std::size_t end = std::min(rest_.find_first_of("\r\n"), rest_.size());
        doubtful_ = doubtful_ || (rest_.substr(end).starts_with("\r") && !rest_.substr(end).starts_with("\r\n"));
        take(end);
    }

    void skipComment() // they nest
    {
        int depth = 0;
        do {
            const bool opens = rest_.starts_with("/*");
            const bool closes = rest_.starts_with("*/");
            depth += opens ? 1 : closes ? -1 : 0;
            take(opens || closes ? 2 : 1);
        } while (depth > 0 && !rest_.empty());
    }

    std::string_view rest_;
    bool doubtful_ = false;
};

/// Looks at one statement, word by word.
class WordByWord {
public:
    explicit WordByWord(std::string_view first) : first_(first), depth_(first == "(" ? 1 : 0) {}

    /// Whether a word begins another statement.
    bool endsAt(std::string_view word)
    {
        depth_ += word == "(" ? 1 : word == ")" ? -1 : 0;
        const bool ends = depth_ <= 0 && !isHead(word) && begins(word);
        before_ = word;
        return ends;
    }

private:
    /// The word that the statement would begin with, were it not for the expressions in its WITH.
    bool isHead(std::string_view word)
    {
        constexpr std::array heads{"SELECT", "INSERT", "UPDATE", "DELETE"};
        if (!equalsNoCase(first_, "WITH") || !isOneOf(word, heads)) return false;
        first_ = word;
        return true;
    }

    bool begins(std::string_view word)
    {
        if (equalsNoCase(word, "VALUES")) source_ = true;
        if (equalsNoCase(word, "SELECT")) return beginsWithSelect();
        if (equalsNoCase(word, "SET")) return !equalsNoCase(first_, "UPDATE") || std::exchange(set_, true);
        if (equalsNoCase(word, "FETCH")) return !isOneOf(before_, std::array{"ROW", "ROWS"});
        if (equalsNoCase(word, "TRIGGER")) return isOneOf(before_, std::array{"ENABLE", "DISABLE"});
        return isOneOf(word, starters);
    }

    /// A SELECT goes on where it gives the rows of an INSERT or joins those of another SELECT.
    bool beginsWithSelect()
    {
        constexpr std::array joints{"UNION", "ALL", "EXCEPT", "INTERSECT"};
        const bool givesRows = equalsNoCase(first_, "INSERT") && !std::exchange(source_, true);
        return !givesRows && !isOneOf(before_, joints);
    }

    std::string_view first_;
    std::string_view before_; // behind the first
    int depth_;
    bool source_ = false; // of an INSERT was seen
    bool set_ = false;    // of an UPDATE was seen
};

} // namespace

bool isStacked(std::string_view text)
{
    Words words(text);
    const std::string_view first = words.next();
    // The body of a procedure or a trigger is made of statements.
    if (isOneOf(first, std::array{"CREATE", "ALTER"})) return false;
    const bool wordsTell = !isOneOf(first, holdersOfOthers);
    WordByWord statement(first);
    bool ended = false;
    for (std::string_view word = words.next(); !word.empty(); word = words.next()) {
        if (ended && word != ";") return true;
        ended = ended || word == ";";
        if (wordsTell && statement.endsAt(word)) return true;
    }
    return words.doubtful();
}

void requireOneStatement(std::string_view text)
{
    if (isStacked(text)) throw Error("42000", 0, "El texto contiene más de una instrucción SQL");
}

} // namespace dn::data::odbc
