#include "WrittenFiles.h"

#include <algorithm>
#include <system_error>

namespace ConsoleImport {

namespace {

namespace fs = std::filesystem;

struct Written {
    const char* option;
    fs::path file;
};

std::vector<Written> FilesToWrite(const Arguments& arguments) {
    std::vector<Written> files;
    const fs::path dump = arguments.DumpsToStandardOutput() ? fs::path() : arguments.dump;
    for (const Written& file : {Written{"--output", arguments.output}, {"--dump", dump}, {"--log", arguments.log}})
        if (!file.file.empty())
            files.push_back(file);
    return files;
}

/// Where the file is, or will be: behind links, also to what is not there yet, and in linked folders.
fs::path RealName(fs::path file) {
    constexpr int mostLinks = 40;
    std::error_code error;
    for (int link = 0; link < mostLinks && fs::is_symlink(file, error); ++link)
        file = file.parent_path() / fs::read_symlink(file, error);
    const fs::path name = fs::absolute(file, error);
    const fs::path real = fs::weakly_canonical(name, error);
    return error ? name.lexically_normal() : real;
}

/// By other names and links, too. What is no file, as a device is not, may be written more than once.
bool IsSameFile(const fs::path& a, const fs::path& b) {
    std::error_code ignored;
    if (fs::exists(a, ignored) && fs::exists(b, ignored))
        return fs::is_regular_file(a, ignored) && fs::equivalent(a, b, ignored);
    return RealName(a) == RealName(b);
}

/// In small letters.
std::string EndingOf(const fs::path& file) {
    std::string ending = TextOf(file.extension());
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return ending;
}

bool HasNameOfInput(const fs::path& file) {
    const std::string ending = EndingOf(file);
    return ending == ".pdx" || ending.starts_with(".odx");
}

/// The file is there, and the folder has it under a name that is read.
bool MayBeReadFrom(const fs::path& folder, const fs::path& file) {
    std::error_code error;
    if (!fs::is_regular_file(file, error))
        return false;
    for (fs::recursive_directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
        if ((HasNameOfInput(at->path()) || EndingOf(at->path()) == ".xml") && IsSameFile(at->path(), file))
            return true;
    return false;
}

} // namespace

std::string ConflictOfWrittenFiles(const Arguments& arguments) {
    const std::vector<Written> files = FilesToWrite(arguments);
    for (std::size_t i = 0; i < files.size(); ++i) {
        const std::string option = files[i].option;
        const fs::path& file = files[i].file;
        if (std::any_of(arguments.inputs.begin(), arguments.inputs.end(),
                        [&](const fs::path& input) { return IsSameFile(file, input); }))
            return option + ": is one of the inputs, which would be lost; give it a name of its own";
        if (HasNameOfInput(file))
            return option + ": names that end like this are for inputs; give it another ending";
        if (std::any_of(arguments.inputs.begin(), arguments.inputs.end(),
                        [&](const fs::path& input) { return MayBeReadFrom(input, file); }))
            return option + ": is in an input folder and may be one of its documents, which would be lost; give it "
                            "another name";
        for (std::size_t j = i + 1; j < files.size(); ++j)
            if (IsSameFile(file, files[j].file))
                return option + ": is the same file as that of " + files[j].option;
    }
    return {};
}

} // namespace ConsoleImport
