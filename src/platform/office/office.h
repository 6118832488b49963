#pragma once

#include <sys/types.h>

#include <atomic>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

#include "platform/office/office_choice.h"

/// The user's office: reached when it runs, started when it does not. All failures are platform::Failure, or an
/// exception of the office itself.
namespace gullymark::office {

struct Office {
    OfficeChoice choice;
    /// The office that was started here and not ended, 0 for none. It is a process group of its own.
    std::atomic<pid_t> started = 0;
    com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext> context;
    com::sun::star::uno::Reference<com::sun::star::frame::XDesktop2> desktop;
};

/// Tells the office's libraries where they lie. Before anything else of the office.
void set_up_libraries();

/// Connects to a running office of this user, else starts one and waits until it answers. Never gives up by itself
/// as long as the started process lives; who calls it holds the time limit.
void connect_office(Office& office);

/// Ends the office if it was started here and shows nothing: asks it to, then kills it. One that has become
/// the user's stays.
void end_office(Office& office);

/// Kills the office if it was started here. For one that does not answer.
void kill_office(Office& office);

}  // namespace gullymark::office
