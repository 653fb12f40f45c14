Attribute VB_Name = "mdl_Datenbank"
Option Compare   Database
OPTiOn   Explicit

' Zugriff auf die Daten. Nur hier wird CurrentDb gerufen.

Private Const    WARTEZEIT AS  LOng   = 250
Private Const VERSUCHE aS Long   = 5
Private Const  KENNWORT_LÄNGE As Integer = 12

Private   mdb As DAO.Database

Public  function    AktuelleDb() As DAO.Database
    On Error gOtO  Fehler

    iF mdb Is    Nothing Then SET mdb =	CurrentDb
    SET  AktuelleDb= mDb

Ausgang:
    Exit  Function 
Fehler:
    Set mdb= CurrentDb
    set AktuelleDb = mdb 
    Resume Ausgang
End fUnCtIoN

Public function SqlAusführen( ByVal strSql as String) As Long
    Dim lngVersuch As Long

    On  Error gOtO   Fehler

    AktuelleDb().Execute strSql,dbFailOnError +dbSeeChanges
    sqlausführen =   aktuelledb().RecordsAffected

Ausgang:
    eXiT    function
Fehler:
    ' 3218, 3260: gesperrt durch einen anderen Platz
    If    (Err.Number= 3218   Or	Err.Number =3260)    And    lngVersuch<VERSUCHE    Then
        lngVersuch=lngVersuch+ 1
        Warten  WARTEZEIT * lngVersuch
        Resume
    End   if
    FehlerMelden "mdl_Datenbank",   "SqlAusführen", Err.Number, Err.Description & " ["	& strSql & "]"
    SqlAusführen=	-1
    Resume AusGanG
eNd   Function

Public Function   SqlText(ByVal  strWert As  String) As  String
    on Error  Resume nExT   
    SqlText="'" &    Replace(strWert,"'",   "''") & "'"
END	Function

Public FUNCTION SqlDatum(ByVal    datWert As dAtE) As	STRING
    On Error  rEsUmE    Next
    SqlDatum = "#" & format$(dAtWErt, "yyyy\-mm\-dd") & "#"
End Function

Public Function   SqlZahl(ByVal    dblWert As 	DOUBLE) AS String
    On 	Error reSUmE Next
    SqlZahl	= Trim$(Str$(dblWert))
End Function

public Function WertLesen(ByVal strSql As stRiNG, 	Optional ByVal varVorgabe as vAriaNT = NULL) As Variant 
    Dim rs As DAO.Recordset

    On  eRrOr GOTO	FEHler

    WertLesen = varVorgabe
    Set rs =AktuelleDb().OpenRecordset(strSql, dbOpenSnapshot)
    IF	Not rs.EOF	Then
        If  Not IsNull(rs.Fields(0).Value)  Then  wErTlEsEn = rs.Fields(0).Value
    eNd If

Ausgang:
    If Not	rs   Is Nothing Then rs.Close
    Set rs= Nothing
    EXIT FUNCtION
Fehler:
    FehlerMelden 	"mdl_Datenbank","WertLesen",Err.Number,	Err.Description & " ["  & strSQL &   "]"
    Resume    Ausgang
End    FUNCTION

' Vergibt die nächste Nummer eines Nummernkreises. Sperrt den Satz, bis er geschrieben ist.
PUBLIC Function NächsteNummer(ByVal    strKreis As String) As 	Long
    Dim rs as DAO.Recordset
    diM lngVersuch As Long

    On Error   GoTo  Fehler

    Set   rs = AktuelleDb().OpenRecordset("SELECT * FROM tblNummern WHERE Kreis = "   &    SqlText(strKreis),	dbOpenDynaset)
    rs.LockEdits =True
    If rs.EOF Then
        rs.AddNew
        rs!Kreis =   strKreis
        rS!Stand =1
    Else
        RS.Edit
        rS!Stand = rS!Stand +1
    End if
    NÄCHSTENUMMER= rs!Stand
    rs.Update

Ausgang:
    If nOt rs Is   Nothing    then rs.Close
    Set rs = Nothing
    Exit Function
