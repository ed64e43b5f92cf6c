// SPDX-License-Identifier: MIT
#include "engine/open_page.h"

#include "platform/desktop.h"

namespace twk {

void OpenPage::open(const Text& path) {
    pagina_actual = path;
    const Text aux = path + u"aux";
    fence->check(path);
    fence->check(aux);
    origen.emplace(path);
    salida = fso.OpenTextFile(aux, OpenMode::writing, true, TextKind::page);
}

void OpenPage::close() {
    const Text aux = salida->path();
    ultimo_texto = salida->close_and_read();
    ultima_pagina = pagina_actual;
    bytes_written += salida->size();
    salida.reset();
    origen->replace_by(aux);
    origen.reset();
    count();
    pagina_actual.clear();
}

void OpenPage::count() {
    ++pages_written;
    if (written) written();
}

void OpenPage::abandon() {
    salida.reset();
    origen.reset();
}

void OpenPage::copy_into_project(const Text& from, const Text& to) {
    fence->check(to);
    fso.CopyFile(from, to);
}

void OpenPage::writelines(TextView lines) {
    lines.remove_prefix(1);
    for (const TextView line : split_views(lines, u"\n")) writeline(line);
}

Text destination_folder(const Text& project_folder, TextView address) {
    Text name = Replace(address, u"http://", u"");
    replace_all(name, u"\\", u"-");
    replace_all(name, u"/", u"-");
    return project_folder + Text(path_separator) + name;
}

} // namespace twk
