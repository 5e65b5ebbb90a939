#include "CmdDescribe.h"

#include "ConfigSpec.h"
#include "Listing.h"
#include "Model.h"

#include <algorithm>

namespace ccsim {

void describeStream(Session& s, Id stream)
{
    const UcmRecord r = ucmRecord(s.store, ObjectKind::Stream, stream);
    const StreamRecord st = streamRecord(s.store, stream);
    const Id project = st.project;
    s.print("stream \"" + r.name + "\"" + lockSuffix(s.store, ObjectKind::Stream, stream));
    printCreated(s, ObjectKind::Stream, stream, r.created, r.user, r.comment);
    printOwner(s, r.user);
    s.print("  project: " + ucmSelector(s.store, ObjectKind::Project, project));
    s.print("  title: " + r.name);
    if (!st.integration) {
        auto integration = integrationStream(s.store, project);
        if (integration)
            s.print("  default deliver stream: " + ucmSelector(s.store, ObjectKind::Stream, *integration));
    }
    s.print("  contains activities:");
    for (Id activity : streamActivities(s.store, stream))
        s.print("    " + ucmSelector(s.store, ObjectKind::Activity, activity));
    s.print("  foundation baselines:");
    for (Id baseline : foundationBaselines(s.store, stream))
        s.print("    " + ucmSelector(s.store, ObjectKind::Baseline, baseline) + " (" +
                ucmSelector(s.store, ObjectKind::Component, baselineRecord(s.store, baseline).component) + ")");
    s.print("  recommended baselines:");
    s.print("  views:");
    for (const std::string& tag : streamViewTags(s.store, stream))
        s.print("    " + tag);
}

namespace {


void describeType(Session& s, Id id)
{
    const TypeRecord type = typeRecord(s.store, id);
    const ObjectKind kind = *objectKind(type.kind);
    s.print(typeKindWord(type.kind) + " \"" + type.name + "\"" + lockSuffix(s.store, kind, id));
    printCreated(s, kind, id, type.creation.created, type.creation.user, type.creation.comment);
    printOwner(s, type.creation.user);
    s.print(std::string("  scope: this VOB (") + (type.global ? "global" : "ordinary") + " type)");
    switch (kind) {
    case ObjectKind::LabelType:
    case ObjectKind::BranchType:
        s.print(std::string("  constraint: one version per ") + (type.perBranch ? "branch" : "element"));
        break;
    case ObjectKind::AttributeType: {
        const ValueRule& rule = type.rule;
        s.print("  value type: " + rule.vtype);
        if (rule.lower)
            s.print("  lower bound: " + *rule.lower + (rule.lowerInclusive ? " (inclusive)" : " (exclusive)"));
        if (rule.upper)
            s.print("  upper bound: " + *rule.upper + (rule.upperInclusive ? " (inclusive)" : " (exclusive)"));
        if (rule.defaultValue)
            s.print("  default value: " + *rule.defaultValue);
        break;
    }
    default: // other types print only their scope
        break;
    }
    printAttributes(s, kind, id);
}

void describeVersion(Session& s, const ObjectRef& o, const Target* t)
{
    const VersionInfo v = versionInfo(s.store, o.id);
    std::optional<Checkout> co;
    if (t && !t->extended && t->view)
        co = checkoutIn(s.store, v.element, t->view->id);
    const VersionRecord record = versionRecord(s.store, o.id);
    if (co) {
        s.print("version \"" + t->given + "@@" + v.branchPath + "/CHECKEDOUT\" from " + v.extension() +
                (co->reserved ? " (reserved)" : " (unreserved)"));
        printCreated(s, ObjectKind::Version, o.id, co->created, co->user, co->comment);
    } else {
        s.print("version \"" + o.name + "\"" + lockSuffix(s.store, ObjectKind::Version, o.id));
        printCreated(s, ObjectKind::Version, o.id, record.creation.created, record.creation.user, record.creation.comment);
    }
    s.print("  element type: " + elementType(s.store, v.element));
    if (co)
        s.print("  predecessor version: " + v.extension());
    else if (record.pred)
        s.print("  predecessor version: " + versionInfo(s.store, *record.pred).extension());
    const std::vector<std::string> labels = versionLabels(s.store, o.id);
    if (!labels.empty())
        s.print("  Labels:");
    for (const std::string& label : labels)
        s.print("    " + label);
    printAttributes(s, ObjectKind::Version, o.id);
}

void describeActivity(Session& s, Id activity)
{
    const ActivityRecord a = activityRecord(s.store, activity);
    s.print("  stream: " + ucmSelector(s.store, ObjectKind::Stream, a.stream));
    s.print("  title: " + a.headline);
    s.print("  change set versions:");
    for (Id version : changeSet(s.store, activity)) {
        const VersionInfo v = versionInfo(s.store, version);
        const std::string path = elementPath(s.store, v.element);
        s.print("    " + vobTag(s.store, vobOfElement(s.store, v.element)) + (path.empty() ? "" : "/" + path) + "@@" +
                v.extension());
    }
}

void describeBaseline(Session& s, Id baseline)
{
    const BaselineRecord b = baselineRecord(s.store, baseline);
    if (b.stream)
        s.print("  stream: " + ucmSelector(s.store, ObjectKind::Stream, *b.stream));
    s.print("  component: " + ucmSelector(s.store, ObjectKind::Component, b.component));
    const std::string& kind = b.kind;
    s.print(std::string("  label status: ") +
            (kind == "nlabel" ? "Not Labeled" : kind == "incremental" ? "Incrementally Labeled" : "Fully Labeled"));
}

void describeProject(Session& s, Id project)
{
    if (auto integration = integrationStream(s.store, project))
        s.print("  integration stream: " + ucmSelector(s.store, ObjectKind::Stream, *integration));
    s.print("  modifiable components:");
    for (Id component : projectComponents(s.store, project))
        s.print("    " + ucmSelector(s.store, ObjectKind::Component, component));
}

void describeUcm(Session& s, const ObjectRef& o)
{
    const ObjectKind kind = o.kind;
    if (kind == ObjectKind::Stream) {
        describeStream(s, o.id);
        return;
    }
    const UcmRecord r = ucmRecord(s.store, kind, o.id);
    s.print(o.kindWord + " \"" + r.name + "\"" + lockSuffix(s.store, o.kind, o.id));
    printCreated(s, o.kind, o.id, r.created, r.user, r.comment);
    printOwner(s, r.user);
    switch (kind) {
    case ObjectKind::Activity:
        describeActivity(s, o.id);
        break;
    case ObjectKind::Component:
        if (const std::string root = componentRootPath(s.store, o.id); !root.empty())
            s.print("  root directory: " + root);
        break;
    case ObjectKind::Baseline:
        describeBaseline(s, o.id);
        break;
    case ObjectKind::Project:
        describeProject(s, o.id);
        break;
    default: // a folder prints only what every UCM object does
        break;
    }
    printAttributes(s, o.kind, o.id);
}

void describeOne(Session& s, const std::string& operand, const std::optional<std::string>& version)
{
    Selector sel = parseSelector(operand);
    std::optional<Target> t;
    ObjectRef o;
    if (sel.kind.empty()) {
        t = s.resolve(operand);
        o = resolvePathObject(s, *t, version);
    } else {
        o = resolveObject(s, operand);
    }
    switch (o.kind) {
    case ObjectKind::Version:
        describeVersion(s, o, t ? &*t : nullptr);
        break;
    case ObjectKind::Element:
    case ObjectKind::Branch: {
        const bool isElement = o.kind == ObjectKind::Element;
        const Id element = isElement ? o.id : elementOfBranch(s.store, o.id);
        const Creation c = isElement ? elementCreation(s.store, o.id) : branchCreation(s.store, o.id);
        if (isElement)
            s.print(std::string(isDirectory(s.store, element) ? "directory" : "file") + " element \"" + o.name + "\"" +
                    lockSuffix(s.store, ObjectKind::Element, o.id));
        else
            s.print("branch \"" + o.name + "\"" + lockSuffix(s.store, ObjectKind::Branch, o.id));
        printCreated(s, o.kind, o.id, c.created, c.user, c.comment);
        if (isElement)
            s.print("  element type: " + elementType(s.store, element));
        else
            s.print("  branch type: main");
        printAttributes(s, o.kind, o.id);
        break;
    }
    case ObjectKind::LabelType:
    case ObjectKind::BranchType:
    case ObjectKind::AttributeType:
    case ObjectKind::ElementType:
    case ObjectKind::HyperlinkType:
    case ObjectKind::TriggerType:
        describeType(s, o.id);
        break;
    case ObjectKind::Vob: {
        const VobRecord v = vobRecord(s.store, o.id);
        s.print("versioned object base \"" + o.name + "\"" + lockSuffix(s.store, ObjectKind::Vob, o.id));
        printCreated(s, ObjectKind::Vob, o.id, v.creation.created, v.creation.user, v.creation.comment);
        s.print("  VOB storage global pathname \"" + v.storage + "\"");
        if (v.ucm)
            s.print("  VOB family feature level: 5 (project VOB)");
        printOwner(s, v.creation.user);
        printAttributes(s, ObjectKind::Vob, o.id);
        break;
    }
    default:
        describeUcm(s, o);
        break;
    }
}

} // namespace

void cmdDescribe(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    s.forEach(args.operands(), [&](const std::string& op) { describeOne(s, op, args.value("version")); });
}

} // namespace ccsim
