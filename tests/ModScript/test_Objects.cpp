// What scripts can do with objects, and what happens when these go.

#include "ScriptFixture.h"

TEST_F(ScriptTest, aDeletedObjectIsAScriptError)
{
    auto object = std::make_unique<ScriptTarget>();
    script->registerObject(object.get(), "other");
    EXPECT_TRUE(run("var kept = other; other.note('a');"));
    object.reset();
    EXPECT_FALSE(run("\nkept.note('b');"));
    ASSERT_EQ(msg.errors().size(), 1);
    EXPECT_TRUE(msg.errors().first().startsWith("Uncaught exception at line 2 - ")) << qPrintable(msg.dump());
    EXPECT_TRUE(run("try { other.note('c'); } catch (e) { test.note('caught'); }"));
    EXPECT_EQ(target.notes, QStringList("caught"));
}

TEST_F(ScriptTest, anObjectCanGoWhileAScriptCallsAnother)
{
    auto* object = new ScriptTarget;
    script->registerObject(object, "other");
    target.during = [object] { delete object; };
    EXPECT_FALSE(run("other.note('a'); test.meanwhile(); other.note('b');"));
    EXPECT_EQ(msg.errors().size(), 1);
}

TEST_F(ScriptTest, aNullObjectIsNothingToCall)
{
    script->registerObject(nullptr, "nothing");
    EXPECT_FALSE(run("nothing.note('a');"));
    EXPECT_EQ(msg.errors().size(), 1);
    EXPECT_TRUE(run("test.note('on');"));
}

TEST_F(ScriptTest, aNameThatIsRegisteredAgainLeadsToTheNewObject)
{
    ScriptTarget other;
    script->registerObject(&other, "test");
    EXPECT_TRUE(run("test.note('a');"));
    EXPECT_EQ(other.notes, QStringList("a"));
    EXPECT_TRUE(target.notes.isEmpty());
}

TEST_F(ScriptTest, anUnregisteredNameStaysBound)
{
    script->unregisterObject("test");
    script->unregisterObject("never there");
    EXPECT_TRUE(run("test.note('a');"));
    EXPECT_EQ(target.notes, QStringList("a"));
}

TEST_F(ScriptTest, theEngineDoesNotOwnTheObjects)
{
    auto* object = new ScriptTarget;
    QPointer<ScriptTarget> alive(object);
    script->registerObject(object, "other");
    EXPECT_TRUE(run("other = null;"));
    script.reset();
    ASSERT_NE(alive, nullptr);
    delete object;
}

TEST_F(ScriptTest, aScriptCanNotDeleteObjectsAndReachesNoChildren)
{
    auto* child = new QObject(&target);
    child->setObjectName("child");
    EXPECT_TRUE(run("test.note(typeof test.deleteLater); test.note(typeof test.child);"
                    "test.note(typeof test.findChild); test.note(typeof test.findChildren);"));
    EXPECT_EQ(target.notes, QStringList({"undefined", "undefined", "undefined", "undefined"}));
}

TEST_F(ScriptTest, aTextIsTakenAsALink)
{
    EXPECT_TRUE(run("test.take('pageid://page#key');"));
    EXPECT_EQ(target.urls, QList<QUrl>{QUrl("pageid://page#key")});
}

TEST_F(ScriptTest, anOperationCanEndWithAScriptError)
{
    target.during = [this] { script->throwError("can not be done"); };
    EXPECT_TRUE(run("try { test.meanwhile(); } catch (e) { test.note('' + e); }"));
    EXPECT_EQ(target.notes, QStringList("Error: can not be done"));
    EXPECT_FALSE(run("\ntest.meanwhile();"));
    EXPECT_EQ(msg.errors(), QStringList("Uncaught exception at line 2 - Error: can not be done"));
    // Without a script there is nobody to tell.
    script->throwError("to nobody");
    EXPECT_EQ(msg.errors().size(), 1);
}

TEST_F(ScriptTest, recursionWithoutEndIsAScriptError)
{
    const char* const scripts[] = {
        "function f() { f(); } f();",
        "function g() { [1].map(g); } g();",
        "var h = { toString: function() { return '' + h; } }; '' + h;",
        "function s() { [2, 1].sort(s); } s();",
        "function k() { test.fire(); } test.fired.connect(k); k(); throw new RangeError('ended');",
        "test.fired.disconnect(k); var o = { get x() { return this.x; } }; o.x;",
        "function c() { eval('c()'); } c();",
    };
    for (const char* text : scripts) {
        SCOPED_TRACE(text);
        msg.reset();
        EXPECT_FALSE(run(text));
        ASSERT_FALSE(msg.errors().isEmpty());
        EXPECT_TRUE(msg.errors().last().contains("RangeError")) << qPrintable(msg.dump());
    }
    EXPECT_TRUE(run("test.note('on');"));
}

