// SPDX-License-Identifier: MIT
#include "settings/settings_file.h"

#include "platform/addresses.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/faults.h"
#include "platform/file_system.h"
#include "platform/numbers.h"
#include "platform/subscript.h"
#include "settings/form6.h"
#include "settings/key_table.h"
#include "shell/module1.h"

namespace twk {

namespace {

constexpr TextView stored_quote = u"*''*"; ///< a double quote inside a value; bare ones only delimit

Text* record_text(GatewaySettings& s, int indice) {
    switch (indice) {
    case 4: return &s.hl_abre;
    case 5: return &s.hl_cierra;
    case 6: return &s.kw_sustituto;
    case 7: return &s.robot_valor;
    case 8: return &s.meta_atributo;
    case 21: return &s.rotulo_lista;
    case 22: return &s.rotulo_subject;
    case 23: return &s.rotulo_category;
    case 24: return &s.rotulo_description;
    case 25: return &s.rotulo_webmaster;
    default: return nullptr;
    }
}

float* record_switch(GatewaySettings& s, int indice) {
    switch (indice) {
    case 10: return &s.meta_classification;
    case 11: return &s.meta_keywords;
    case 12: return &s.meta_sin_uso;
    case 13: return &s.meta_description;
    case 14: return &s.meta_author;
    case 15: return &s.meta_robot;
    case 16: return &s.meta_rating;
    case 17: return &s.meta_abstract;
    case 18: return &s.meta_language;
    case 19: return &s.meta_generator;
    case 20: return &s.meta_title;
    default: return nullptr;
    }
}

Text without_quotes(TextView text) {
    return Replace(text, u"\"", u"");
}

/// Pieces of a list value; none when it holds no separator, so that a list of one entry is lost.
std::vector<TextView> list_pieces(TextView value) {
    if (!contains(value, u";")) return {};
    return split_views(value, u";");
}

/// Text of a list's entry: quotes delimit, blanks around do not count.
Text entry_text(TextView piece) {
    return Trim(Replace(piece, u"\"", u" "));
}

} // namespace

Text valor1(Text& linea) {
    // The unit behind each "=" is lost, whatever it is: "1.a=300" gives "00".
    TextView rest = linea;
    for (std::size_t at = 0; (at = rest.find(u'=')) != TextView::npos;)
        rest = at + 2 < rest.size() ? trim_view(rest.substr(at + 2)) : TextView{};
    linea = Text(rest);
    return linea;
}

void cargar_combo(Text linea, ComboBox& combo) {
    valor1(linea);
    for (const TextView each : list_pieces(linea)) {
        Text piece(each);
        const bool chosen = trim_view(piece).starts_with(u'*');
        if (chosen) piece = Trim(Replace(piece, u"*", u""));
        piece = entry_text(piece);
        if (chosen) combo.text = piece;
        combo.add_item(piece);
    }
}

void cargar_check(Text linea, CheckBox& check) {
    check.value = false;
    const Text value = Trim(valor1(linea));
    if (IsNumeric(value) && CDbl(value) == 1) check.value = true;
}

void cargar_valor(GatewaySettings& settings, Text linea, int indice) {
    valor1(linea);
    if (indice >= 1 && indice <= 3) {
        const std::vector<TextView> pieces = list_pieces(linea);
        // Entries of an earlier load behind the last piece stay.
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            if (indice == 1) {
                at(settings.numeros_6a, i) = CInt(entry_text(pieces[i]));
                continue;
            }
            auto& list = indice == 2 ? settings.palabras_ancla : settings.frases_link;
            at(list, i) = Replace(without_quotes(trim_view(pieces[i])), u"  ", u" ");
        }
        return;
    }
    Text value = without_quotes(trim_view(linea));
    if (float* const on = record_switch(settings, indice)) *on = CSng(value);
    if (Text* const text = record_text(settings, indice)) {
        if (indice <= 6) replace_all(value, stored_quote, u"\"");
        *text = std::move(value);
    }
}

void cargar_frase(GatewaySettings& settings, Text linea, int indice) {
    valor1(linea);
    at(settings.frases, indice) = Replace(without_quotes(trim_view(linea)), stored_quote, u"\"");
}

