#include "platform/office/office.h"

#include <sys/wait.h>

#include <chrono>
#include <com/sun/star/awt/XWindow2.hpp>
#include <com/sun/star/bridge/UnoUrlResolver.hpp>
#include <com/sun/star/bridge/XUnoUrlResolver.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/frame/XFrames.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <csignal>
#include <cstdlib>
#include <thread>
#include <vector>

#include "platform/failure.h"
#include "platform/office/pipes.h"
#include "platform/office/texts.h"
#include "platform/process.h"

namespace gullymark::office {
namespace {

namespace uno = com::sun::star::uno;
namespace frame = com::sun::star::frame;
using namespace std::chrono_literals;

constexpr const char* program_folder = GULLYMARK_OFFICE_PROGRAM_FOLDER;
using Clock = std::chrono::steady_clock;
constexpr auto pause_between_tries = 20ms;
// The office that took a request over may have been about to end.
constexpr auto pause_between_starts = 4s;
constexpr auto patience_at_end = 5s;

std::vector<std::string> start_arguments(const OfficeChoice& choice, const std::string& pipe) {
    std::vector<std::string> arguments = {std::string(program_folder) + "/soffice",
                                          "--accept=pipe,name=" + pipe + ";urp;",
                                          "--nologo",
                                          "--norestore",
                                          "--nodefault",
                                          "--nolockcheck"};
    if (!choice.profile.empty()) {
        arguments.push_back("-env:UserInstallation=" + utf8_of(file_url(choice.profile)));
    }
    if (choice.headless) {
        arguments.emplace_back("--headless");
    }
    return arguments;
}

// It has no tie to our streams.
pid_t start_office(const OfficeChoice& choice, const std::string& pipe) {
    const pid_t started = platform::start_program(start_arguments(choice, pipe), {});
    if (started < 0) {
        throw platform::Failure("The spreadsheet program cannot be started.");
    }
    return started;
}

// An office that finds another one of this user hands its request over to it and ends well.
bool has_ended(pid_t started) {
    int status = 0;
    if (waitpid(started, &status, WNOHANG) == 0) {
        return false;
    }
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        throw platform::Failure("The spreadsheet program ended while it started.");
    }
    return true;
}

bool waited_for_end(pid_t started) {
    const auto until = Clock::now() + patience_at_end;
    while (Clock::now() < until) {
        if (waitpid(started, nullptr, WNOHANG) != 0) {
            return true;
        }
        std::this_thread::sleep_for(pause_between_tries);
    }
    return false;
}

// True when an office that listens there has taken us.
bool connect_to(Office& office, const uno::Reference<com::sun::star::bridge::XUnoUrlResolver>& resolver,
                const std::string& pipe) {
    try {
        const rtl::OUString address = text_of("uno:pipe,name=" + pipe + ";urp;StarOffice.ComponentContext");
        office.context.set(resolver->resolve(address), uno::UNO_QUERY_THROW);
        office.desktop = frame::Desktop::create(office.context);
        return true;
    } catch (const com::sun::star::connection::NoConnectException&) {
        return false;  // it does not listen any more
    }
}

bool shows_a_window(const Office& office) {
    const auto frames = office.desktop->getFrames();
    for (sal_Int32 at = 0; at < frames->getCount(); ++at) {
        const uno::Reference<frame::XFrame> one(frames->getByIndex(at), uno::UNO_QUERY_THROW);
        const uno::Reference<com::sun::star::awt::XWindow2> window(one->getContainerWindow(), uno::UNO_QUERY);
        if (window.is() && window->isVisible()) {
            return true;
        }
    }
    return false;
}

}  // namespace

void set_up_libraries() {
    // Without it the first call of the office's libraries ends the process.
    const std::string settings = std::string("vnd.sun.star.pathname:") + program_folder + "/fundamentalrc";
    setenv("URE_BOOTSTRAP", settings.c_str(), 1);  // NOLINT(concurrency-mt-unsafe): no thread runs yet
}

void connect_office(Office& office) {
    const auto local = cppu::defaultBootstrap_InitialComponentContext();
    unsetenv("URE_BOOTSTRAP");  // NOLINT(concurrency-mt-unsafe): the office shall not inherit it
    const auto resolver = com::sun::star::bridge::UnoUrlResolver::create(local);
    const std::string pipe = new_pipe_name(office.choice);
    Clock::time_point start_again{};  // at once
    while (true) {
        for (const std::string& listening : listening_pipes(office.choice)) {
            if (connect_to(office, resolver, listening)) {
                return;
            }
        }
        if (office.started != 0 && has_ended(office.started)) {
            office.started = 0;
        }
        if (office.started == 0 && Clock::now() >= start_again) {
            office.started = start_office(office.choice, pipe);
            start_again = Clock::now() + pause_between_starts;
        }
        std::this_thread::sleep_for(pause_between_tries);
    }
}

void end_office(Office& office) {
    if (office.started == 0) {
        return;
    }
    try {
        if (office.desktop.is() && shows_a_window(office)) {
            office.started = 0;
            return;
        }
        if (office.desktop.is()) {
            office.desktop->terminate();
        }
    } catch (const uno::Exception&) {
        // It has gone, or goes just now.
    }
    if (!office.desktop.is() || !waited_for_end(office.started)) {
        kill_office(office);
    }
    office.started = 0;
}

void kill_office(Office& office) {
    const pid_t group = office.started.exchange(0);
    if (group > 0) {
        kill(-group, SIGKILL);
        waitpid(group, nullptr, 0);
    }
}

}  // namespace gullymark::office
