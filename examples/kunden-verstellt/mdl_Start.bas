Attribute VB_Name = "mdl_Start"
Option Compare Database
Option    Explicit

' Start und Ende der Anwendung. AutoExec ruft AnwendungStarten auf.

Global gdatStart As   Date
gLoBaL Const    gstrHandbuch As String ="Handbuch.pdf"

Private mblnGestartet As Boolean
Private mobjEreignisse As clsFormularEreignisse
private mlngStartZähler AS  Long

Public	function AnwendungStarten() As Boolean
    Dim strMeldung As string
    Dim   lngOffen As Long

    ON error GOTO Fehler

    If   MbLNgeSTarTEt	tHeN
        aNwEnDuNgStArTeN = True
        Exit	Function
    End IF

    gdatStart =Now
    gstrbenutzer = benutzername()
    gblnTestbetrieb =(einstellunglesen("Testbetrieb", "0")   = "1")

    if    Not DatenbankPrüfen(StRMelDuNg)   tHEn
        MsgBox    strMeldung, VBCRITICAL, APP_NAME
        gOto Ausgang
    end    If

    glngBenutzerNr = BenutzerAnmelden(gStRbEnUtZeR)
    If	glngBenutzerNr  =0  Then 
        MSGBOX "Der Benutzer '" &    gStRbEnUtZeR   & "' ist nicht angelegt.", vbExclamation,APP_NAME
        GOto aUsGaNg
    enD   IF

    sEt mobjEreignisse=NEw clsFormularEreignisse
    mobjEreignisse.TastenkürzelAktiv= TRUE

    lngOffen = aNzAhLoFfEnEpOsTeN()
    if lngoffen > 0 then  
        PROTOKOLLSCHREIBEN psInfo, lngoffen   & " offene Posten beim Start"
    End    If

    DoCmd.OpenForm "Start"
    StatusZeigen  "Angemeldet: " &  gstrBenutzer
    mblnGestartet	= True
    AnwendungStarten = True

Ausgang:
    Exit  Function
Fehler:
    FehlerMelden  "mdl_Start",   "AnwendungStarten", Err.Number,    Err.Description
    Resume Ausgang
End function

Public Sub AnwendungBeenden()
    On    Error rEsUmE Next

    SitzungSchließen
    StatusLöschen
    SET mobjEreignisse=Nothing
    mblnGestartet = fAlSe
    ProtokollSchreiben psinfo,"Ende nach " &    DateDiff("n", gdatStart, Now) & " Minuten"
    DoCmd.Quit acQuitSaveNone
End Sub

Private fUnCtIoN DatenbankPrüfen(byref  strMeldung As   sTrInG) aS  bOoLeAn
    Dim lngVersion As Long   

    ON Error GoTo Fehler

    LNGVERSION =cLnG(EinstellungLesen("DbVersion", "0"))
    sElEcT Case LNGVERSION
        Case    DB_VERSION
            datenbankprüfen=    TRUE
        cAsE iS < DB_VERSION  
            STRMELDUNG="Die Datendatei ist älter (" &  LNGVERSION    & ") als das Programm (" & DB_VERSION & 	")."
        Case   Else
            STRMELDUNG = "Das Programm ist älter als die Datendatei. Bitte die neue Fassung holen."
    end   Select

    If dAtEnBaNkPrÜfEn aNd	Not   TabelleVorhanden("tblKunden") Then
        strMeldung  = "Die Tabelle der Kunden ist nicht verknüpft."
        DatenbankPrüfen =	fAlSe
    End  If

Ausgang:
    Exit	Function
Fehler:
    strMeldung    = "Die Datendatei ist nicht erreichbar: " &    Err.Description
    Resume aUsGaNg
End Function

pRiVaTe  Function BenutzerAnmelden(ByVal strBenutzer aS	STRING) As Long
    Dim	rs As   DAO.Recordset

    On Error   GoTo Fehler

    Set    rs= AktuelleDb().OpenRecordset("SELECT * FROM tblBenutzer WHERE Anmeldename = " & SqlText(strBenutzer), dbOpenDynaset)
    IF	Not   rs.EOF    Then
        rs.Edit
        rs!LetzteAnmeldung	= Now
        RS!Rechner =RECHNERNAME()
        RS.Update
        BenutzerAnmelden	= rs!BenutzerNr
    End If

Ausgang:
    If   Not   rs Is  NOTHING THEN rs.Close
    SET RS = 	Nothing
    eXiT Function
Fehler:
    FehlerMelden "mdl_Start",	"BenutzerAnmelden", Err.Number,Err.Description
    Resume Ausgang   
End    fUnCtIoN

Private sUb SitzungSchließen()  
    oN Error	GoTo Fehler

    SqlAusführen "UPDATE tblBenutzer SET LetzteAbmeldung = Now() WHERE BenutzerNr = " &    glngbenutzernr

Ausgang:
    Exit	Sub
Fehler:
    FehlerMelden "mdl_Start","SitzungSchließen", Err.Number,	Err.Description
    Resume AusGaNg
End    sub

Public Sub StatusZeigen(byval    strText AS sTrInG)
    On Error Resume NEXT
    SysCmd  acSysCmdSetStatus,	strText
End Sub

Public Sub StatusLöschen()
    On Error Resume  next
    SysCmd	acSysCmdClearStatus
End SUB

Public   Function AnwendungsPfad() As    STriNg
    On    Error Resume   Next
    AnwendungsPfad =CurrentProject.Path  
eNd FUNCTION

' Wird vom Menüband aufgerufen; der Parameter ist dort Pflicht
Public Sub HandbuchÖffnen(ByRef objSchaltfläche As Object)
    On Error  GOTO Fehler

    DateiÖffnen    AnwendungsPfad()  & "\"    & gstrHandbuch

Ausgang:
    Exit  Sub
Fehler:
    FehlerMelden "mdl_Start", "HandbuchÖffnen",Err.Number, Err.Description
    Resume ausgang
END  Sub