namespace {

/// The three option keys; the two backgrounds are one group.
void load_option(Form6& form, TextView key, TextView last) {
    if (key == u"9.c") {
        const double number = Val(trim_view(last));
        for (std::size_t i = 0; i < form.Template.size(); ++i)
            if (number == static_cast<double>(i)) choose_option(form.Template, i);
        return;
    }
    const bool solid = key == u"9.d";
    OptionButton& option = solid ? form.Option1 : form.Option2;
    option.value = false;
    if (last != u"1") return;
    (solid ? form.Option2 : form.Option1).value = false;
    option.value = true;
    form.Command2_110.enabled = solid;
}

void load_line(Form6& form, const Key& key, const Text& raw) {
    Text line = raw;
    switch (key.load) {
    case Load::number:
        form.settings.*std::get<std::int16_t GatewaySettings::*>(key.target) = CInt(valor1(line));
        break;
    case Load::check: cargar_check(line, form.*std::get<Named<CheckBox> Form6::*>(key.target)); break;
    case Load::list: {
        ComboBox& combo = form.*std::get<Named<ComboBox> Form6::*>(key.target);
        combo.clear();
        cargar_combo(line, combo);
        break;
    }
    case Load::address:
        (form.*std::get<Named<TextBox> Form6::*>(key.target)).text = without_quotes(valor1(line));
        break;
    case Load::record: cargar_valor(form.settings, line, std::get<int>(key.target)); break;
    case Load::phrase: cargar_frase(form.settings, line, std::get<int>(key.target)); break;
    case Load::fixed_column: {
        const Text value = Mid(raw, 7);
        if (const auto* box = std::get_if<Named<TextBox> Form6::*>(&key.target))
            (form.**box).text = value;
        else
            (form.*std::get<Named<ComboBox> Form6::*>(key.target)).text = value;
        break;
    }
    case Load::last_unit: load_option(form, key.key, Right(raw, 1)); break;
    }
}

/// What a line of the key may hold, for the user whose line could not be read.
TextView usable_value(const Key& key, int fault) {
    if (fault == fault_subscript) return u"no more than 11 entries would do";
    const int* const record = std::get_if<int>(&key.target);
    if (key.load == Load::number || (record != nullptr && *record == 1))
        return u"whole numbers from -32768 to 32767 would do";
    return u"0 or 1 would do";
}

/// Loads every line of the file that has a key. The faults of a value name file, line and what would do.
void load_lines(Form6& form, TextStream& file) {
    for (int number = 1; !file.AtEndOfStream(); ++number) {
        const Text line = file.readline();
        if (trim_view(line).empty() || line.starts_with(u'#')) continue;
        for (const Key& key : key_table()) {
            if (!line.starts_with(key.key)) continue;
            try {
                load_line(form, key, line);
            } catch (const RuntimeFault& fault) {
                throw told_fault(fault.number(), u"Line " + to_text(number) + u" of " + file.path() +
                                                     u" cannot be used: " + Left(line, 200) + u" - " +
                                                     Text(usable_value(key, fault.number())) + u".");
            }
        }
    }
}

} // namespace

void tomar_de_dat(Form6& form, const Text& nombre) {
    const bool by_user = form.carga_inicial;
    FileSystemObject fso;
    if (!fso.FileExists(nombre)) {
        MsgBox(
            u"ERROR: Missing File\nThere's no file named " + nombre +
            u"\nThis file is vital to proceed.\nYou can download it from our site or customize one of your "
            u"own.");
        screens().unload<Form6>();
        return;
    }
    const TextStreamPtr stream = fso.OpenTextFile(nombre, OpenMode::reading);
    load_lines(form, *stream);
    stream->Close();
    screens().record<Form6>().caption = u"Step 5 of 6 - Gateway Generation - Using " + nombre;
    if (by_user) MsgBox(u".dat Loaded");
}