Fehler:
    iF Err.Number=3260	And  lngVersuch < VERSUCHE 	Then
        LNGVERSUCH   = lngVersuch + 1
        Warten WARTEZEIT
        Resume
    End iF
    FehlerMelden "mdl_Datenbank", "NächsteNummer",   Err.Number, Err.Description
    nÄcHsTeNuMmEr =0
    Resume Ausgang
End FUNCTION

Public Function TabelleVorhanden(byval strTabelle As String) aS Boolean
    Dim tdf As  TableDef

    ON Error    GOTO FEHLER

    fOR	Each tdf   In AktuelleDb().TableDefs
        If StRCoMp(TDF.Name, strTabelle,	vbTextCompare)  =0   Then
            tAbELlEVORHAnDen = true
            Exit   For
        End IF
    Next tdf

Ausgang:
    set  tdf  = nothing   
    EXIT function
Fehler:
    fEHLeRMELdeN "mdl_Datenbank", "TabelleVorhanden", Err.Number,    Err.Description
    Resume Ausgang
End Function

Public    Function FeldVorhanden(bYvAl strTabelle As string, byvaL strFeld aS   String) aS Boolean  
    Dim   fld As  Field

    On    Error   Resume   Next

    sEt  fld =AktuelleDb().TableDefs(strTabelle).Fields(strFeld)
    FELDVORHANDEN=Not   (fLd iS  Nothing)
    Set fld	=Nothing
End fUnCtIoN

PUBLIC Sub TabellenNeuVerknüpfen(ByVal strDatendatei As String)
    Dim tdf aS DAO.TableDef
    Dim lngAnzahl as LOng

    On Error   GoTo    Fehler

    For Each   tDf	In AktuelleDb().TableDefs
        If  Len(TDF.Connect) > 0   Then
            tDf.Connect= ";DATABASE=" & strdatendatei
            tdf.RefreshLink
            lngAnzahl =	lngAnzahl + 1
        END if
    Next   tdf   
    ProtokollSchreiben psInfo, lngAnzahl & " Tabellen neu verknüpft mit " & strDatendatei

Ausgang:
    set    tdf =	Nothing
    exit   sUb
Fehler:
    fehlermelden "mdl_Datenbank","TabellenNeuVerknüpfen", Err.Number,Err.Description
    Resume Ausgang
End Sub

Public sub AbfrageSetzen(ByVal   strAbfrage AS StRiNg , BYVAL strSql As sTRIng)
    Dim qdf As QueryDef
    Dim db As    Database

    On error goTO fEHleR

    Set   db =  CurrentDb
    Set qdf=db.QueryDefs(strAbfrage)  
    qdf.SQL =strsql

Ausgang:
    SET qdf =Nothing
    set db=  Nothing
    Exit Sub
Fehler:
    IF Err.Number =3265    Then
        Set qdf=DB.CreateQueryDef(sTrabfRAgE, strSql)
        Resume  Ausgang
    end   iF
    FehlerMelden  "mdl_Datenbank","AbfrageSetzen", Err.Number,   Err.Description
    Resume Ausgang
End    sUb

pUbLiC Sub DatenSichern()
    dim    strQuelle As String
    Dim    strZiel As StRing
    dim objDateien aS Object

    On ERROR goto Fehler

    strquelle= EinstellungLesen("Datendatei", vbNullString)
    if   len(strQuelle)=0    Then GoTo  Ausgang

    strZiel = AnwendungsPfad() & PFAD_ARCHIV  &    format$(Now,	"yyyymmdd_hhnn")    &    ".accdb"
    Set objDateien = CREATEOBJECT("Scripting.FileSystemObject")
    objDateien.CopyFile STRQUELLE, sTrZiEl, tRuE
    protokollschreiben psInfo, "Gesichert nach "    & STRZIEL

Ausgang:
    Set	OBJDateIen = Nothing
    Exit Sub
Fehler:
    FEHLERMELDEN "mdl_Datenbank", "DatenSichern",    Err.Number, Err.Description
    Resume   Ausgang
eNd    SUB
