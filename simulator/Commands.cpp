#include "Commands.h"

#include "CmdDescribe.h"
#include "CmdElement.h"
#include "CmdMeta.h"
#include "CmdUcm.h"
#include "CmdView.h"
#include "SnapshotView.h"

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <sstream>

namespace ccsim {

namespace {

// Comment switches shared by every command that records a comment.
#define CCSIM_COMMENT {"comment", 1, true}, {"cfile", 3, true}, {"cquery", 2}, {"cqeach", 3}, {"ncomment", 2}

constexpr OptionRule kShortLong[] = {{"short", 1}, {"long", 1}};
constexpr OptionRule kInvob[] = {{"short", 1}, {"long", 1}, {"invob", 3, true}, {"cview", 3}, {"in", 2, true}};
constexpr OptionRule kLstype[] = {{"short", 1}, {"long", 1}, {"kind", 1, true}, {"invob", 3, true}, {"obsolete", 3}};
constexpr OptionRule kLsstream[] = {{"short", 1}, {"long", 1}, {"invob", 3, true}, {"cview", 3}, {"in", 2, true},
                                    {"view", 4, true}};
constexpr OptionRule kLsbl[] = {{"short", 1}, {"long", 1}, {"stream", 3, true}, {"component", 4, true}};
constexpr OptionRule kLshistory[] = {{"short", 1}, {"long", 1}, {"all", 3}, {"since", 3, true}, {"recurse", 1},
                                     {"directory", 1}};
constexpr OptionRule kLs[] = {{"short", 1}, {"long", 1}, {"recurse", 1}, {"directory", 1}, {"vob_only", 3},
                              {"view_only", 4}};
constexpr OptionRule kLscheckout[] = {{"short", 1}, {"long", 1}, {"cview", 3}, {"me", 2}, {"recurse", 1}, {"all", 1},
                                      {"directory", 1}};
constexpr OptionRule kDescribe[] = {{"short", 1}, {"long", 1}, {"version", 3, true}};
constexpr OptionRule kCheckout[] = {{"reserved", 3}, {"unreserved", 3}, {"nmaster", 3}, {"out", 3, true},
                                    {"ndata", 3}, {"ptime", 3}, {"nwarn", 3}, CCSIM_COMMENT,
                                    {"query", 1}, {"nquery", 2}, {"usehijack", 3}, {"version", 3},
                                    {"branch", 3, true}};
constexpr OptionRule kCheckin[] = {CCSIM_COMMENT, {"nwarn", 3}, {"ptime", 3}, {"keep", 3}, {"rm", 2},
                                   {"identical", 3}, {"cact", 4}, {"from", 3, true}};
constexpr OptionRule kUncheckout[] = {{"keep", 3}, {"rm", 2}, {"cact", 4}, {"cwork", 3}};
constexpr OptionRule kMkelem[] = {{"eltype", 3, true}, {"nco", 3}, {"ci", 2}, {"ptime", 3}, {"mkpath", 3},
                                  {"master", 3}, {"nwarn", 3}, CCSIM_COMMENT};
constexpr OptionRule kMkdir[] = {CCSIM_COMMENT, {"nco", 3}, {"master", 3}};
constexpr OptionRule kUpdate[] = {{"print", 2}, {"force", 1}, {"overwrite", 3}, {"noverwrite", 3}, {"rename", 3},
                                  {"ctime", 3}, {"ptime", 3}, {"log", 3, true}, {"graphical", 1}};
constexpr OptionRule kSetcs[] = {{"tag", 3, true}, {"current", 3}, {"default", 3}, {"stream", 3}, {"force", 1},
                                 {"overwrite", 3}, {"ctime", 3}, {"ptime", 3}};
constexpr OptionRule kCatcs[] = {{"tag", 3, true}};
constexpr OptionRule kMklbtype[] = {{"replace", 3}, {"global", 3}, {"acquire", 3}, {"ordinary", 3}, {"pbranch", 3},
                                    {"shared", 3}, CCSIM_COMMENT};
constexpr OptionRule kMkbrtype[] = {{"replace", 3}, {"global", 3}, {"acquire", 3}, {"ordinary", 3}, {"pbranch", 3},
                                    CCSIM_COMMENT};
constexpr OptionRule kMkattype[] = {{"replace", 3}, {"global", 3}, {"acquire", 3}, {"ordinary", 3},
                                    {"vpelement", 4}, {"vpbranch", 4}, {"vpversion", 4}, {"shared", 3},
                                    {"vtype", 3, true}, {"gt", 2, true}, {"ge", 2, true}, {"lt", 2, true},
                                    {"le", 2, true}, {"enum", 3, true}, {"default", 3, true}, CCSIM_COMMENT};
constexpr OptionRule kMklabel[] = {{"replace", 3}, {"recurse", 1}, {"follow", 3}, {"version", 3, true},
                                   CCSIM_COMMENT};
constexpr OptionRule kMkattr[] = {{"replace", 3}, {"recurse", 1}, {"version", 3, true}, {"pname", 3},
                                  {"default", 3}, CCSIM_COMMENT};
constexpr OptionRule kLock[] = {{"replace", 3}, {"nusers", 3, true}, {"obsolete", 3}, {"pname", 3}, CCSIM_COMMENT};
constexpr OptionRule kUnlock[] = {{"pname", 3}, {"version", 3, true}, CCSIM_COMMENT};
constexpr OptionRule kMkvob[] = {{"tag", 3, true}, {"ucmproject", 3}, {"public", 3}, {"password", 3, true},
                                 CCSIM_COMMENT};
constexpr OptionRule kMkview[] = {{"tag", 3, true}, {"snapshot", 3}, {"stream", 3, true}, {"vws", 3, true}};
constexpr OptionRule kRmview[] = {{"tag", 3, true}, {"force", 1}};
constexpr OptionRule kLsview[] = {{"short", 1}, {"long", 1}, {"cview", 3}};
constexpr OptionRule kPwv[] = {{"short", 1}, {"wdview", 3}, {"setview", 3}};
constexpr OptionRule kMkfolder[] = {CCSIM_COMMENT, {"in", 2, true}};
constexpr OptionRule kMkproject[] = {CCSIM_COMMENT, {"in", 2, true}, {"modcomp", 3, true}};
constexpr OptionRule kMkcomp[] = {CCSIM_COMMENT, {"root", 3, true}, {"nroot", 3}};
constexpr OptionRule kMkstream[] = {CCSIM_COMMENT, {"integration", 3}, {"in", 2, true}, {"baseline", 3, true}};
constexpr OptionRule kMkactivity[] = {CCSIM_COMMENT, {"headline", 3, true}, {"in", 2, true}, {"nset", 3},
                                      {"force", 1}};
constexpr OptionRule kSetactivity[] = {CCSIM_COMMENT, {"view", 4, true}, {"none", 3}};
constexpr OptionRule kMkbl[] = {CCSIM_COMMENT, {"view", 4, true}, {"component", 4, true}, {"all", 3},
                                {"activities", 3, true}, {"identical", 3}, {"nlabel", 3}, {"incremental", 3},
                                {"full", 2}, {"import", 3}};

constexpr std::string_view kCheckoutExclusive[] = {"reserved unreserved", "out ndata"};
constexpr std::string_view kKeepOrRemove[] = {"keep rm"};
constexpr std::string_view kMkelemExclusive[] = {"nco ci"};
constexpr std::string_view kTypeExclusive[] = {"global ordinary"};
constexpr std::string_view kMkattypeExclusive[] = {"global ordinary", "gt ge", "lt le", "vpelement vpbranch vpversion"};
constexpr std::string_view kLockExclusive[] = {"nusers obsolete"};
constexpr std::string_view kUpdateExclusive[] = {"overwrite noverwrite rename", "ctime ptime"};
constexpr std::string_view kMkblExclusive[] = {"component all activities", "nlabel incremental full"};

// The registry, alphabetical. Usage blocks follow the reference's layout.
constexpr Command kCommands[] = {
    {"catcs", "", kCatcs, "Usage: catcs [-tag view-tag]", cmdCatcs},
    {"checkin", "ci", kCheckin,
     "Usage: checkin | ci [-c comment | -cfile pname | -cq | -cqe | -nc] [-nwarn] [-cr]\n"
     "                    [-ptime] [-keep | -rm] [-from source-pname] [-identical]\n"
     "                    {-cact | activity-selector ... | pname ...}",
     cmdCheckin, kKeepOrRemove},
    {"checkout", "co", kCheckout,
     "Usage: checkout | co [-reserved | -unreserved [-nmaster]] [-out dest-pname | -ndata]\n"
     "                     [-ptime] [-nwarn] [-c comment | -cfile pname | -cq | -cqe | -nc]\n"
     "                     [-query | -nquery | -usehijack] [-version] [-branch branch-pname]\n"
     "                     pname ...",
     cmdCheckout, kCheckoutExclusive},
    {"describe", "desc des", kDescribe, "Usage: describe | desc [-short | -long] [-version version-selector]\n"
                                        "                       {pname ... | object-selector ...}",
     cmdDescribe},
    {"lock", "", kLock,
     "Usage: lock [-replace] [-nusers login-name[,...] | -obsolete]\n"
     "            [-c comment | -cfile pname | -cq | -cqe | -nc]\n"
     "            {-pname pname ... | object-selector ...}",
     cmdLock, kLockExclusive},
    {"ls", "", kLs, "Usage: ls [-recurse | -directory] [-short | -long] [-vob_only | -view_only] [pname ...]", cmdLs},
    {"lsactivity", "lsact", kInvob, "Usage: lsactivity [-short | -long] [-in stream-selector | -invob vob-selector | -cview]\n"
                                    "                  [activity-selector ...]",
     cmdLsactivity},
    {"lsbl", "", kLsbl, "Usage: lsbl [-short | -long] [-stream stream-selector] [-component component-selector]\n"
                        "            [baseline-selector ...]",
     cmdLsbl},
    {"lscheckout", "lsco", kLscheckout,
     "Usage: lscheckout | lsco [-short | -long] [-cview] [-me] [-recurse | -directory | -all]\n"
     "                         [pname ...]",
     cmdLscheckout},
    {"lscomp", "", kInvob, "Usage: lscomp [-short | -long] [-invob vob-selector] [component-selector ...]", cmdLscomp},
    {"lsfolder", "", kInvob, "Usage: lsfolder [-short | -long] [-invob vob-selector] [folder-selector ...]",
     cmdLsfolder},
    {"lshistory", "lshis lsh", kLshistory,
     "Usage: lshistory [-short | -long] [-all] [-since date-time] [-recurse | -directory]\n"
     "                 [pname ...]",
     cmdLshistory},
    {"lspool", "", kInvob, "Usage: lspool [-short | -long] [-invob vob-selector] [pool-name ...]", cmdLspool},
    {"lsproject", "lsproj", kInvob, "Usage: lsproject [-short | -long] [-invob vob-selector] [project-selector ...]",
     cmdLsproject},
    {"lsstream", "lsstr", kLsstream,
     "Usage: lsstream [-short | -long] [-invob vob-selector | -cview | -view view-tag | -in project-selector]\n"
     "                [stream-selector ...]",
     cmdLsstream},
    {"lstype", "", kLstype, "Usage: lstype [-short | -long] [-kind type-kind] [-invob vob-selector] [-obsolete]\n"
                            "              [type-selector ...]",
     cmdLstype},
    {"lsview", "", kLsview, "Usage: lsview [-short | -long] [-cview | view-tag]", cmdLsview},
    {"lsvob", "", kShortLong, "Usage: lsvob [-short | -long] [vob-tag ...]", cmdLsvob},
    {"mkactivity", "mkact", kMkactivity,
     "Usage: mkactivity [-c comment | -cfile pname | -cq | -cqe | -nc] [-headline headline]\n"
     "                  [-in stream-selector] [-nset] [-force] [activity-selector ...]",
     cmdMkactivity},
    {"mkattr", "", kMkattr,
     "Usage: mkattr [-replace] [-recurse] [-version version-selector | -pname]\n"
     "              [-c comment | -cfile pname | -cq | -cqe | -nc]\n"
     "              {-default attribute-type-name | attribute-type-name value}\n"
     "              {pname ... | object-selector ...}",
     cmdMkattr},
    {"mkattype", "", kMkattype,
     "Usage: mkattype [-replace] [-global [-acquire] | -ordinary]\n"
     "                [-vpelement | -vpbranch | -vpversion] [-shared]\n"
     "                [-vtype {integer | real | time | string | opaque}]\n"
     "                [-gt low-value | -ge low-value] [-lt high-value | -le high-value]\n"
     "                [-enum value[,...]] [-default default-value]\n"
     "                [-c comment | -cfile pname | -cq | -cqe | -nc] type-selector ...",
     cmdMkattype, kMkattypeExclusive},
    {"mkbl", "", kMkbl,
     "Usage: mkbl [-c comment | -cfile pname | -cq | -cqe | -nc] [-view view-tag]\n"
     "            [-component component-selector[,...] | -all | -activities activity-selector[,...]]\n"
     "            [-identical] [-nlabel | -incremental | -full]\n"
     "            {root-name | -import [component-selector[,...]] lbtype-selector ...}",
     cmdMkbl, kMkblExclusive},
    {"mkbrtype", "", kMkbrtype,
     "Usage: mkbrtype [-replace] [-global [-acquire] | -ordinary] [-pbranch]\n"
     "                [-c comment | -cfile pname | -cq | -cqe | -nc] type-selector ...",
     cmdMkbrtype, kTypeExclusive},
    {"mkcomp", "", kMkcomp,
     "Usage: mkcomp [-c comment | -cfile pname | -cq | -cqe | -nc] {-root dir-pname | -nroot}\n"
     "              component-selector",
     cmdMkcomp},
    {"mkdir", "", kMkdir, "Usage: mkdir [-c comment | -cfile pname | -cq | -cqe | -nc] [-nco] [-master] dir-pname ...",
     cmdMkdir},
    {"mkelem", "", kMkelem,
     "Usage: mkelem [-eltype element-type-name] [-nco | -ci [-ptime]] [-mkpath] [-master]\n"
     "              [-nwarn] [-c comment | -cfile pname | -cq | -cqe | -nc] element-pname ...",
     cmdMkelem, kMkelemExclusive},
    {"mkfolder", "", kMkfolder,
     "Usage: mkfolder [-c comment | -cfile pname | -cq | -cqe | -nc] -in parent-folder-selector\n"
     "                folder-selector ...",
     cmdMkfolder},
    {"mklabel", "", kMklabel,
     "Usage: mklabel [-replace] [-recurse] [-follow] [-version version-selector]\n"
     "               [-c comment | -cfile pname | -cq | -cqe | -nc] label-type-selector pname ...",
     cmdMklabel},
    {"mklbtype", "", kMklbtype,
     "Usage: mklbtype [-replace] [-global [-acquire] | -ordinary] [-pbranch] [-shared]\n"
     "                [-c comment | -cfile pname | -cq | -cqe | -nc] type-selector ...",
     cmdMklbtype, kTypeExclusive},
    {"mkproject", "mkproj", kMkproject,
     "Usage: mkproject [-c comment | -cfile pname | -cq | -cqe | -nc] [-modcomp component-selector[,...]]\n"
     "                 -in folder-selector project-selector",
     cmdMkproject},
    {"mkstream", "mkstr", kMkstream,
     "Usage: mkstream [-c comment | -cfile pname | -cq | -cqe | -nc] [-integration]\n"
     "                -in project-selector [-baseline baseline-selector[,...]] stream-selector",
     cmdMkstream},
    {"mkview", "", kMkview, "Usage: mkview -tag view-tag -snapshot [-stream stream-selector] [-vws pname] snapshot-view-pname",
     cmdMkview},
    {"mkvob", "", kMkvob,
     "Usage: mkvob -tag vob-tag [-ucmproject] [-c comment | -cfile pname | -cq | -cqe | -nc]\n"
     "             [-public] [-password tag-password] vob-storage-pname",
     cmdMkvob},
    {"pwv", "", kPwv, "Usage: pwv [-short] [-wdview | -setview]", cmdPwv},
    {"rmview", "", kRmview, "Usage: rmview [-force] {-tag view-tag | view-storage-pname}", cmdRmview},
    {"setactivity", "setact", kSetactivity,
     "Usage: setactivity [-c comment | -cfile pname | -cq | -cqe | -nc] [-view view-tag]\n"
     "                   {-none | activity-selector}",
     cmdSetactivity},
    {"setcs", "", kSetcs,
     "Usage: setcs [-tag view-tag] [-force] [-overwrite] [-ctime | -ptime]\n"
     "             {-current | -default | -stream | config-spec-pname}",
     cmdSetcs},
    {"uncheckout", "unco", kUncheckout, "Usage: uncheckout | unco [-keep | -rm] [-cwork] {-cact | pname ...}",
     cmdUncheckout, kKeepOrRemove},
    {"unlock", "", kUnlock,
     "Usage: unlock [-c comment | -cfile pname | -cq | -cqe | -nc] [-version version-selector]\n"
     "              {-pname pname ... | object-selector ...}",
     cmdUnlock},
    {"update", "", kUpdate,
     "Usage: update [-graphical] [-print] [-force] [-overwrite | -noverwrite | -rename]\n"
     "              [-ctime | -ptime] [-log pname] [pname ...]",
     cmdUpdate, kUpdateExclusive},
};

#undef CCSIM_COMMENT

void printVersion(std::ostream& out, bool lt)
{
    if (lt) {
        out << "Rational ClearCase LT Client 2003.06.00 (Tue Jun 10 14:02:11 2003)\n"
               "cleartool                         2003.06.00 (Tue Jun 10 14:02:11 2003)\n"
               "ccsim store schema version: 1\n";
        return;
    }
    out << "Rational ClearCase version 2003.06.00 (Tue Jun 10 14:02:11 2003)\n"
           "@(#) MVFS version 2003.06.00 (Tue Jun 10 14:02:11 2003)\n"
           "cleartool                         2003.06.00 (Tue Jun 10 14:02:11 2003)\n"
           "db_server                         2003.06.00 (Tue Jun 10 14:02:11 2003)\n"
           "VOB database schema version: 54\n";
}

/// Tests stop the program here as a time-out would: $CCSIM_KILL_AT names the step it does not reach.
void killedAt(std::string_view step)
{
    const char* at = std::getenv("CCSIM_KILL_AT");
    if (at && step == at)
        std::raise(SIGKILL);
}

} // namespace

std::span<const Command> commands()
{
    return kCommands;
}

const Command* findCommand(std::string_view name)
{
    for (const Command& c : kCommands) {
        if (c.name == name)
            return &c;
        std::istringstream aliases{std::string(c.aliases)};
        for (std::string a; aliases >> a;) {
            if (a == name)
                return &c;
        }
    }
    return nullptr;
}

void checkExclusive(const Command& cmd, const ParsedArgs& args)
{
    for (std::string_view group : cmd.exclusive) {
        std::vector<std::string> given;
        std::istringstream names{std::string(group)};
        for (std::string name; names >> name;) {
            if (args.has(name))
                given.push_back("-" + name);
        }
        if (given.size() > 1)
            throw UsageError{message(Msg::ConflictingOptions, {given[0], given[1]})};
    }
}

std::string commentOf(Session& s, const ParsedArgs& args)
{
    if (auto file = args.value("cfile")) {
        const fs::path p = s.resolve(*file).abs;
        std::error_code ec;
        if (!fs::is_regular_file(p, ec))
            fail(message(Msg::CannotOpenFile, {*file}));
        std::string text = readFile(p);
        while (!text.empty() && text.back() == '\n')
            text.pop_back();
        return text;
    }
    return args.value("comment").value_or("");
}

void requireOperands(const ParsedArgs& args)
{
    if (args.operands().empty())
        throw UsageError{message(Msg::MissingOperand)};
}

int runCleartool(const std::vector<std::string>& args, const fs::path& cwd, std::ostream& out, std::ostream& err,
                 std::istream& in, std::unique_ptr<Store>* keep)
{
    Environment env = readEnvironment();
    if (args.empty() || args[0] == "-h" || args[0] == "-help" || (args[0] == "help" && args.size() == 1)) {
        for (const Command& c : kCommands)
            out << c.usage << '\n';
        return 0;
    }
    if (args[0] == "-version" || args[0] == "-ver" || args[0] == "-VerAll" || args[0] == "-verall") {
        printVersion(out, env.lt);
        return 0;
    }
    if (args[0] == "help") {
        const Command* c = findCommand(args[1]);
        if (!c) {
            err << "cleartool: Error: " << message(Msg::UnrecognizedCommand, {args[1]}) << '\n';
            return 1;
        }
        out << c->usage << '\n';
        return 0;
    }
    const Command* cmd = findCommand(args[0]);
    if (!cmd) {
        err << "cleartool: Error: " << message(Msg::UnrecognizedCommand, {args[0]}) << '\n';
        return 1;
    }
    const std::vector<std::string> rest(args.begin() + 1, args.end());
    ParseResult parsed = parseOptions(rest, cmd->options);
    switch (parsed.status) {
    case ParseResult::Status::Help:
        out << cmd->usage << '\n';
        return 0;
    case ParseResult::Status::UnknownOption:
        err << "cleartool: Error: " << message(Msg::UnrecognizedOption, {parsed.offending}) << '\n'
            << cmd->usage << '\n';
        return 1;
    case ParseResult::Status::MissingValue:
        err << "cleartool: Error: " << message(Msg::OptionNeedsArgument, {parsed.offending}) << '\n'
            << cmd->usage << '\n';
        return 1;
    case ParseResult::Status::Ok:
        break;
    }
    auto now = clockNow(std::getenv("CCSIM_NOW"));
    if (!now) {
        err << "cleartool: Error: " << message(Msg::BadEnvironment, {"CCSIM_NOW", std::getenv("CCSIM_NOW")}) << '\n';
        return 1;
    }
    env.now = *now;
    try {
        std::error_code ec;
        fs::create_directories(env.home, ec);
        std::unique_ptr<Store> own;
        std::unique_ptr<Store>& holder = keep ? *keep : own;
        if (!holder)
            holder = std::make_unique<Store>((env.home / "ccsim.db").string());
        Store& store = *holder;
        FileChanges::applyRecorded(store);
        Transaction tx(store);
        Session session(store, env, cwd, out, err, in);
        try {
            checkExclusive(*cmd, parsed.args);
            cmd->handler(session, parsed.args);
        } catch (const Failure& f) {
            for (const std::string& line : f.lines)
                session.error(line);
            return 1;
        } catch (const UsageError& u) {
            session.error(u.cause);
            err << cmd->usage << '\n';
            return 1;
        }
        session.files.record(store);
        killedAt("commit");
        tx.commit();
        killedAt("files");
        FileChanges::applyRecorded(store);
        return session.status();
    } catch (const StoreError& e) {
        err << "cleartool: Error: " << message(Msg::StoreFailure, {e.what()}) << '\n';
        return 1;
    } catch (const fs::filesystem_error& e) {
        err << "cleartool: Error: " << e.what() << '\n';
        return 1;
    }
}

} // namespace ccsim