namespace {

/// Cuts the last separator off, but for its first blank. An empty list is fault 5: it cannot be saved.
Text closed(const Text& list) {
    return Left(list, Len(list) - 2);
}

Text list_value(const ComboBox& combo, Save form) {
    Text list;
    for (const Text& each : combo.entries()) {
        const bool chosen = each == combo.text();
        Text item = each;
        if (form == Save::list_trimmed && chosen) item = Trim(each);
        if (form == Save::quoted_list) item = u"\"" + each + u"\"";
        if (form == Save::separator_list) {
            const Text separator = Trim(each);
            item = separator.empty() ? u"\" \"" : u"\"" + separator + u"\"";
            if (chosen && separator.empty()) list += u"_"; // the reader will not know it as the choice
        }
        list.append(chosen ? u"* " : u"").append(item).append(u" ; ");
    }
    return closed(list);
}

Text words_value(const std::array<Text, 11>& words) {
    Text list;
    for (std::size_t i = 0; i < 10; ++i) // the eleventh entry is not saved
        if (!trim_view(words[i]).empty()) list += u"\"" + words[i] + u"\" ; ";
    return closed(list);
}

Text flag(bool on) {
    return on ? u"1" : u"0";
}

Text option_value(const Form6& form, TextView key) {
    if (key == u"9.d") return flag(form.Option1.value());
    if (key == u"9.e") return flag(form.Option2.value());
    for (std::size_t i = 0; i < form.Template.size(); ++i)
        if (form.Template[i].value()) return to_text(static_cast<int>(i));
    return {};
}

/// The plain text behind a key.
Text text_value(Form6& form, const Key& key) {
    if (const auto* box = std::get_if<Named<TextBox> Form6::*>(&key.target)) return (form.**box).text();
    if (const auto* combo = std::get_if<Named<ComboBox> Form6::*>(&key.target)) return (form.**combo).text();
    const int indice = std::get<int>(key.target);
    if (key.load == Load::last_unit) return option_value(form, key.key);
    if (key.load == Load::phrase) return at(form.settings.frases, indice);
    return *record_text(form.settings, indice);
}

Text number_value(Form6& form, const Key& key) {
    if (const auto* number = std::get_if<std::int16_t GatewaySettings::*>(&key.target))
        return to_text(static_cast<int>(form.settings.**number));
    return to_text(*record_switch(form.settings, std::get<int>(key.target)));
}

Text value_of(Form6& form, const Key& key) {
    switch (key.save) {
    case Save::number: return number_value(form, key);
    case Save::flag: return flag((form.*std::get<Named<CheckBox> Form6::*>(key.target)).value());
    case Save::flag_of_number: return flag(number_value(form, key) == u"1");
    case Save::always_on: return u"1";
    case Save::list:
    case Save::list_trimmed:
    case Save::quoted_list:
    case Save::separator_list:
        return list_value(form.*std::get<Named<ComboBox> Form6::*>(key.target), key.save);
    case Save::quoted: return u"\"" + text_value(form, key) + u"\"";
    case Save::quoted_trimmed: return u"\"" + Trim(text_value(form, key)) + u"\"";
    case Save::escaped: return u"\"" + Replace(text_value(form, key), u"\"", stored_quote) + u"\"";
    case Save::words:
        return words_value(std::get<int>(key.target) == 2 ? form.settings.palabras_ancla
                                                          : form.settings.frases_link);
    case Save::bare: return text_value(form, key);
    case Save::no_value:
    case Save::never: break;
    }
    return {};
}

void write_settings(Form6& form, TextStream& out) {
    out.writeline(u"#");
    out.writeline(u"# Tarnwick");
    out.writeline(u"#");
    out.writeline(u"# Generated by user with version " + version_app());
    out.writeline(u"# " + ahora());
    out.writeline(u"#");
    out.writeline(u"#");
    out.writeline(u"");
    for (const Key& key : key_table()) {
        if (key.save == Save::never) continue;
        out.writeline(Text(key.key) + u" = " + value_of(form, key));
        if (key.empty_line_behind) out.writeline(u"");
    }
    out.writeline(u"# 10 =");
    out.writeline(u"");
    out.writeline(u"#");
    out.writeline(u"# It's important to Visit periodically " + Text(addresses::maker_site) +
                  u" for new strategies.");
    out.writeline(u"#");
}

/// What was gathered before a failure stays in the sibling, and the next save goes on behind it.
void close_partly_written(TextStream* out) {
    if (out == nullptr) return;
    try {
        out->Close();
    } catch (const RuntimeFault&) {
        // The failure itself is told by the caller.
    }
}

} // namespace

void guardar_dat(Form6& form, const Text& nombre) {
    const Text path = with_ending(nombre, u".dat");
    const Text sibling = path + u"aux";
    FileSystemObject fso;
    TextStreamPtr out;
    try {
        fso.OpenTextFile(path, OpenMode::reading, true)->Close(); // proves the name usable
        if (is_protected(path)) throw RuntimeFault(fault_file_permission);
        out = fso.OpenTextFile(sibling, OpenMode::appending, true);
        write_settings(form, *out);
        out->Close();
        fso.ReplaceFile(sibling, path);
    } catch (const RuntimeFault&) {
        close_partly_written(out.get());
        MsgBox(u"File wasn't saved.");
    }
}

} // namespace twk
