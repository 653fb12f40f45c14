#pragma once

// Writes VBA projects ([MS-OVBA]): `dir`, `PROJECT`, compressed module streams. Every field that a test bends has a
// default that real programs would write.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "support/documents/storage_tree.h"

namespace zentlor::test {

/// `bytes` as a compressed container; `raw` stores its chunks as they are.
std::string CompressContainer(std::string_view bytes, bool raw = false);

/// `data` as `CMG`, `DPB` and `GC` obfuscate it, in hexadecimal digits.
std::string ObfuscateData(std::string_view data, std::uint8_t seed);

struct TestModule {
    Text name;
    /// In the project's code page, with its `Attribute` lines.
    std::string source;
    /// The key of the module's line in `PROJECT`: Module, Class, BaseClass, Document, DocClass; empty for no line.
    std::string kind = "Module";
    /// The name in the project's code page; by default that of `name` in Windows-1252.
    std::optional<std::string> rawName = std::nullopt;
    std::optional<Text> streamName = std::nullopt;
    /// What lies in front of the source in the module's stream.
    std::string cache = "compiled form";
    /// MODULEOFFSET, if it is to lie.
    std::optional<std::uint32_t> offset = std::nullopt;
    /// What stands for the compressed source, if it is not to be that.
    std::optional<std::string> container = std::nullopt;
};

struct TestProject {
    Text name = u"VBAProject";
    int codePage = 1252;
    std::vector<TestModule> modules;
    /// Records between the project's and the modules'.
    std::string references;
    /// Lines of `PROJECT` behind the modules'.
    std::string projectLines;
    bool withProjectStream = true;
};

/// One record of `dir`.
std::string DirRecord(std::uint16_t id, std::string_view data);
/// The records of a reference to a type library.
std::string RegisteredReference(const std::string& name, const std::string& identifier);

/// The `dir` stream, not compressed.
std::string WriteDir(const TestProject& project);
std::string WriteProjectStream(const TestProject& project);
/// A module's stream: its cache and its source.
std::string WriteModuleStream(const TestModule& module);
/// The storage that holds the project: `PROJECT`, and `VBA` with `dir`, `_VBA_PROJECT` and the modules.
StorageTree WriteProject(const TestProject& project);

/// A standard module as the editor stores it: `VB_Name` and the code.
TestModule StandardModule(const Text& name, const std::string& code);

}  // namespace zentlor::test
