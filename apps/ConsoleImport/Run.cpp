#include "Commands.h"

#include "ExitCodes.h"
#include "ProgressBar.h"

#include <ImportDame/LgAssertException.h>
#include <SqliteBackend/WriteError.h>

#include <exception>
#include <new>
#include <sstream>
#include <stdexcept>

namespace ConsoleImport {

namespace {

/// What a failure says, printable where there is memory left for that.
struct Words {
    const char* what;
};

std::ostream& operator<<(std::ostream& out, const Words& words) {
    try {
        return out << PrintableInLine(words.what);
    } catch (const std::bad_alloc&) {
        return out << words.what;
    }
}

} // namespace

bool ReportProblems(const OdxImport::DiagnosticCollector& diagnostics, const Arguments& arguments, Console& console) {
    if (arguments.diagnostics == DiagnosticsFormat::Json) {
        OdxImport::WriteJson(console.Data(), diagnostics);
        console.Data().flush();
    }
    std::ostringstream text;
    if (arguments.isQuiet)
        for (const OdxImport::Diagnostic& diagnostic : diagnostics.Kept())
            text << (diagnostic.severity < OdxImport::Severity::Error ? "" : OdxImport::FormatText(diagnostic));
    else
        OdxImport::WriteText(text, diagnostics);
    if (arguments.diagnostics == DiagnosticsFormat::Json)
        console.Log(text.str());
    else
        console.Problem(text.str());
    return diagnostics.HasErrors();
}

int RunGuarded(const std::function<int()>& work, std::ostream& err) {
    try {
        return work();
    } catch (const VLgAssertException& exception) {
        err << "ConsoleImport: broken precondition " << exception.GetErrorCode() << ": " << exception.GetExpression()
            << "\nThis is a defect of the program. Nothing was written; an old database is as it was.\n"
               "Please report it together with the lines above and, if you may, the inputs.\n";
        return exitInternal;
    } catch (const std::bad_alloc&) {
        err << "ConsoleImport: out of memory. Nothing was written; an old database is as it was.\n"
               "Close other programs, or give fewer inputs.\n";
        return exitOutOfMemory;
    } catch (const Interrupted&) {
        err << "ConsoleImport: interrupted. Nothing was written; an old database is as it was.\n";
        return exitInterrupted;
    } catch (const SqliteBackend::WriteError& error) {
        err << "ConsoleImport: " << Words{error.what()} << "\nAn old database is as it was. " << error.Advice() << "\n";
        return exitOutput;
    } catch (const OutputError& error) {
        err << "ConsoleImport: " << Words{error.what()} << "\n";
        return exitOutput;
    } catch (const std::invalid_argument& error) {
        err << "ConsoleImport: " << Words{error.what()} << "\n";
        return exitUsage;
    } catch (const std::exception& error) {
        err << "ConsoleImport: " << Words{error.what()} << "\nThis is a defect of the program. Please report it.\n";
        return exitInternal;
    } catch (...) {
        err << "ConsoleImport: an unknown failure\nThis is a defect of the program. Please report it.\n";
        return exitInternal;
    }
}

int Run(const std::vector<std::string>& arguments, const Streams& streams) {
    return RunGuarded(
        [&arguments, &streams] {
            const ParsedArguments parsed = ParseArguments(arguments, streams.out, streams.err);
            if (parsed.arguments.command == Command::None)
                return parsed.exitCode;
            Console console(streams, parsed.arguments);
            const int exitCode = parsed.arguments.command == Command::Import ? RunImport(parsed.arguments, console)
                                                                             : RunList(parsed.arguments, console);
            console.CloseLog();
            if (!streams.out.flush())
                throw OutputError("cannot write to standard output");
            return exitCode;
        },
        streams.err);
}

} // namespace ConsoleImport
