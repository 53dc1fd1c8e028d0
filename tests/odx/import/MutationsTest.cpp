#include "support/Imports.h"

#include <gtest/gtest.h>

#include <random>

using namespace OdxImport;
using OdxTests::Imported;
using OdxTests::TemporaryFile;

namespace {

std::string Load(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

const std::filesystem::path& Sources() {
    static const std::filesystem::path folder(ODX_SAMPLE_SOURCES_DIR);
    return folder;
}

/// The sample with the changed text in place of its main document.
void ImportChanged(const std::string& text) {
    const TemporaryFile changed("changed.odx-d", text);
    ImportOptions options;
    options.inputs = {changed.Path(), Sources() / "diagnostics.odx-d", Sources() / "units.odx-cs",
                      Sources() / "coolant-pump-variants.odx-d"};
    Imported imported(options);
    EXPECT_TRUE(imported.ledger.AddsUp());
}

} // namespace

TEST(MutationsTest, WhateverElementIsTakenOutTheImportEndsAndTheLedgerAddsUp) {
    const std::string text = Load(Sources() / "coolant-pump.odx-d");
    std::mt19937 random(1);
    for (int round = 0; round < 150; ++round) {
        // From one opening tag to the end of the element, when it ends on the same line.
        const std::size_t line = text.find('\n', random() % text.size()) + 1;
        const std::size_t open = text.find('<', line);
        const std::size_t end = std::min(text.find('\n', open), text.size());
        if (open >= text.size())
            continue;
        ImportChanged(text.substr(0, open) + text.substr(end));
    }
}

TEST(MutationsTest, WhateverTextIsReplacedTheImportEndsAndTheLedgerAddsUp) {
    const std::string text = Load(Sources() / "coolant-pump.odx-d");
    static constexpr const char* replacements[] = {
        "", "-1", "0.05", "0x", "99999999999999999999", "4294967295", "\xFF", "tab.data", "st.state", "&x;", "true"};
    std::mt19937 random(2);
    for (int round = 0; round < 300; ++round) {
        const bool isAttribute = random() % 2 == 0;
        const std::size_t start = text.find(isAttribute ? "=\"" : ">", random() % text.size()) + (isAttribute ? 2 : 1);
        const std::size_t end = text.find(isAttribute ? "\"" : "<", start);
        if (start < 2 || end == std::string::npos)
            continue;
        ImportChanged(text.substr(0, start) + replacements[random() % std::size(replacements)] + text.substr(end));
    }
}

TEST(MutationsTest, WhateverByteChangesTheImportEndsAndTheLedgerAddsUp) {
    const std::string text = Load(Sources() / "coolant-pump.odx-d");
    std::mt19937 random(3);
    for (int round = 0; round < 150; ++round) {
        std::string changed = text;
        changed[random() % changed.size()] = static_cast<char>(random() % 256);
        ImportChanged(changed);
    }
}
