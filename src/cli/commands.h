#pragma once

// The verbs of the program. Each reads its arguments, prints, and answers with the exit code.

#include "cli/arguments.h"
#include "workspace/workspace.h"

namespace zentlor::cli {

int RunCheck(const Arguments& arguments);
int RunDump(const Arguments& arguments);
int RunChecks(const Arguments& arguments);
int RunCompile(const Arguments& arguments);
int RunExtract(const Arguments& arguments);
int RunInfo(const Arguments& arguments);

/// Runs the verb of `arguments`.
int Run(const Arguments& arguments);

/// The language for a verb that keeps no settings: as asked for, else as stored, without writing the store.
int LanguageOf(const Arguments& arguments);

/// Opens the paths of `arguments` and tells what could not be read. `keepRawCode`: see workspace::OpenOptions.
workspace::Workspace OpenFor(const Arguments& arguments, bool keepRawCode, int sprache);

/// Tells on standard error what could not be read, a line each.
void PrintTroubles(const workspace::Workspace& opened, int sprache);

/// The sentence of a compile error of the module `origin`, with lines of the file.
std::string CompileErrorWords(const workspace::ModuleOrigin& origin, const workspace::CompileError& error, int sprache);

/// One line for a compile error: `path:line:column: sentence`, with lines of the file.
std::string CompileErrorLine(const workspace::OpenedProject& project, const workspace::CompileError& error,
                             int sprache);

/// Writes `bytes` to the file `path`, or to standard output if `path` is empty. False, and told on standard error, if
/// that fails.
bool WriteOutput(const std::string& path, const std::string& bytes, int sprache);

}  // namespace zentlor::cli
