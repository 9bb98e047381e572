"use strict";

// Every visible text of the page, by language. To add one, copy "en" under
// its two-letter code (de, fr, es, pt...) and translate the values; {0}, {1}
// are filled in by t(). A missing key falls back to English.
const TEXTS = {
  en: {
    title: "PLOV(tm) Quizzarr!",
    connecting: "Connecting…",
    reconnecting: "Connection lost — reconnecting…",
    joinTitle: "Join the game",
    roomCode: "Room code",
    chooseTeam: "Choose your team",
    teamN: "Team {0}",
    yourName: "Your name",
    join: "Join",
    joining: "Joining…",
    pickTeam: "Tap your team first.",
    notConnected: "Not connected yet — try again in a moment.",
    badChars: "That has a character the game cannot show; please leave it out.",
    err_room: "That room code is wrong — check the big screen.",
    err_full: "The room is full.",
    err_name: "Type a name of 1 to 20 characters.",
    err_team: "That team is not in the game — choose another.",
    err_busy: "Too many taps — slow down a little.",
    err_other: "Something went wrong — try again.",
    removed: "The host removed you — join again",
    score: "Score: {0}",
    idle: "Wait for a question",
    closed: "Not yet…",
    open: "BUZZ!",
    first: "You're first!",
    other: "{0} answers",
    otherTeam: "Another team answers",
    locked: "Too early — wait",
    out: "Out for this clue",
    hint_closed: "Wait until the buzzers open.",
    hint_open: "Press now!",
    hint_first: "Give your answer out loud.",
    hint_locked: "You pressed too early.",
    hint_out: "Wait for the next clue.",
    hint_wager: "Only your team sees your wager.",
    hint_finalWager: "Other teams can't see your wager.",
    hint_finalResponse: "You can change your response until time is up.",
    hint_finalLocked: "Wait for the host.",
    dailyDouble: "Daily Double!",
    finalRound: "Final round",
    wagerRange: "From {0} to {1}",
    badWager: "Enter a whole number from {0} to {1}.",
    yourWager: "Your wager: {0}",
    noWager: "No wager",
    yourResponse: "Your response",
    acceptedResponse: "Your response: {0}",
    noResponse: "No response",
    emptyResponse: "Type a response first.",
    send: "Send",
    sent: "Sent.",
    secondsLeft: "{0} s left",
    timeUp: "Time is up",
    lockedIn: "Locked in",
  },
  de: {
    title: "PLOV(tm) Quizzarr!",
    connecting: "Verbinde…",
    reconnecting: "Verbindung weg — verbinde neu…",
    joinTitle: "Mitspielen",
    roomCode: "Raumcode",
    chooseTeam: "Wähle dein Team",
    teamN: "Team {0}",
    yourName: "Dein Name",
    join: "Mitmachen",
    joining: "Anmelden…",
    pickTeam: "Tippe erst auf dein Team.",
    notConnected: "Noch nicht verbunden — versuch es gleich noch mal.",
    badChars: "Ein Zeichen kann das Spiel nicht anzeigen — bitte lass es weg.",
    err_room: "Falscher Raumcode — schau auf den großen Bildschirm.",
    err_full: "Der Raum ist voll.",
    err_name: "Gib einen Namen mit 1 bis 20 Zeichen ein.",
    err_team: "Dieses Team spielt nicht mit — wähle ein anderes.",
    err_busy: "Zu oft getippt — etwas langsamer, bitte.",
    err_other: "Da ging etwas schief — versuch es noch mal.",
    removed: "Von der Spielleitung entfernt — neu anmelden",
    score: "Punkte: {0}",
    idle: "Warte auf eine Frage",
    closed: "Noch nicht…",
    open: "DRÜCKEN!",
    first: "Ihr wart zuerst!",
    other: "{0} antwortet",
    otherTeam: "Ein anderes Team antwortet",
    locked: "Zu früh — warte",
    out: "Bei dieser Frage raus",
    hint_closed: "Warte, bis du drücken darfst.",
    hint_open: "Jetzt drücken!",
    hint_first: "Sagt eure Antwort laut.",
    hint_locked: "Du hast zu früh gedrückt.",
    hint_out: "Warte auf die nächste Frage.",
    hint_wager: "Nur euer Team sieht euren Einsatz.",
    hint_finalWager: "Andere Teams sehen euren Einsatz nicht.",
    hint_finalResponse: "Ihr könnt die Antwort ändern, bis die Zeit um ist.",
    hint_finalLocked: "Warte auf die Spielleitung.",
    dailyDouble: "Einsatzfrage!",
    finalRound: "Finalrunde",
    wagerRange: "Von {0} bis {1}",
    badWager: "Gib eine ganze Zahl von {0} bis {1} ein.",
    yourWager: "Euer Einsatz: {0}",
    noWager: "Kein Einsatz",
    yourResponse: "Eure Antwort",
    acceptedResponse: "Eure Antwort: {0}",
    noResponse: "Keine Antwort",
    emptyResponse: "Gib zuerst eine Antwort ein.",
    send: "Senden",
    sent: "Gesendet.",
    secondsLeft: "Noch {0} s",
    timeUp: "Zeit ist um",
    lockedIn: "Abgegeben",
  },
  fr: {
    title: "PLOV(tm) Quizzarr!",
    connecting: "Connexion…",
    reconnecting: "Connexion perdue — reconnexion…",
    joinTitle: "Rejoindre la partie",
    roomCode: "Code de salle",
    chooseTeam: "Choisis ton équipe",
    teamN: "Équipe {0}",
    yourName: "Ton prénom",
    join: "Rejoindre",
    joining: "Un instant…",
    pickTeam: "Touche d'abord ton équipe.",
    notConnected: "Pas encore de connexion — réessaie dans un instant.",
    badChars: "Le jeu ne peut pas afficher un de ces caractères : enlève-le.",
    err_room: "Ce code est faux — regarde le grand écran.",
    err_full: "La salle est pleine.",
    err_name: "Écris un prénom de 1 à 20 caractères.",
    err_team: "Cette équipe ne joue pas — choisis-en une autre.",
    err_busy: "Tu appuies trop vite — doucement !",
    err_other: "Un problème est survenu — réessaie.",
    removed: "L'hôte t'a fait sortir — rejoins la partie",
    score: "Score : {0}",
    idle: "Attends la question",
    closed: "Pas encore…",
    open: "BUZZ !",
    first: "C'est à toi !",
    other: "{0} répond",
    otherTeam: "Une autre équipe répond",
    locked: "Trop tôt — attends",
    out: "Hors jeu cette fois",
    hint_closed: "Attends l'ouverture des buzzers.",
    hint_open: "Appuie vite !",
    hint_first: "Donne ta réponse à voix haute.",
    hint_locked: "Tu as appuyé trop tôt.",
    hint_out: "Attends la question suivante.",
    hint_wager: "Seule ton équipe voit ta mise.",
    hint_finalWager: "Les autres équipes ne voient pas ta mise.",
    hint_finalResponse: "Tu peux changer ta réponse jusqu'à la fin du temps.",
    hint_finalLocked: "Attends la suite.",
    dailyDouble: "Mise surprise !",
    finalRound: "Manche finale",
    wagerRange: "De {0} à {1}",
    badWager: "Écris un nombre entier de {0} à {1}.",
    yourWager: "Ta mise : {0}",
    noWager: "Pas de mise",
    yourResponse: "Ta réponse",
    acceptedResponse: "Ta réponse : {0}",
    noResponse: "Pas de réponse",
    emptyResponse: "Écris d'abord une réponse.",
    send: "Envoyer",
    sent: "C'est envoyé.",
    secondsLeft: "Encore {0} s",
    timeUp: "Temps écoulé",
    lockedIn: "C'est verrouillé",
  },
  es: {
    title: "PLOV(tm) Quizzarr!",
    connecting: "Conectando…",
    reconnecting: "Sin conexión — reconectando…",
    joinTitle: "Únete al juego",
    roomCode: "Código de sala",
    chooseTeam: "Elige tu equipo",
    teamN: "Equipo {0}",
    yourName: "Tu nombre",
    join: "Entrar",
    joining: "Entrando…",
    pickTeam: "Primero toca tu equipo.",
    notConnected: "Aún sin conexión — inténtalo de nuevo en un momento.",
    badChars: "Hay un carácter que el juego no puede mostrar; quítalo, por favor.",
    err_room: "El código de sala no es correcto — mira la pantalla grande.",
    err_full: "La sala está llena.",
    err_name: "Escribe un nombre de 1 a 20 caracteres.",
    err_team: "Ese equipo no está en el juego — elige otro.",
    err_busy: "Demasiados toques — ve más despacio.",
    err_other: "Algo salió mal — inténtalo de nuevo.",
    removed: "El presentador te sacó — vuelve a entrar",
    score: "Puntos: {0}",
    idle: "Espera una pregunta",
    closed: "Aún no…",
    open: "¡YA!",
    first: "¡Llegaste primero!",
    other: "Responde {0}",
    otherTeam: "Responde otro equipo",
    locked: "Muy pronto — espera",
    out: "Fuera de esta pista",
    hint_closed: "Espera a que se pueda pulsar.",
    hint_open: "¡Pulsa ahora!",
    hint_first: "Di tu respuesta en voz alta.",
    hint_locked: "Pulsaste demasiado pronto.",
    hint_out: "Espera a la siguiente pista.",
    hint_wager: "Solo tu equipo ve tu apuesta.",
    hint_finalWager: "Los otros equipos no ven tu apuesta.",
    hint_finalResponse: "Puedes cambiar tu respuesta hasta que acabe el tiempo.",
    hint_finalLocked: "Espera al presentador.",
    dailyDouble: "¡Pista sorpresa!",
    finalRound: "Ronda final",
    wagerRange: "De {0} a {1}",
    badWager: "Escribe un número entero de {0} a {1}.",
    yourWager: "Tu apuesta: {0}",
    noWager: "Sin apuesta",
    yourResponse: "Tu respuesta",
    acceptedResponse: "Tu respuesta: {0}",
    noResponse: "Sin respuesta",
    emptyResponse: "Escribe antes tu respuesta.",
    send: "Enviar",
    sent: "Enviado.",
    secondsLeft: "Quedan {0} s",
    timeUp: "¡Tiempo!",
    lockedIn: "¡Listo!",
  },
  pt: {
    title: "PLOV(tm) Quizzarr!",
    connecting: "Conectando…",
    reconnecting: "Conexão perdida — reconectando…",
    joinTitle: "Entre no jogo",
    roomCode: "Código da sala",
    chooseTeam: "Escolha a sua equipe",
    teamN: "Equipe {0}",
    yourName: "Seu nome",
    join: "Entrar",
    joining: "Entrando…",
    pickTeam: "Escolha a equipe primeiro.",
    notConnected: "Ainda sem conexão — tente de novo daqui a pouco.",
    badChars: "Há um símbolo que o jogo não consegue mostrar; apague-o, por favor.",
    err_room: "Código da sala errado — confira na tela grande.",
    err_full: "A sala está cheia.",
    err_name: "Escreva um nome de 1 a 20 caracteres.",
    err_team: "Essa equipe não está no jogo — escolha outra.",
    err_busy: "Toques demais — vá com calma.",
    err_other: "Houve um erro — tente de novo.",
    removed: "O apresentador tirou você — entre de novo",
    score: "Pontos: {0}",
    idle: "Aguarde uma pergunta",
    closed: "Ainda não…",
    open: "JÁ!",
    first: "É a sua vez!",
    other: "{0} responde",
    otherTeam: "Outra equipe responde",
    locked: "Cedo demais — espere",
    out: "Fora desta pergunta",
    hint_closed: "Espere até o botão ser liberado.",
    hint_open: "Toque agora!",
    hint_first: "Diga a sua resposta em voz alta.",
    hint_locked: "Você tocou cedo demais.",
    hint_out: "Aguarde a próxima pergunta.",
    hint_wager: "Só a sua equipe vê a sua aposta.",
    hint_finalWager: "As outras equipes não veem a sua aposta.",
    hint_finalResponse: "Você pode mudar a resposta até o tempo acabar.",
    hint_finalLocked: "Aguarde o apresentador.",
    dailyDouble: "Aposta em dobro!",
    finalRound: "Grande final",
    wagerRange: "De {0} a {1}",
    badWager: "Escreva um número inteiro de {0} a {1}.",
    yourWager: "Sua aposta: {0}",
    noWager: "Sem aposta",
    yourResponse: "Sua resposta",
    acceptedResponse: "Sua resposta: {0}",
    noResponse: "Sem resposta",
    emptyResponse: "Escreva uma resposta.",
    send: "Enviar",
    sent: "Enviado.",
    secondsLeft: "Faltam {0} s",
    timeUp: "Fim do tempo",
    lockedIn: "Confirmado",
  },
};

