// SPDX-License-Identifier: MIT
#pragma once

#include <random>
#include <string>

/// How a made-up project's keywords and boxes look.
struct TextShape {
    int every = 0;                ///< every so many words a keyword; 0: by chance, one word of forty
    int vocabulary = 0;           ///< different words of all boxes; 0: each word is made up
    int tags = 0;                 ///< a tag behind every so many words; 0 for none
    std::string kind = "phrases"; ///< "phrases", "words" or "shared"

    std::string keyword(int k) const {
        const std::string number = std::to_string(k);
        if (kind == "phrases") return "garden topic " + number;
        std::string word = kind == "shared" ? "gardening" : "";
        std::mt19937 draw(static_cast<unsigned>(k) + 1000);
        for (int letters = 0; letters < 6; ++letters) word += letter(draw);
        return word + number;
    }

    /// Sentences of twelve words.
    std::string box_text(int keywords, int words, std::mt19937& draw) const {
        std::string text;
        for (int w = 0; w < words; ++w) {
            const int chance = below(draw, 40);
            const bool room = kind != "phrases" || w + 3 < words;
            if (room && (every > 0 ? w % every == every - 1 : chance == 0)) {
                text += keyword(below(draw, keywords));
                if (kind == "phrases" && every == 0) w += 2;
            } else if (chance < 4) {
                text += "and";
            } else if (vocabulary > 0) {
                std::mt19937 known(static_cast<unsigned>(below(draw, vocabulary)) + 1);
                text += made_up(known);
            } else {
                text += made_up(draw);
            }
            if (tags > 0 && w % tags == tags - 1) text += w % 2 == 0 ? "<br>" : " <b>";
            text += w % 12 == 11 ? ". " : " ";
        }
        return text;
    }

  private:
    static int below(std::mt19937& draw, int n) {
        return static_cast<int>(draw() % static_cast<unsigned>(n));
    }
    static char letter(std::mt19937& draw) { return static_cast<char>('a' + below(draw, 26)); }
    static std::string made_up(std::mt19937& draw) {
        std::string word;
        for (int letters = 2 + below(draw, 8); letters > 0; --letters) word += letter(draw);
        return word;
    }
};
