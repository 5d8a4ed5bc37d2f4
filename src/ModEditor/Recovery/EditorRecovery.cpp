#include "EditorRecovery.h"

#include "EditorWidget.h"
#include "LateContent.h"

#include <QTextDocument>

namespace nsModEditor {

namespace {

const int lookDelay = 3000; ///< milliseconds: what a kill can cost

/// Characters of a text that is compared as a whole. Of a larger one, whose copy would be felt, the revision is
/// compared.
const int maxComparedLength = 4 * 1024 * 1024;

bool isLarge(EditorWidget* widget)
{
    return widget->document()->characterCount() > maxComparedLength;
}

} // namespace

EditorRecovery::EditorRecovery(QObject* parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
    m_timer.setInterval(lookDelay);
    connect(&m_timer, &QTimer::timeout, this, &EditorRecovery::writeChanged);
    m_timer.start();
    LateContent::later(this, [this] { prune(); });
}

EditorRecovery::~EditorRecovery()
{
    m_pool.waitForDone();
}

void EditorRecovery::add(EditorWidget* widget)
{
    m_states.insert(widget, State());
    // Pages that go with their window.
    connect(widget, &QObject::destroyed, this, [this, widget] { m_states.remove(widget); });
}

void EditorRecovery::forget(EditorWidget* widget)
{
    if (!m_states.contains(widget))
        return;
    State state = m_states.take(widget);
    if (!state.isKept)
        removeEntry(&state);
}

void EditorRecovery::release(EditorWidget* widget)
{
    if (isKept(widget))
        m_states[widget] = State();
}

void EditorRecovery::setSaved(EditorWidget* widget)
{
    if (m_states.contains(widget))
        removeEntry(&m_states[widget]);
}

void EditorRecovery::removeEntry(State* state)
{
    if (state->hasEntry)
        m_pool.start([store = &m_store, id = state->id] { store->remove(*id); });
    *state = State();
}

/// While a document keeps its text, so does its entry. A text edit whose undo step is still open counts no revisions,
/// so the text itself decides as long as that is cheap.
bool EditorRecovery::hasChanged(EditorWidget* widget, const State& state) const
{
    if (!state.hasEntry || state.isStale)
        return true;
    return isLarge(widget) ? widget->document()->revision() != state.revision : widget->text() != state.text;
}

void EditorRecovery::writeChanged()
{
    for (auto it = m_states.begin(); it != m_states.end(); ++it) {
        if (!it.key()->isModified()) {
            if (it->hasEntry && !it->isKept)
                removeEntry(&it.value());
        } else if (hasChanged(it.key(), it.value())) {
            write(it.key(), &it.value(), RecoveryStore::eKindUnsaved, true);
        }
    }
    emit looking();
}

/// With a place for the error the job is done when this returns.
void EditorRecovery::write(EditorWidget* widget, State* state, RecoveryStore::eKind_t kind, bool isNew, QString* error)
{
    RecoveryStore::Entry entry;
    entry.kind = kind;
    entry.isNew = isNew;
    entry.path = widget->filePath();
    entry.project = m_project;
    const QString text = widget->text();
    state->hasEntry = true;
    state->isKept = kind == RecoveryStore::eKindDropped;
    state->isStale = false;
    state->revision = widget->document()->revision();
    state->text = isLarge(widget) ? QString() : text;
    m_pool.start([this, entry, text, error, id = state->id]() mutable {
        entry.id = *id;
        QString reason;
        const QString result = m_store.put(entry, text.toUtf8(), &reason);
        if (!result.isEmpty())
            *id = result;
        if (error != nullptr)
            *error = result.isEmpty() ? reason : QString();
        else
            QMetaObject::invokeMethod(this,
                                      [this, reason, done = !result.isEmpty()] { report(done ? QString() : reason); });
    });
    if (kind == RecoveryStore::eKindDropped)
        prune();
    if (error != nullptr)
        m_pool.waitForDone();
}

void EditorRecovery::report(const QString& error)
{
    if (error.isEmpty())
        m_failureReported = false;
    else if (!m_failureReported)
        emit failed(error);
    m_failureReported = !error.isEmpty();
    if (m_failureReported) {
        for (State& state : m_states)
            state.isStale = true;
    }
}

void EditorRecovery::prune()
{
    m_pool.start([store = &m_store] { store->prune(QDateTime::currentDateTimeUtc()); });
}

bool EditorRecovery::keep(EditorWidget* widget, bool isNew, QString* error)
{
    if (!m_states.contains(widget))
        return false;
    QString reason;
    State& state = m_states[widget];
    write(widget, &state, RecoveryStore::eKindDropped, isNew, &reason);
    if (reason.isEmpty())
        return true;
    state.isKept = false;
    state.isStale = true;
    if (error != nullptr)
        *error = reason;
    return false;
}

bool EditorRecovery::isKept(EditorWidget* widget) const
{
    const auto state = m_states.constFind(widget);
    return state != m_states.cend() && state->isKept && !hasChanged(widget, *state);
}

bool EditorRecovery::take(const QString& id, EditorWidget* widget)
{
    m_pool.waitForDone();
    const QString taken = m_store.take(id);
    if (taken.isEmpty() || !m_states.contains(widget))
        return false;
    State& state = m_states[widget];
    removeEntry(&state);
    *state.id = taken;
    state.hasEntry = true;
    return true;
}

void EditorRecovery::putSession(const RecoveryStore::Session& session)
{
    const auto value = [](const RecoveryStore::Session& s) {
        return s.project + QChar(0) + s.files.join(QChar(0)) + QChar(0) + s.lastFile + QChar(0) +
               QString::number(s.lastCursorPos);
    };
    if (value(session) == value(m_session))
        return;
    m_session = session;
    m_pool.start([store = &m_store, session] { store->putSession(session); });
}

} // namespace nsModEditor
