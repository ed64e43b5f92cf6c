// SPDX-License-Identifier: MIT
#include "engine/page_file.h"

#include "engine/run.h"
#include "platform/desktop.h"

namespace twk {

void open_page(Run& run, const Text& path) {
    run.pagina_actual = path;
    const Text aux = path + u"aux";
    run.fence->check(path);
    run.fence->check(aux);
    run.origen.emplace(path);
    run.salida = run.fso.OpenTextFile(aux, OpenMode::writing, true, TextKind::page);
}

void close_page(Run& run, const Text& path) {
    const Text aux = run.salida->path();
    run.ultimo_texto = run.salida->close_and_read();
    run.ultima_pagina = path;
    run.bytes_written += run.salida->size();
    run.salida.reset();
    run.origen->replace_by(aux);
    run.origen.reset();
    ++run.pages_written;
    run.pagina_actual.clear();
}

Text destination_folder(const Run& run, TextView address) {
    Text name = Replace(address, u"http://", u"");
    replace_all(name, u"\\", u"-");
    replace_all(name, u"/", u"-");
    return run.project_folder + Text(path_separator) + name;
}

void copy_into_project(Run& run, const Text& from, const Text& to) {
    run.fence->check(to);
    run.fso.CopyFile(from, to);
}

} // namespace twk
