// SPDX-License-Identifier: MIT
#include "engine/open_page.h"

#include "platform/desktop.h"

namespace twk {

void OpenPage::open(const Text& path) {
    pagina_actual = path;
    made = {};
    origen.emplace(fence->within(path), fence->within(path + u"aux"));
    salida = origen->open(TextKind::page);
}

void OpenPage::close() {
    ultimo_texto = salida->close_and_read();
    ultima_pagina = pagina_actual;
    bytes_written += salida->size();
    sizes[ultima_pagina] = salida->size();
    salida.reset();
    origen->replace();
    origen.reset();
    count();
    pagina_actual.clear();
}

void OpenPage::count() {
    ++pages_written;
    if (written) written();
}

std::int64_t OpenPage::size_of(const Text& path) const {
    const auto known = sizes.find(path);
    return known == sizes.end() ? FileLen(path) : known->second;
}

void OpenPage::abandon() {
    salida.reset();
    origen.reset();
}

void OpenPage::copy_into_project(const Text& from, const Text& to) {
    fso.CopyFile(from, fence->within(to));
}

void OpenPage::writelines(TextView lines) {
    lines.remove_prefix(1);
    for (const TextView line : split_views(lines, u"\n")) writeline(line);
}

Text destination_folder(const Text& project_folder, TextView address) {
    Text name = Replace(address, u"http://", u"");
    replace_all(name, u"\\", u"-");
    replace_all(name, u"/", u"-");
    return joined_path(project_folder, name);
}

} // namespace twk
