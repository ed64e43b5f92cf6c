// SPDX-License-Identifier: MIT
#include "support/hand.h"

#include "platform/numbers.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace twk::test {

namespace {

std::string joined(const std::vector<Text>& entries) {
    std::string all;
    for (const Text& entry : entries) all += (all.empty() ? "" : "|") + to_utf8(entry);
    return all;
}

std::string yes_no(bool on) {
    return on ? "yes" : "no";
}

} // namespace

std::string shown(const ScreenMap::Control& control, const std::string& property) {
    return std::visit(
        [&](auto* c) -> std::string {
            if constexpr (requires { c->enabled(); })
                if (property == "enabled") return yes_no(c->enabled());
            if constexpr (requires { c->visible(); })
                if (property == "visible") return yes_no(c->visible());
            if constexpr (requires { c->caption(); })
                if (property == "caption" || property.empty())
                    if constexpr (!requires { c->value(); }) return to_utf8(c->caption());
            if constexpr (requires { c->list_index(); })
                if (property == "index") return std::to_string(c->list_index());
            if constexpr (requires { c->path(); })
                if (property == "path") return to_utf8(c->path());
            if constexpr (requires { c->rows.front(); }) return joined(c->rows.at(std::stoul(property) - 1));
            if constexpr (requires {
                              c->entries();
                              c->text();
                          })
                if (property == "text") return to_utf8(c->text());
            if constexpr (requires { c->entries(); })
                return joined(c->entries());
            else if constexpr (requires {
                                   { c->value() } -> std::same_as<const bool&>;
                               })
                return property == "caption" ? to_utf8(c->caption()) : yes_no(c->value());
            else if constexpr (requires { c->value(); })
                return std::to_string(static_cast<int>(c->value()));
            else if constexpr (requires {
                                   { c->text() } -> std::convertible_to<const Text&>;
                               })
                return to_utf8(c->text());
            throw std::runtime_error("nothing to see in " + control.object_name());
        },
        control.ref);
}

void put(const ScreenMap::Control& control, const Text& value) {
    std::visit(
        [&](auto* c) {
            if constexpr (requires { c->set_path(Text()); })
                c->set_path(value);
            else if constexpr (requires {
                                   { c->value() } -> std::same_as<const bool&>;
                               })
                c->value = value == u"yes";
            else if constexpr (requires { c->value = 1; })
                c->value = static_cast<int>(Val(value));
            else if constexpr (requires { c->text = Text(); })
                c->text = value;
            else
                throw std::runtime_error("nothing can be put into " + control.object_name());
        },
        control.ref);
}

void choose(const ScreenMap::Control& control, const std::string& what) {
    std::visit(
        [&](auto* c) {
            if constexpr (requires { c->entries(); }) {
                std::vector<int> rows;
                std::istringstream names(what);
                for (std::string name; std::getline(names, name, '|') && what != "-";) {
                    const auto at = std::find(c->entries().begin(), c->entries().end(), from_utf8(name));
                    if (at == c->entries().end()) throw std::runtime_error("no entry " + name);
                    rows.push_back(static_cast<int>(at - c->entries().begin()));
                }
                const int current = rows.empty() ? -1 : rows.back();
                if constexpr (requires { c->select_from_user(0, rows); })
                    c->select_from_user(current, rows);
                else if constexpr (requires { c->select(0); })
                    c->select(current);
                else
                    c->list_index = current;
            } else {
                throw std::runtime_error("nothing to choose in " + control.object_name());
            }
        },
        control.ref);
}

void list(const ScreenMap::Control& control, const std::string& entries) {
    std::visit(
        [&](auto* c) {
            if constexpr (requires { c->add_item(Text()); }) {
                c->clear();
                for (const Text& entry : Split(from_utf8(entries), u"|")) c->add_item(entry);
            } else {
                throw std::runtime_error("no list " + control.object_name());
            }
        },
        control.ref);
}

} // namespace twk::test
