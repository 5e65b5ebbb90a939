#include "Messages.h"

#include <array>

namespace ccsim {

namespace {

struct Row {
    Msg id;
    bool unsure;
    const char* text;
};

// One row per message, in enumeration order; `unsure` marks guessed wording.
constexpr Row kMessages[] = {
    {Msg::UnrecognizedCommand, false, "Unrecognized command: \"%1\""},
    {Msg::UnrecognizedOption, false, "Unrecognized option \"%1\""},
    {Msg::MissingOperand, true, "Missing required operand."},
    {Msg::OptionNeedsArgument, true, "Option \"%1\" requires an argument."},
    {Msg::ConflictingOptions, true, "Options \"%1\" and \"%2\" are mutually exclusive."},
    {Msg::TooManyOperands, true, "Too many arguments."},
    {Msg::UnableToDetermineVob, false, "Unable to determine VOB for pathname \"%1\"."},
    {Msg::NotVobObject, false, "Not a vob object: \"%1\"."},
    {Msg::NotObjectInVob, false, "Not an object in a vob: \"%1\"."},
    {Msg::NoSuchFile, false, "Unable to access \"%1\": No such file or directory."},
    {Msg::AlreadyCheckedOut, false, "Element \"%1\" is already checked out to view \"%2\"."},
    {Msg::UnableToCheckOut, false, "Unable to check out \"%1\"."},
    {Msg::NoCurrentActivity, true, "No current activity set for view \"%1\"."},
    {Msg::NotLatestVersion, true, "Version \"%1\" is not the latest on its branch; use -version to check it out."},
    {Msg::IdenticalData, false, "By default, won't create version with data identical to predecessor."},
    {Msg::UnableToCheckIn, false, "Unable to check in \"%1\"."},
    {Msg::NoBranchCheckedOut, false, "No branch of element is checked out to view \"%1\"."},
    {Msg::UnableToFindCheckedOut, false, "Unable to find checked out version for \"%1\"."},
    {Msg::NotPredecessor, true, "The most recent version on branch \"%1\" is not the predecessor of this version."},
    {Msg::ReservedElsewhere, true, "Element \"%1\" is checked out reserved to view \"%2\"."},
    {Msg::NotCheckedOut, true, "Element \"%1\" is not checked out."},
    {Msg::UnableToUncheckout, true, "Unable to uncheckout \"%1\"."},
    {Msg::DirNotCheckedOut, false, "Can't modify directory \"%1\" because it is not checked out."},
    {Msg::UnableToCreateElement, false, "Unable to create element \"%1\"."},
    {Msg::EntryExists, false, "Entry named \"%1\" already exists."},
    {Msg::ElementTypeNotFound, false, "Element type not found: \"%1\"."},
    {Msg::UnableToCreateDirectory, true, "Unable to create directory \"%1\"."},
    {Msg::NotSnapshotView, true, "Unable to find a valid snapshot view path in \"%1\"."},
    {Msg::NameExists, false, "Name \"%1\" already exists."},
    {Msg::UnableToCreateType, false, "Unable to create %1 \"%2\"."},
    {Msg::LabelOnElement, true, "Version label of type \"%1\" already on element."},
    {Msg::LabelOnVersion, true, "Version label of type \"%1\" already on version."},
    {Msg::LabelTypeNotFound, false, "Label type not found: \"%1\"."},
    {Msg::BranchTypeNotFound, true, "Branch type not found: \"%1\"."},
    {Msg::BranchNotFound, true, "Branch \"%1\" not found on element \"%2\"."},
    {Msg::UnableToCreateLabel, true, "Unable to create label \"%1\" on \"%2\"."},
    {Msg::LockPrevents, false, "Lock on %1 \"%2\" prevents operation \"%3\"."},
    {Msg::AlreadyLocked, false, "Object is already locked."},
    {Msg::UnableToLock, false, "Unable to lock %1 \"%2\"."},
    {Msg::NotLocked, false, "Object is not locked."},
    {Msg::UnableToUnlock, true, "Unable to unlock %1 \"%2\"."},
    {Msg::AttributeExists, true, "Attribute of type \"%1\" already exists on \"%2\"."},
    {Msg::AttributeTypeNotFound, false, "Attribute type not found: \"%1\"."},
    {Msg::UnableToCreateAttribute, true, "Unable to create attribute \"%1\" on \"%2\"."},
    {Msg::AttributeValueType, true, "Type mismatch: value \"%1\" is not a valid %2 value."},
    {Msg::AttributeValueRange, true, "Value \"%1\" is out of range for attribute type \"%2\"."},
    {Msg::AttributeNotAllowed, true, "Attribute type \"%1\" can only be applied to %2s."},
    {Msg::BadBound, true, "Bad %1 value \"%2\" for value type %3."},
    {Msg::ObjectNotFound, false, "%1 not found: \"%2\"."},
    {Msg::NotUcmView, true, "View \"%1\" is not a UCM view."},
    {Msg::NoViewInfo, false, "Cannot get view info for current view: not a ClearCase object."},
    {Msg::NotProjectVob, true, "VOB \"%1\" is not a project VOB."},
    {Msg::LtUnsupported, true, "%1 is not supported by ClearCase LT."},
    {Msg::VobTagExists, true, "VOB tag \"%1\" already exists."},
    {Msg::ViewTagExists, true, "View tag \"%1\" already exists."},
    {Msg::ViewTagNotFound, true, "View tag not found: \"%1\"."},
    {Msg::NoMatchingViewTag, false, "No matching entries found for view tag \"%1\"."},
    {Msg::ViewDirExists, true, "Snapshot view path \"%1\" already exists and is not empty."},
    {Msg::ConfigSpecLine, true, "\"%1\", line %2: %3"},
    {Msg::CannotOpenFile, false, "Unable to open file \"%1\": No such file or directory."},
    {Msg::BaselineUnchanged, true, "Component \"%1\" is unchanged since its last baseline; no baseline created."},
    {Msg::ComponentNotInStream, true, "Component \"%1\" is not in stream \"%2\"."},
    {Msg::NoRootDirectory, true, "Component \"%1\" has no root directory."},
    {Msg::BadEnvironment, true, "Bad value of environment variable %1: \"%2\"."},
    {Msg::StoreFailure, true, "Internal store error: %1"},
    {Msg::CheckedOut, false, "Checked out \"%1\" from version \"%2\"."},
    {Msg::AttachedActivities, false, "  Attached activities:"},
    {Msg::AttachedActivity, false, "    activity:%1@%2  \"%3\""},
    {Msg::CheckedIn, false, "Checked in \"%1\" version \"%2\"."},
    {Msg::PrivateSaved, true, "Private version of \"%1\" saved in \"%2\"."},
    {Msg::CheckoutCancelled, false, "Checkout cancelled for \"%1\"."},
    {Msg::CreatedElement, false, "Created element \"%1\" (type \"%2\")."},
    {Msg::CreatedDirElement, false, "Created directory element \"%1\"."},
    {Msg::ProcessingDir, false, "Processing dir \"%1\"."},
    {Msg::Loading, false, "Loading \"%1\" (%2 bytes)."},
    {Msg::Unloading, true, "Unloaded \"%1\"."},
    {Msg::HijackRenamed, true, "Hijacked file \"%1\" renamed to \"%2\"."},
    {Msg::DoneLoading, false, "Done loading \"%1\" (%2 objects, copied %3 KB)."},
    {Msg::LogWritten, false, "Log has been written to \"%1\"."},
    {Msg::CreatedType, true, "Created %1 \"%2\"."},
    {Msg::ReplacedType, true, "Replaced definition of %1 \"%2\"."},
    {Msg::CreatedLabel, true, "Created label \"%1\" on \"%2\" version \"%3\"."},
    {Msg::MovedLabel, true, "Moved label \"%1\" on \"%2\" from version \"%3\" to \"%4\"."},
    {Msg::Locked, true, "Locked %1 \"%2\"."},
    {Msg::Unlocked, true, "Unlocked %1 \"%2\"."},
    {Msg::CreatedAttribute, true, "Created attribute \"%1\" on \"%2\"."},
    {Msg::ReplacedAttribute, true, "Replaced attribute \"%1\" on \"%2\"."},
    {Msg::CreatedActivity, false, "Created activity \"%1\"."},
    {Msg::SetActivity, false, "Set activity \"%1\" in view \"%2\"."},
    {Msg::ClearedActivity, false, "Cleared current activity from view \"%1\"."},
    {Msg::CreatedBaseline, false, "Created baseline \"%1\" in component \"%2\"."},
    {Msg::BeginLabeling, false, "Begin %1 labeling baseline \"%2\"."},
    {Msg::DoneLabeling, false, "Done %1 labeling baseline \"%2\"."},
    {Msg::CreatedVob, true, "Created versioned object base.\nHost-local path: %1:%2\nGlobal path:     %2"},
    {Msg::CreatedView, true, "Created view.\nHost-local path: %1:%2\nGlobal path:     %2"},
    {Msg::RemovedView, true, "Removed view \"%1\"."},
    {Msg::CreatedObject, true, "Created %1 \"%2\"."},
    {Msg::SaveQuestion, true, "Save private copy of \"%1\"?  [yes] "},
    {Msg::HistoryLabel, true, "make label \"%1\" on version \"%2\""},
    {Msg::LockedExceptUsers, true, "  Locked except for users: %1"},
    {Msg::CannotChangeDirectory, true, "Unable to change directory to \"%1\": No such file or directory."},
    {Msg::UnmatchedQuote, true, "Unmatched quote in command line."},
};

static_assert(std::size(kMessages) == static_cast<size_t>(Msg::UnmatchedQuote) + 1, "one row per message");

constexpr bool inOrder()
{
    for (size_t i = 0; i < std::size(kMessages); ++i) {
        if (static_cast<size_t>(kMessages[i].id) != i)
            return false;
    }
    return true;
}
static_assert(inOrder(), "rows follow the enumeration");

} // namespace

std::string message(Msg id, std::initializer_list<std::string_view> args)
{
    const std::string_view text = kMessages[static_cast<size_t>(id)].text;
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9') {
            const size_t n = static_cast<size_t>(text[i + 1] - '1');
            if (n < args.size())
                out += *(args.begin() + n);
            ++i;
        } else {
            out += text[i];
        }
    }
    return out;
}

bool messageIsUnsure(Msg id)
{
    return kMessages[static_cast<size_t>(id)].unsure;
}

} // namespace ccsim