const LANG = (() => {
  const wanted = navigator.languages && navigator.languages.length ? navigator.languages : [navigator.language || ""];
  for (const l of wanted) {
    const code = String(l).slice(0, 2).toLowerCase();
    if (TEXTS[code]) return code;
  }
  return "en";
})();

function t(key, ...args) {
  const s = (TEXTS[LANG] && TEXTS[LANG][key]) || TEXTS.en[key] || key;
  // A function as replacement, so "$" in a name is never read as a pattern.
  return s.replace(/\{(\d)\}/g, (_, i) => String(args[i]));
}

// Intl only for the grouping: the game's points always show with "$".
const NUMBER = new Intl.NumberFormat(LANG, { maximumFractionDigits: 0 });
const money = (n) => (n < 0 ? "-$" : "$") + NUMBER.format(Math.abs(n));

const $ = (id) => document.getElementById(id);
const TOKEN_KEY = "quizzarr-token";
const DELAYS = [500, 1000, 2000, 3000]; // then 3 s forever
const BUZZ_PHASES = ["idle", "closed", "open", "first", "other", "locked", "out"];
const BUZZ_SENDS = ["closed", "open", "locked"]; // the server judges early or late
const MOST_WAGER = 9999999; // the server's own limit

let ws = null, retry = 0, retryTimer = 0, openTimer = 0, hiddenAt = 0;
let teams = [], chosenTeam = -1, me = null, score = null;
let phase = "", st = {}, lastBuzz = 0, deadline = 0, tickTimer = 0, joinTimer = 0;
const sentAt = [];
let token = loadToken();

