// SPDX-License-Identifier: MIT
#include "cli/commands.h"
#include "cli/wizard.h"
#include "reports/form12.h"
#include "reports/page_story.h"

#include <ostream>

#include <unistd.h>

namespace twk::cli {

namespace {

namespace fs = std::filesystem;

/// An application folder for one run, so that the user's own pages and settings stay as they are. What a run
/// only reads is linked, what it may write is copied. Goes with the object.
class ScratchFolder {
  public:
    explicit ScratchFolder(const fs::path& application_folder) {
        std::string pattern = (fs::temp_directory_path() / "tarnwick-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no folder can be made in " + fs::temp_directory_path().string());
        path_ = pattern;
        for (const fs::directory_entry& each : fs::directory_iterator(application_folder)) take(each);
    }
    ~ScratchFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const fs::path& path() const { return path_; }

  private:
    void take(const fs::directory_entry& entry) {
        const fs::path name = entry.path().filename();
        if (name == "Projects" || name.string().ends_with("-shm")) return;
        if (entry.is_directory())
            fs::create_directory_symlink(fs::absolute(entry.path()), path_ / name);
        else if (is_written(name))
            fs::copy_file(entry.path(), path_ / name);
        else if (entry.is_regular_file())
            fs::create_symlink(fs::absolute(entry.path()), path_ / name);
    }

    /// The stores with what is not yet in them, and settings and lists.
    static bool is_written(const fs::path& name) {
        const std::string extension = name.extension().string();
        return extension == ".mdb" || extension == ".mdb-wal" || extension == ".dat" || extension == ".fnm" ||
               extension == ".txt" || extension == ".TXT";
    }

    fs::path path_;
};

/// Rows that a name means: file, folder and file, or address, without regard to case.
std::vector<const PageRow*> rows_named(const SiteReport& report, const Text& page) {
    std::vector<const PageRow*> found;
    for (const PageRow& row : report.pages) {
        if (same_text(page, row.file) || same_text(page, folder_name(report, row) + u"/" + row.file) ||
            same_text(page, row.address))
            found.push_back(&row);
    }
    return found;
}

Status tell(const Console& console, const SiteReport& report, const Text& page) {
    const std::vector<const PageRow*> rows = rows_named(report, page);
    if (rows.empty()) {
        console.err << "The run has no page named '" << to_utf8(page)
                    << "'. A page is named by its file, by folder/file, or by its address.\n";
        return Status::refused;
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        console.out << (i == 0 ? "" : "\n") << to_utf8(rows[i]->address) << '\n';
        for (const Text& line : page_story(report, *rows[i])) console.out << "  " << to_utf8(line) << '\n';
    }
    return Status::done;
}

} // namespace

Status explain_page(const Console& console, const std::filesystem::path& application_folder,
                    const ExplainOptions& options) {
    const ScratchFolder scratch(application_folder);
    std::ostream nowhere(nullptr); // only the page is asked for
    const Console talk{nowhere, console.err, false};
    Session session(talk, scratch.path(), options.seed, options.now);
    Wizard wizard(talk, session.desktop);
    Status status = wizard.walk_to_step5(from_utf8(options.project));
    if (status == Status::done) status = wizard.generate();
    if (status != Status::done) return status;
    return tell(console, *screen<Form12>().overview(), from_utf8(options.page));
}

} // namespace twk::cli