TEST_F(ScriptTest, deepNestingIsNoCrash)
{
    EXPECT_FALSE(run(QString(200000, '(')));
    EXPECT_FALSE(run(QString(200000, '{')));
    EXPECT_FALSE(run(QString(200000, '!') + '1'));
    EXPECT_FALSE(run("var a = []; for (var i = 0; i < 1000000; i++) a = [a]; '' + a;"));
    EXPECT_EQ(msg.errors().size(), 4);
}

TEST_F(ScriptTest, longTextsArriveWhole)
{
    EXPECT_TRUE(run("var s = 'x'; for (var i = 0; i < 24; ++i) s += s; test.note('' + test.length(s));"));
    EXPECT_EQ(target.notes, QStringList(QString::number(1 << 24)));
    EXPECT_FALSE(run("throw s;"));
    EXPECT_EQ(msg.errors().value(0).size(), (1 << 24) + QString("Uncaught exception at line 1 - ").size());
}

TEST_F(ScriptTest, functionsAreConnectedAndDisconnected)
{
    EXPECT_TRUE(run("var seen = []; function f(v) { seen.push(v); }\n"
                    "var o = { name: 'o', g: function(v) { seen.push(this.name + v); } };\n"
                    "test.fired.connect(f); test.fired.connect(o, 'g'); test.fired.connect(o, o.g);\n"
                    "test.fire(); test.note(seen.join());\n"
                    "test.fired.disconnect(f); test.fired.disconnect(o, 'g'); test.fired.disconnect(o, o.g);\n"
                    "test.fire(); test.note(seen.join());"))
        << qPrintable(msg.dump());
    EXPECT_EQ(target.notes, QStringList({"7,o7,o7", "7,o7,o7"}));
}

TEST_F(ScriptTest, operationsAreConnectedAndDisconnected)
{
    EXPECT_TRUE(run("test.fired.connect(test.note); test.fire(); test.fired.disconnect(test.note); test.fire();"))
        << qPrintable(msg.dump());
    EXPECT_EQ(target.notes, QStringList("7"));
}

TEST_F(ScriptTest, connectionsToWhatIsNoFunctionAreScriptErrors)
{
    const char* const calls[] = {"test.fired.connect(17)",
                                 "test.fired.connect()",
                                 "test.fired.connect(null)",
                                 "test.fired.connect(null, 'f')",
                                 "test.fired.connect(5, 'f')",
                                 "test.fired.connect(null, null)",
                                 "test.fired.connect({}, 'f')",
                                 "test.fired.connect({}, {})",
                                 "test.fired.connect.call(3, function() {})",
                                 "(function() {}).connect(function() {})",
                                 "test.note.connect(function() {})",
                                 "test.fired.disconnect(function() {})",
                                 "test.fired.disconnect(null, 'f')",
                                 "test.fired.disconnect(undefined, undefined)"};
    for (const char* call : calls) {
        msg.reset();
        EXPECT_FALSE(run(QString("\n\n%1;").arg(call))) << call;
        EXPECT_TRUE(msg.errors().value(0).startsWith("Uncaught exception at line 3 - ")) << qPrintable(msg.dump());
    }
    EXPECT_TRUE(run("test.fired.connect(null, function() { test.note('a'); }); test.fire();"));
    EXPECT_EQ(target.notes, QStringList("a"));
}

TEST_F(ScriptTest, anExceptionInAConnectedFunctionIsReportedOnce)
{
    EXPECT_TRUE(run("test.fired.connect(function() {\n\nthrow 'inner'; });"));
    emit target.fired(1);
    EXPECT_EQ(msg.errors(), QStringList("Uncaught exception at line 3 - inner"));
    msg.reset();
    EXPECT_TRUE(run("test.fire(); test.note('on');")) << qPrintable(msg.dump());
    EXPECT_EQ(msg.errors(), QStringList("Uncaught exception at line 3 - inner"));
    EXPECT_EQ(target.notes, QStringList("on"));
}
