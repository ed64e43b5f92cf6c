// SPDX-License-Identifier: MIT
#include "engine/synonyms.h"

#include "engine/counting/scan.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/file_system.h"
#include "platform/numbers.h"
#include "store/database.h"
#include "store/stores.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <unordered_map>

namespace twk {

namespace {

/// Per cent of the text to be rewritten: the seconds of the clock, at least 20.
double share() {
    return std::max(20.0, Val(Left(Right(ahora(), 7), 2)));
}

} // namespace

/// The dictionary twice, by keyword and by synonym, row by row side by side. A word is looked up in the rows
/// from the first on: the first row where it equals, in lower case, the keyword of one order or the synonym
/// of the other.
class Synonyms::Dictionary {
  public:
    explicit Dictionary(Database& sinonimos) {
        Recordset k =
            sinonimos.OpenRecordset({u"select * from synonyms where synonyms  <> '' order by keyword asc"});
        Recordset s =
            sinonimos.OpenRecordset({u"select * from synonyms where synonyms  <> '' order by synonyms  asc"});
        for (; !k.eof() && !s.eof(); k.MoveNext(), s.MoveNext())
            add(k.Fields(u"keyword").text(), k.Fields(u"synonyms").text(), s.Fields(u"synonyms").text(),
                s.Fields(u"keyword").text());
    }

    /// What stands for the word; null when nothing does.
    const Text* find(TextView word) {
        if ((lengths_ & length_bit(word)) == 0) return nullptr; // most words, with a small dictionary
        plain_.assign(word);
        for (char16_t& unit : plain_) unit = lower(unit);
        const std::size_t k = row_of(by_keyword_, plain_);
        const std::size_t s = row_of(by_synonym_, plain_);
        const std::size_t first = std::min(k, s);
        if (first == none || first > last_row(first_letter(plain_))) return nullptr;
        return k <= s ? &rows_[k].sinonimo_k : &rows_[s].clave_s; // the keyword's row comes first
    }

  private:
    struct Row {
        Text letter_k, letter_s; ///< first letters, lower case
        Text sinonimo_k, clave_s;
    };
    using Index = std::unordered_map<Text, std::size_t>;
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    void add(const Text& clave_k, Text sinonimo_k, const Text& sinonimo_s, Text clave_s) {
        const std::size_t j = rows_.size();
        by_keyword_.emplace(LCase(clave_k), j);
        by_synonym_.emplace(LCase(sinonimo_s), j);
        lengths_ |= length_bit(clave_k) | length_bit(sinonimo_s);
        rows_.push_back(
            {first_letter(clave_k), first_letter(sinonimo_s), std::move(sinonimo_k), std::move(clave_s)});
    }

    static Text first_letter(TextView word) { return LCase(word.substr(0, 1)); }

    static std::size_t row_of(const Index& index, const Text& word) {
        const auto found = index.find(word);
        return found == index.end() ? none : found->second;
    }

    /// The row at which the search for words of this letter ends: the first whose letters both lie behind it.
    std::size_t last_row(const Text& letter) {
        const auto [known, fresh] = last_rows_.try_emplace(letter, rows_.size() - 1);
        if (fresh)
            for (std::size_t j = 0; j < rows_.size(); ++j)
                if (!rows_[j].letter_k.empty() && rows_[j].letter_k > letter && rows_[j].letter_s > letter) {
                    known->second = j;
                    break;
                }
        return known->second;
    }

    std::vector<Row> rows_;
    Index by_keyword_, by_synonym_;
    std::uint64_t lengths_ = 0; ///< of all words, by `length_bit`
    Text plain_;                ///< room for the word looked up, that is used again
    std::map<Text, std::size_t> last_rows_;
};

/// The dictionary as it was read last.
struct Synonyms::Known {
    Database store = open_synonyms();
    Database::RowState state = store.row_state();
    Dictionary dictionary{store};
};

Synonyms::Synonyms() = default;
Synonyms::~Synonyms() = default;

Synonyms::Known& Synonyms::known() {
    if (known_ && file_exists(beside_program(u"synonyms.mdb")) && known_->store.row_state() == known_->state)
        return *known_;
    known_ = std::make_unique<Known>();
    return *known_;
}

Text Synonyms::sinonimo(Text t) {
    Dictionary& dictionary = known().dictionary;
    space_tags(t);
    const auto n = static_cast<int>(count_units(t, [](char16_t c) { return c == u' '; }));
    const int m = t.empty() ? -1 : std::min(n, CLng(n * share() / 100)); // the last word that may be replaced
    Text out;
    std::size_t kept_from = 0; // what stands before it is in `out`
    std::size_t from = 0;
    for (int i = 0; i <= m; ++i) {
        const std::size_t end = std::min(t.find(u' ', from), t.size());
        if (const Text* const other = dictionary.find(TextView(t).substr(from, end - from))) {
            if (kept_from == 0) out.reserve(t.size() + t.size() / 8);
            out.append(t, kept_from, from - kept_from).append(*other);
            kept_from = end;
        }
        from = std::min(end + 1, t.size());
    }
    if (out.empty()) return Trim(std::move(t.erase(0, kept_from)));
    return Trim(std::move(out.append(t, kept_from)));
}

} // namespace twk
