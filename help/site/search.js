/* The search of the web site. search-index.js holds what is searched; it is loaded when a reader begins to type.
   Only what every browser of the last ten years knows is used here. */

/* The places that hold every word of the query, the best first: titles and names count more than further words of the index, and these
   more than text. */
function nalvoSearch(index, query, limit) {
    var words = query.toLowerCase().split(/\s+/).filter(function (word) { return word !== ""; });
    if (words.length === 0)
        return [];

    function beginsWord(text, at) {
        return at === 0 || !/[a-z0-9]/.test(text.charAt(at - 1));
    }

    function inTitle(title, word) {
        var at = title.indexOf(word);
        if (at < 0)
            return 0;
        if (title === word || title === "#" + word)
            return 1000;
        if (at === 0)
            return 400;
        return beginsWord(title, at) ? 300 : 200;
    }

    function inWords(list, word) {
        if (list.split(", ").indexOf(word) >= 0)
            return 150;
        return list.indexOf(word) >= 0 ? 60 : 0;
    }

    function inText(text, word) {
        var at = text.indexOf(word);
        if (at < 0)
            return 0;
        while (at >= 0 && !beginsWord(text, at))
            at = text.indexOf(word, at + 1);
        return at >= 0 ? 10 : 5;
    }

    var found = [];
    index.forEach(function (place, order) {
        var title = place.t.toLowerCase();
        var further = place.k.toLowerCase();
        var page = place.p.toLowerCase();
        var text = place.x.toLowerCase();
        var sum = 0;
        for (var i = 0; i < words.length; ++i) {
            var here = Math.max(inTitle(title, words[i]), inWords(further, words[i]));
            if (here === 0)
                here = Math.max(inText(text, words[i]), page.indexOf(words[i]) >= 0 ? 7 : 0);
            if (here === 0)
                return;
            sum += here;
        }
        if (words.length > 1 && title.indexOf(words.join(" ")) >= 0)
            sum += 500;
        // Of two that are equal, the page comes before a place in it.
        found.push({ place: place, sum: sum + (place.p === "" ? 1 : 0), order: order });
    });
    found.sort(function (a, b) { return b.sum - a.sum || a.order - b.order; });
    return found.slice(0, limit).map(function (entry) { return entry.place; });
}

/* Some text around the first word of the query. */
function nalvoExcerpt(text, query) {
    var length = 160;
    var at = text.toLowerCase().indexOf(query.toLowerCase().split(/\s+/)[0]);
    var begin = at > length / 2 ? text.indexOf(" ", at - length / 2) + 1 : 0;
    if (begin > at || at < 0)
        begin = 0;
    var part = text.substr(begin, length);
    if (begin + length < text.length)
        part = part.substr(0, Math.max(part.lastIndexOf(" "), 1));
    return (begin > 0 ? "... " : "") + part + (begin + length < text.length ? " ..." : "");
}

if (typeof document !== "undefined") {
    (function () {
        var field = document.getElementById("query");
        var list = document.getElementById("found");
        var results = document.getElementById("results");
        var loading = false;

        function fill(target, places, query, withText) {
            target.textContent = "";
            places.forEach(function (place) {
                var item = document.createElement("li");
                var link = document.createElement("a");
                link.href = place.u;
                link.textContent = place.t;
                item.appendChild(link);
                if (place.p !== "") {
                    var page = document.createElement("small");
                    page.textContent = " " + place.p;
                    item.appendChild(page);
                }
                if (withText && place.x !== "") {
                    var text = document.createElement("p");
                    text.textContent = nalvoExcerpt(place.x, query);
                    item.appendChild(text);
                }
                target.appendChild(item);
            });
        }

        function suggest() {
            if (typeof nalvoIndex === "undefined")
                return;
            var places = nalvoSearch(nalvoIndex, field.value, 10);
            fill(list, places, field.value, false);
            list.hidden = places.length === 0;
        }

        function load() {
            if (loading || typeof nalvoIndex !== "undefined")
                return;
            loading = true;
            var script = document.createElement("script");
            script.src = "search-index.js";
            script.onload = suggest;
            document.body.appendChild(script);
        }

        function move(event) {
            var links = Array.prototype.slice.call(list.querySelectorAll("a"));
            var at = links.indexOf(document.activeElement);
            if (event.key === "Escape") {
                list.hidden = true;
                field.focus();
            } else if (event.key === "ArrowDown" && !list.hidden && at + 1 < links.length) {
                links[at + 1].focus();
            } else if (event.key === "ArrowUp" && at >= 0) {
                (at === 0 ? field : links[at - 1]).focus();
            } else {
                return;
            }
            event.preventDefault();
        }

        field.addEventListener("focus", load);
        field.addEventListener("input", function () { load(); suggest(); });
        field.form.addEventListener("keydown", move);
        document.addEventListener("click", function (event) {
            if (!field.form.contains(event.target))
                list.hidden = true;
        });

        if (results !== null && typeof nalvoIndex !== "undefined") {
            var match = /[?&]q=([^&]*)/.exec(window.location.search);
            var query = "";
            try {
                query = match === null ? "" : decodeURIComponent(match[1].replace(/\+/g, " "));
            } catch (error) {
                query = match[1];
            }
            if (query.trim() !== "") {
                var places = nalvoSearch(nalvoIndex, query, 100);
                var said = document.createElement("p");
                said.setAttribute("role", "status");
                said.textContent = (places.length === 0 ? "Nothing found for " : "Found for ") + "\u201c" + query + "\u201d:";
                var all = document.createElement("ol");
                all.className = "results";
                fill(all, places, query, true);
                results.appendChild(said);
                results.appendChild(all);
                field.value = query;
            }
        }
    }());
}
