// What an installed window checks of itself: it was started with a copy of the UART monitor.

var isGood = true;
var isAtEnd = false;

function check(good, what) {
    print((good ? 'good: ' : 'BAD: ') + what);
    isGood = isGood && good;
}

function reportMessages() {
    var messages = msg.allMessages();
    for (var i = 0; i < messages.length; ++i) {
        if (messages[i].grade === 'error')
            check(false, messages[i].text);
        else if (messages[i].text.indexOf('Loading font: ') === 0)
            print(messages[i].text);
    }
}

// The help opens beside the event loop, before this.
function finish() {
    reportMessages();
    if (isGood && isAtEnd)
        print('The window works.');
    app.exit();
}

// Also if the script fails before its end.
setTimeout(function() { setTimeout(finish, 0); }, 0);

// What was reported at the start; a run of the assembler takes it away.
reportMessages();
check(project.isOpen(), 'the project is open');
check(assembler.assemble(1), 'the project is assembled');
check(assembler.writtenFiles().length === 4, 'four files are written');
check(simulator.enable() && simulator.run(100) > 0, 'the program is simulated');
simulator.disable();
importFiles.importFile(project.path().replace(/[^\/]*$/, '') + '../import/kcpsm3/belt_counter.psm', 'KCPSM3');
check(true, 'the import page opens with the filter KCPSM3');
importFiles.closeImportDialog();
isAtEnd = true;