// Storage may be refused (private browsing); the page still works without.
function loadToken() {
  try {
    const v = localStorage.getItem(TOKEN_KEY) || "";
    return /^[0-9a-f]{32}$/.test(v) ? v : "";
  } catch (e) { return ""; }
}
function saveToken(v) {
  token = /^[0-9a-f]{32}$/.test(v) ? v : "";
  try { token ? localStorage.setItem(TOKEN_KEY, token) : localStorage.removeItem(TOKEN_KEY); } catch (e) { /* kept in memory */ }
}

// The server drops names and responses with control or format characters
// (the joiners of emoji excepted) without a word, so they are caught here;
// null = refused.
function cleanText(s) {
  s = String(s).replace(/[\r\n\t]+/g, " ");
  if (/[\p{Cc}\p{Cs}\u2028\u2029]|(?![\u200c\u200d])\p{Cf}/u.test(s)) return null;
  return s.replace(/\s+/g, " ").trim();
}

const goodColor = (c) => (typeof c === "string" && /^#([0-9a-f]{3}|[0-9a-f]{6})$/i.test(c) ? c : "#ffcc33");
// Dark words on bright team colours, white on dark ones.
function inkOn(color) {
  let h = color.slice(1);
  if (h.length === 3) h = h.replace(/./g, "$&$&");
  const [r, g, b] = [0, 2, 4].map((i) => parseInt(h.slice(i, i + 2), 16));
  return 0.299 * r + 0.587 * g + 0.114 * b > 140 ? "#0c1c5c" : "#ffffff";
}

// ---- connection ----

// The old socket, perhaps dead after sleep, is silenced and closed.
function dropSocket() {
  clearTimeout(retryTimer);
  clearTimeout(openTimer);
  if (ws) { ws.onopen = ws.onclose = ws.onerror = ws.onmessage = null; try { ws.close(); } catch (e) { /* gone */ } }
  ws = null;
}

function connect() {
  dropSocket();
  let sock;
  try {
    sock = new WebSocket((location.protocol === "https:" ? "wss://" : "ws://") + location.host + "/ws");
  } catch (e) { lost(); return; }
  ws = sock;
  // A connection to a vanished network can hang for long; give up sooner.
  openTimer = setTimeout(() => { if (ws === sock && sock.readyState !== 1) lost(); }, 6000);
  sock.onopen = () => { clearTimeout(openTimer); if (token) send({ type: "hello", token }); };
  sock.onmessage = (e) => {
    try { var m = JSON.parse(e.data); } catch (err) { return; }
    if (m && typeof m === "object") handle(m);
  };
  sock.onerror = () => { try { sock.close(); } catch (e) { /* close follows */ } };
  sock.onclose = () => { if (ws === sock) lost(); };
}

function lost() {
  dropSocket();
  banner(true);
  joinBusy(false);
  retryTimer = setTimeout(connect, DELAYS[Math.min(retry++, DELAYS.length - 1)]);
}

function reconnectNow() { retry = 0; connect(); }

function banner(on) {
  $("banner").hidden = !on;
  document.body.classList.toggle("offline", on);
}

// At most 8 messages a second leave, far below the server's limit.
function send(obj) {
  const now = Date.now();
  while (sentAt.length && now - sentAt[0] > 1000) sentAt.shift();
  if (!ws || ws.readyState !== 1 || sentAt.length >= 8) return false;
  sentAt.push(now);
  ws.send(JSON.stringify(obj));
  return true;
}

// ---- messages from the server ----

function handle(m) {
  switch (m.type) {
    case "welcome":
    case "teams":
      teams = (Array.isArray(m.teams) ? m.teams : []).slice(0, 10)
        .filter((x) => x && Number.isInteger(x.team))
        .map((x) => ({ team: x.team, name: typeof x.name === "string" && x.name ? x.name : t("teamN", x.team + 1), color: goodColor(x.color) }));
      if (me) {
        const mine = teams.find((x) => x.team === me.team);
        if (mine) { me.teamName = mine.name; me.color = mine.color; }
      }
      renderTeams();
      renderHead();
      if (m.type === "welcome") {
        retry = 0;
        if (!token) { banner(false); if (!me) show("join"); }
      }
      break;
    case "joined":
      saveToken(String(m.token || ""));
      if (!me || me.team !== m.team) score = null;
      me = { team: m.team, name: String(m.name || ""), teamName: String(m.teamName || ""), color: goodColor(m.color) };
      retry = 0;
      banner(false);
      joinBusy(false);
      $("notice").hidden = true;
      show("game");
      renderHead();
      render();
      break;
    case "error":
      joinBusy(false);
      if (m.code === "token") { // an old token: start afresh, quietly
        saveToken("");
        me = null;
        banner(false);
        $("joinError").textContent = "";
        show("join");
      } else {
        const text = TEXTS.en["err_" + m.code] ? t("err_" + m.code) : t("err_other");
        $(me ? "status" : "joinError").textContent = text;
      }
      break;
    case "state":
      applyState(m);
      break;
    case "removed":
      saveToken("");
      me = null;
      $("notice").textContent = t("removed");
      $("notice").hidden = false;
      show("join");
      break;
  }
}

function applyState(m) {
  const prev = phase;
  phase = typeof m.phase === "string" ? m.phase : "idle";
  st = m;
  if (typeof m.teamScore === "number") score = m.teamScore;
  if (phase !== prev) {
    if (phase === "first" && navigator.vibrate) navigator.vibrate(200);
    // Fill the forms once, on entering the phase, never over the player's typing.
    $("wagerInput").value = typeof m.wager === "number" ? String(m.wager) : "";
    $("responseInput").value = typeof m.response === "string" ? m.response : "";
    $("panelError").textContent = "";
  }
  deadline = phase === "finalResponse" && typeof m.secondsLeft === "number" ? Date.now() + m.secondsLeft * 1000 : 0;
  clearInterval(tickTimer);
  if (deadline) tickTimer = setInterval(renderCountdown, 250);
  renderHead();
  render();
}

// ---- drawing ----

function show(view) {
  $("loading").hidden = view !== "loading";
  $("join").hidden = view !== "join";
  $("game").hidden = view !== "game";
}

function renderTeams() {
  if (!teams.some((x) => x.team === chosenTeam)) chosenTeam = -1;
  const box = $("teams");
  box.textContent = "";
  for (const x of teams) {
    const b = document.createElement("button");
    b.type = "button";
    b.className = "team-button";
    b.setAttribute("role", "radio");
    b.setAttribute("aria-checked", String(x.team === chosenTeam));
    b.style.background = x.color;
    b.style.color = inkOn(x.color);
    b.textContent = x.name;
    b.addEventListener("click", () => { chosenTeam = x.team; renderTeams(); });
    box.appendChild(b);
  }
}

function renderHead() {
  if (!me) return;
  $("teamName").textContent = me.teamName;
  $("teamName").style.color = me.color;
  document.documentElement.style.setProperty("--team", me.color);
  $("playerName").textContent = me.name;
  $("score").textContent = score === null ? "" : t("score", money(score));
}

function shown(id, text) {
  $(id).hidden = text === null;
  $(id).textContent = text === null ? "" : text;
}

function render() {
  const buzzy = !BUZZ_PHASES.includes(phase) ? "idle" : phase;
  const inPanel = ["wager", "finalWager", "finalResponse", "finalLocked"].includes(phase);
  $("buzz").hidden = inPanel;
  $("panel").hidden = !inPanel;
  $("status").textContent = TEXTS.en["hint_" + phase] ? t("hint_" + phase) : "";
  if (!inPanel) {
    $("buzz").className = "buzz " + buzzy;
    const answering = typeof st.answering === "string" && st.answering ? st.answering : null;
    $("buzzText").textContent = buzzy !== "other" ? t(buzzy) : answering ? t("other", answering) : t("otherTeam");
    return;
  }
  const w = typeof st.wager === "number" ? st.wager : null;
  const r = typeof st.response === "string" ? st.response : null;
  const max = typeof st.max === "number" ? Math.min(Math.max(0, Math.floor(st.max)), MOST_WAGER) : MOST_WAGER;
  $("panelTitle").textContent = phase === "wager" ? t("dailyDouble") : phase === "finalLocked" ? t("lockedIn") : t("finalRound");
  shown("category", typeof st.category === "string" && st.category ? st.category : null);
  $("wagerForm").hidden = phase !== "wager" && phase !== "finalWager";
  $("wagerHint").textContent = t("wagerRange", money(0), money(max));
  $("wagerInput").max = String(max);
  $("responseForm").hidden = phase !== "finalResponse";
  const locked = phase === "finalLocked";
  shown("accWager", w !== null ? t("yourWager", money(w)) : locked ? t("noWager") : null);
  shown("accResponse", r !== null ? t("acceptedResponse", r) : locked ? t("noResponse") : null);
  renderCountdown();
}

function renderCountdown() {
  if (!deadline || phase !== "finalResponse") { clearInterval(tickTimer); shown("countdown", null); return; }
  const left = Math.max(0, Math.ceil((deadline - Date.now()) / 1000));
  shown("countdown", left > 0 ? t("secondsLeft", left) : t("timeUp"));
  $("countdown").classList.toggle("low", left <= 10);
  if (!left) clearInterval(tickTimer);
}

// ---- the player's actions ----

function buzz() {
  const now = performance.now();
  if (now - lastBuzz < 150) return; // a bounce or a second finger
  lastBuzz = now;
  const b = $("buzz");
  b.classList.add("pressed");
  setTimeout(() => b.classList.remove("pressed"), 120);
  if (BUZZ_SENDS.includes(phase)) send({ type: "buzz" });
}

function joinBusy(on) {
  clearTimeout(joinTimer);
  $("joinButton").disabled = on;
  $("joinButton").textContent = t(on ? "joining" : "join");
  if (on) joinTimer = setTimeout(() => joinBusy(false), 5000); // no answer: let them try again
}

function submitJoin(e) {
  e.preventDefault();
  const err = $("joinError");
  const room = $("room").value.replace(/\s+/g, "").toUpperCase();
  const name = cleanText($("name").value);
  if (!room || room.length > 8) err.textContent = t("err_room");
  else if (chosenTeam < 0) err.textContent = t("pickTeam");
  else if (name === null) err.textContent = t("badChars");
  else if (!name || name.length > 20) err.textContent = t("err_name");
  else if (!send({ type: "join", room, team: chosenTeam, name })) err.textContent = t("notConnected");
  else { err.textContent = ""; $("room").value = room; joinBusy(true); }
}

function submitWager(e) {
  e.preventDefault();
  const v = $("wagerInput").value.trim();
  const n = Number(v);
  const max = Number($("wagerInput").max);
  if (v === "" || !Number.isInteger(n) || n < 0 || n > max) {
    $("panelError").textContent = t("badWager", money(0), money(max));
  } else sent(send({ type: "wager", amount: n }));
}

function submitResponse(e) {
  e.preventDefault();
  const text = cleanText($("responseInput").value);
  if (text === null) $("panelError").textContent = t("badChars");
  else if (!text) $("panelError").textContent = t("emptyResponse");
  else sent(send({ type: "response", text: text.slice(0, 200) }));
}

function sent(ok) {
  $("panelError").textContent = ok ? "" : t("notConnected");
  if (!ok) return;
  $("status").textContent = t("sent");
  if (document.activeElement) document.activeElement.blur(); // drop the keyboard so the answer shows
}

// ---- start ----

document.documentElement.lang = LANG;
document.title = t("title");
for (const el of document.querySelectorAll("[data-t]")) el.textContent = t(el.dataset.t);
show("loading");

const buzzButton = $("buzz");
// pointerdown, not click: the buzz leaves as the finger lands.
buzzButton.addEventListener("pointerdown", (e) => { if (e.button > 0) return; e.preventDefault(); buzz(); });
buzzButton.addEventListener("keydown", (e) => {
  if ((e.key === " " || e.key === "Enter") && !e.repeat) { e.preventDefault(); buzz(); }
});
buzzButton.addEventListener("contextmenu", (e) => e.preventDefault());
$("join").addEventListener("submit", submitJoin);
$("wagerForm").addEventListener("submit", submitWager);
$("responseForm").addEventListener("submit", submitResponse);
// The response is one line: Enter sends it.
$("responseInput").addEventListener("keydown", (e) => {
  if (e.key === "Enter" && !e.isComposing) { submitResponse(e); }
});

// A phone that slept may hold a socket that only looks open: start afresh.
document.addEventListener("visibilitychange", () => {
  if (document.hidden) { hiddenAt = Date.now(); return; }
  if (!ws || ws.readyState !== 1 || Date.now() - hiddenAt > 3000) reconnectNow();
});
window.addEventListener("online", reconnectNow);
window.addEventListener("pageshow", (e) => { if (e.persisted) reconnectNow(); });

connect();
