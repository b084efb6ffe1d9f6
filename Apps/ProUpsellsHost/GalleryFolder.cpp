#include "Apps/ProUpsellsHost/GalleryFolder.hpp"

#include <cstdio>
#include <memory>
#include <set>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/PathText.hpp"
#include "Tooling/GalleryPage.hpp"

namespace proupsells::hostprogram {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const fs::path& path, const std::string& complaint) {
    throw InputError(system::textOf(path), "", complaint + ", expected a folder to write a gallery into");
}

// Whatever a link points to, it is not that.
fs::file_type typeOf(const fs::path& path) {
    std::error_code error;
    return fs::symlink_status(path, error).type();
}

// False where something has this name already.
bool writeNew(const fs::path& file, std::string_view bytes) {
    const auto close = [](std::FILE* stream) { std::fclose(stream); };
    // "x" makes the file, or fails: it does not follow a link that has the name.
    std::unique_ptr<std::FILE, decltype(close)> stream(std::fopen(system::textOf(file).c_str(), "wbx"), close);
    if (!stream) return false;
    const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), stream.get()) == bytes.size();
    return std::fclose(stream.release()) == 0 && isWritten;
}

std::set<std::string> filesOf(const tooling::Gallery& gallery) {
    std::set<std::string> files;
    const auto add = [&](const tooling::GalleryPicture& picture) {
        files.insert(picture.file);
        files.insert(picture.tree);
    };
    for (const auto& picture : gallery.pictures) add(picture);
    if (gallery.changes)
        for (const auto& change : *gallery.changes)
            if (change.before) add(*change.before);
    return files;
}

} // namespace

GalleryFolder::GalleryFolder(fs::path folder) : m_folder(std::move(folder)) {
    // "gallery/" is "gallery", so that folders inside lead up to it.
    if (!m_folder.has_filename()) m_folder = m_folder.parent_path();
    std::error_code error;
    fs::create_directories(m_folder, error);
    if (!fs::is_directory(m_folder, error)) fail(m_folder, "the folder cannot be made");
    const bool isEmpty = fs::is_empty(m_folder, error);
    if (error) fail(m_folder, "the folder cannot be read");
    if (isEmpty) {
        // Whoever comes after an end half way finds a gallery.
        write(galleryPageName, tooling::galleryPage({}));
        return;
    }
    const fs::path page = m_folder / galleryPageName;
    const auto bytes = typeOf(page) == fs::file_type::regular ? system::contentsOf(page) : std::nullopt;
    if (!bytes || !tooling::galleryDataOf(*bytes)) fail(m_folder, "the folder holds other things than a gallery");
}

fs::path GalleryFolder::fileFor(const std::string& name) const {
    fs::path path = m_folder;
    std::size_t begin = 0;
    for (std::size_t end = name.find('/'); end != std::string::npos; begin = end + 1, end = name.find('/', begin)) {
        path /= system::pathOf(std::string_view(name).substr(begin, end - begin));
        std::error_code error;
        fs::create_directory(path, error);
        if (typeOf(path) != fs::file_type::directory) fail(path, "this is no folder and none can be made");
    }
    return path / system::pathOf(std::string_view(name).substr(begin));
}

void GalleryFolder::write(const std::string& name, std::string_view bytes) const {
    const fs::path file = fileFor(name);
    fs::path draft = file;
    draft += ".part";
    std::error_code error;
    // One that an earlier gallery has left when it was ended.
    if (typeOf(draft) == fs::file_type::regular) fs::remove(draft, error);
    if (!writeNew(draft, bytes)) {
        if (typeOf(draft) == fs::file_type::regular) fs::remove(draft, error);
        fail(file, "the file cannot be written");
    }
    fs::rename(draft, file, error);
    if (!error) return;
    fs::remove(draft, error);
    fail(file, "the file cannot be written");
}

void GalleryFolder::removeLeftOvers(const tooling::Gallery& former, const tooling::Gallery& gallery) const {
    const auto kept = filesOf(gallery);
    std::error_code ignored;
    for (const std::string& name : filesOf(former)) {
        if (kept.contains(name)) continue;
        const fs::path file = m_folder / system::pathOf(name);
        // A link on the way leads somewhere else.
        bool isInside = true;
        for (fs::path folder = file.parent_path(); folder != m_folder && isInside; folder = folder.parent_path())
            isInside = typeOf(folder) == fs::file_type::directory;
        if (!isInside || typeOf(file) != fs::file_type::regular) continue;
        fs::remove(file, ignored);
        for (fs::path folder = file.parent_path(); folder != m_folder && fs::remove(folder, ignored);)
            folder = folder.parent_path();
    }
}

} // namespace proupsells::hostprogram
